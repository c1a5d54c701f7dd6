// SPDX-License-Identifier: MIT
#include "platform/linux/LinuxPreferences.h"

#include "platform/FileUrl.h"
#include "platform/HomeFolder.h"
#include "platform/UsualLibraries.h"
#include "platform/linux/PropertyList.h"

#include <QStandardPaths>

#include <sys/stat.h>

#include <algorithm>

namespace songsweep {

namespace {

bool isFile(const std::string& path) {
    struct stat attributes {};
    return ::stat(path.c_str(), &attributes) == 0 && S_ISREG(attributes.st_mode);
}

} // namespace

LinuxPreferences::Folders LinuxPreferences::userFolders() {
    Folders folders{passwordHomeFolder(), {}};
    const QString music = QStandardPaths::writableLocation(QStandardPaths::MusicLocation);
    if (!music.isEmpty()) folders.music.push_back(music.toStdString());
    folders.music.push_back(folders.home + "/Music");
    return folders;
}

std::optional<IAppsDomain> LinuxPreferences::iAppsDomain() const {
    if (isFile(m_folders.home + iAppsPropertyListPlace)) return std::nullopt;
    const std::vector<std::string> found = libraries();
    if (found.empty()) return std::nullopt;
    return IAppsDomain{{fileUrl(found.front())}};
}

std::optional<IAppsDomain> LinuxPreferences::iAppsPropertyList(const std::string& path) const {
    return readIAppsPropertyList(path);
}

std::vector<std::string> LinuxPreferences::libraryPlaces() const {
    std::vector<std::string> places = {m_folders.home + iAppsPropertyListPlace};
    for (const std::string& folder : m_folders.music)
        for (const std::string& place : usualLibraryFolders(folder))
            if (std::find(places.begin(), places.end(), place) == places.end()) places.push_back(place);
    return places;
}

std::vector<std::string> LinuxPreferences::libraries() const {
    std::vector<std::string> found;
    for (const std::string& folder : m_folders.music)
        for (const std::string& library : usualLibraries(folder))
            if (std::find(found.begin(), found.end(), library) == found.end()) found.push_back(library);
    return found;
}

} // namespace songsweep
