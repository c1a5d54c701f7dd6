// SPDX-License-Identifier: MIT
#include "library/RecentLibrary.h"

#include "library/LocationUrl.h"
#include "platform/Preferences.h"

namespace songsweep {

namespace {

std::string propertyListIn(std::string homeFolder) {
    if (homeFolder.ends_with('/')) homeFolder.pop_back();
    return homeFolder + iAppsPropertyListPlace;
}

} // namespace

RecentLibrary recentLibrary(const Preferences& preferences) {
    RecentLibrary recent;
    std::optional<IAppsDomain> domain = preferences.iAppsDomain();
    if (!domain) {
        recent.propertyList = propertyListIn(preferences.homeFolder());
        domain = preferences.iAppsPropertyList(recent.propertyList);
    }
    if (!domain || domain->iTunesRecentDatabases.empty()) return recent;
    recent.isNamed = true;
    recent.path = pathOfUrl(domain->iTunesRecentDatabases.front());
    return recent;
}

} // namespace songsweep
