// SPDX-License-Identifier: MIT
#include "platform/UsualLibraries.h"

#include <sys/stat.h>

#include <algorithm>
#include <iterator>

namespace songsweep {

namespace {

/// iTunes' names first, then those of the application that followed it.
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

std::vector<std::string> usualLibraries(const std::string& folder) {
    std::vector<std::string> found;
    for (const char* place : usualPlaces)
        if (isFile(folder + place)) found.push_back(folder + place);
    return found;
}

bool hasUsualLibraryName(const std::string& path) {
    const std::string name = path.substr(path.rfind('/') + 1);
    return std::any_of(std::begin(usualPlaces), std::end(usualPlaces),
                       [&](const std::string& place) { return place.substr(place.rfind('/') + 1) == name; });
}

std::vector<std::string> usualLibraryFolders(const std::string& folder) {
    std::vector<std::string> folders;
    for (const char* usual : usualFolders)
        folders.push_back(folder + usual);
    return folders;
}

} // namespace songsweep
