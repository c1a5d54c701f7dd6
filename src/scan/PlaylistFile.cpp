// SPDX-License-Identifier: MIT
#include "scan/PlaylistFile.h"

#include "library/LocationUrl.h"
#include "platform/Ascii.h"
#include "platform/Utf8.h"
#include "scan/XspfPlaylist.h"

#include <algorithm>
#include <filesystem>

namespace songsweep {

namespace {

std::string_view withoutBlanks(std::string_view text) {
    constexpr std::string_view blanks = " \t\r";
    const std::size_t begin = text.find_first_not_of(blanks);
    if (begin == std::string_view::npos) return {};
    return text.substr(begin, text.find_last_not_of(blanks) - begin + 1);
}

/// Calls back for each line, without its end and the blanks around it; "\r" alone ends one, too.
template <class Callback>
void forEachLine(std::string_view bytes, Callback callback) {
    constexpr std::string_view mark = "\xEF\xBB\xBF";
    if (bytes.starts_with(mark)) bytes.remove_prefix(mark.size());
    while (!bytes.empty()) {
        const std::size_t end = std::min(bytes.find_first_of("\r\n"), bytes.size());
        callback(withoutBlanks(bytes.substr(0, end)));
        bytes.remove_prefix(std::min(end + 1, bytes.size()));
    }
}

std::vector<std::string> namesInM3u(std::string_view bytes) {
    std::vector<std::string> names;
    forEachLine(bytes, [&](std::string_view line) {
        if (!line.empty() && line.front() != '#') names.emplace_back(line);
    });
    return names;
}

/// "File12=path", in any letter case.
std::vector<std::string> namesInPls(std::string_view bytes) {
    constexpr std::string_view key = "file";
    std::vector<std::string> names;
    forEachLine(bytes, [&](std::string_view line) {
        const std::size_t equals = line.find('=');
        if (equals == std::string_view::npos || asciiLower(std::string(line.substr(0, key.size()))) != key)
            return;
        if (line.substr(0, equals).find_first_not_of("0123456789 ", key.size()) != std::string_view::npos)
            return;
        if (const std::string_view name = withoutBlanks(line.substr(equals + 1)); !name.empty())
            names.emplace_back(name);
    });
    return names;
}

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

std::vector<std::string> namesInPlaylist(std::string_view bytes, PlaylistFormat format) {
    switch (format) {
    case PlaylistFormat::m3u:
        return namesInM3u(bytes);
    case PlaylistFormat::pls:
        return namesInPls(bytes);
    case PlaylistFormat::xspf:
        return namesInXspf(bytes);
    }
    return {};
}

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
