// SPDX-License-Identifier: MIT
#include "scan/FolderLibrary.h"

#include "library/LocationUrl.h"
#include "libraryfile/FileNames.h"
#include "libraryfile/LibraryFile.h"
#include "platform/LocalName.h"
#include "platform/SystemError.h"
#include "platform/UsualLibraries.h"
#include "platform/Utf8.h"
#include "scan/Hash64.h"

#include <array>
#include <cstdio>
#include <filesystem>
#include <string_view>

namespace songsweep {

namespace {

/// The folder's own name, short enough to leave room for what a backup adds to it.
std::string shortName(const std::string& folder) {
    constexpr std::size_t longest = 80;
    std::string name = nameOf(folder);
    if (name.empty() || name == "/" || !isUtf8(name)) return "Music";
    if (name.size() > longest) name.resize(longest);
    while (!isUtf8(name))
        name.pop_back();
    return name;
}

/// Tells folders of one name apart.
std::string numberOf(const std::string& folder) {
    std::array<char, 16> text{};
    std::snprintf(text.data(), text.size(), "%08x", static_cast<unsigned>(hash64(folder) & 0xFFFFFFFFU));
    return text.data();
}

} // namespace

bool isFolder(const std::string& path) {
    std::error_code error;
    return std::filesystem::is_directory(path, error);
}

bool isFolderOfMusic(const std::string& path) { return isFolder(path) && usualLibraries(path).empty(); }

Result<FolderLibrary> FolderLibrary::of(const std::string& folder, const std::string& dataFolder) {
    std::error_code error;
    const bool isThere = std::filesystem::is_directory(folder, error);
    if (error) return systemError(error.value(), "open the folder", folder);
    if (!isThere) return Error{Error::Code::invalid, folder + " is no folder"};
    const std::string path = canonicalPath(folder);
    const std::string base = dataFolder + "/songsweep/" + shortName(path) + " " + numberOf(path);
    return FolderLibrary{path, base + ".xml", base + ".memory"};
}

std::optional<FolderLibrary> FolderLibrary::ofLibrary(const std::string& library,
                                                      const std::string& dataFolder) {
    constexpr std::size_t beginningSize = 16384; // a path has 4096 bytes at most, each three when escaped
    constexpr std::string_view key = "<key>Music Folder</key><string>";
    const Result<LibraryFile> file = LibraryFile::open(library);
    if (!file) return {};
    std::string beginning(beginningSize, '\0');
    const Result<std::size_t> count = file.value().read(0, beginning.data(), beginning.size());
    const std::size_t begin = beginning.find(key);
    if (!count || begin == std::string::npos) return {};
    const std::string_view text = std::string_view(beginning).substr(begin + key.size());
    const std::optional<std::string> folder = pathOfFileUrl(text.substr(0, text.find('<')));
    if (!folder) return {};
    const Result<FolderLibrary> place = of(*folder, dataFolder);
    if (!place || canonicalPath(place.value().library) != canonicalPath(library)) return {};
    return place.value();
}

} // namespace songsweep
