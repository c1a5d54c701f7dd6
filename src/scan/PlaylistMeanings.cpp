// SPDX-License-Identifier: MIT
#include "scan/PlaylistMeanings.h"

#include "library/LocationUrl.h"
#include "platform/Ascii.h"
#include "platform/Utf8.h"

#include <algorithm>
#include <filesystem>

namespace songsweep {

namespace {

std::string withSlashes(std::string text) {
    std::replace(text.begin(), text.end(), '\\', '/');
    return text;
}

std::string utf8OfLatin1(std::string_view text) {
    std::string utf8;
    for (const char c : text) {
        const auto byte = static_cast<unsigned char>(c);
        if (byte < 0x80) {
            utf8 += c;
        } else {
            utf8 += static_cast<char>(0xC0U | (byte >> 6U));
            utf8 += static_cast<char>(0x80U | (byte & 0x3FU));
        }
    }
    return utf8;
}

/// The path below the folder; nothing where it leads out of it.
std::string belowFolder(const std::string& path, const std::string& playlist, const std::string& folder) {
    namespace fs = std::filesystem;
    const fs::path absolute = (fs::path(folder) / playlist).parent_path() / path;
    const std::string normal = absolute.lexically_normal().string();
    return normal.starts_with(folder + "/") ? normal.substr(folder.size() + 1) : std::string();
}

} // namespace

std::vector<std::string> meaningsOf(const std::string& name, const std::string& playlist,
                                    const std::string& folder) {
    std::vector<std::string> meanings;
    const auto add = [&](const std::string& path) {
        if (std::string below = belowFolder(path, playlist, folder); !below.empty())
            meanings.push_back(std::move(below));
    };
    if (asciiLower(name.substr(0, 5)) == "file:") {
        if (const auto path = pathOfFileUrl(name)) add(*path);
        return meanings;
    }
    add(name);
    if (name.find('\\') != std::string::npos) add(withSlashes(name));
    if (!isUtf8(name)) add(utf8OfLatin1(withSlashes(name)));
    // An XSPF file has references, in which blanks and umlauts are escaped, without a scheme.
    if (name.find('%') != std::string::npos)
        if (const auto path = pathOfFileUrl("file:///" + name))
            add(path->substr(name.starts_with('/') ? 0 : 1));
    return meanings;
}

} // namespace songsweep
