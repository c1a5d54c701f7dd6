// SPDX-License-Identifier: MIT
#include "platform/linux/LinuxPreferences.h"

#include "platform/FileUrl.h"
#include "platform/HomeFolder.h"
#include "platform/linux/PropertyList.h"

#include <QStandardPaths>

#include <sys/stat.h>

#include <algorithm>

namespace songsweep {

namespace {

constexpr const char* propertyList = "/Library/Preferences/com.apple.iApps.plist";

/// Below the Music folder; iTunes' names first, then those of the application that followed it.
constexpr const char* usualPlaces[] = {"/iTunes/iTunes Music Library.xml",
                                       "/iTunes/iTunes Library.xml",
                                       "/iTunes/Library.xml",
                                       "/iTunes Music Library.xml",
                                       "/iTunes Library.xml",
                                       "/Music/Music Library.xml",
                                       "/Music/Library.xml",
                                       "/Music Library.xml",
                                       "/Library.xml"};

/// The folders of those names.
constexpr const char* usualFolders[] = {"/iTunes", "", "/Music"};

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
    if (isFile(m_folders.home + propertyList)) return std::nullopt;
    for (const std::string& folder : m_folders.music)
        for (const char* place : usualPlaces)
            if (isFile(folder + place)) return IAppsDomain{{fileUrl(folder + place)}};
    return std::nullopt;
}

std::optional<IAppsDomain> LinuxPreferences::iAppsPropertyList(const std::string& path) const {
    return readIAppsPropertyList(path);
}

std::vector<std::string> LinuxPreferences::libraryPlaces() const {
    std::vector<std::string> places = {m_folders.home + propertyList};
    for (const std::string& folder : m_folders.music)
        for (const char* usual : usualFolders)
            if (const std::string place = folder + usual;
                std::find(places.begin(), places.end(), place) == places.end())
                places.push_back(place);
    return places;
}

} // namespace songsweep
