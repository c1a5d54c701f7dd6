// SPDX-License-Identifier: MIT
#include "scan/PlaylistEntries.h"

#include "platform/Ascii.h"
#include "scan/XspfPlaylist.h"

#include <algorithm>
#include <array>
#include <optional>
#include <unordered_map>
#include <utility>

namespace songsweep {

namespace {

std::string_view withoutBlanks(std::string_view text) {
    constexpr std::string_view blanks = " \t";
    const std::size_t begin = text.find_first_not_of(blanks);
    if (begin == std::string_view::npos) return {};
    return text.substr(begin, text.find_last_not_of(blanks) - begin + 1);
}

/// Calls back for each line, without its end and the blanks around it, and with the range of it and its end,
/// which may be "\r" alone.
template <class Callback>
void forEachLine(std::string_view bytes, Callback callback) {
    constexpr std::string_view mark = "\xEF\xBB\xBF";
    for (std::size_t begin = bytes.starts_with(mark) ? mark.size() : 0; begin < bytes.size();) {
        const std::size_t length = std::min(bytes.find_first_of("\r\n", begin), bytes.size()) - begin;
        const std::size_t feeds = bytes.substr(begin + length).starts_with("\r\n") ? 2 : 1;
        const std::size_t end = std::min(begin + length + feeds, bytes.size());
        callback(withoutBlanks(bytes.substr(begin, length)), ByteRange{begin, end - begin});
        begin = end;
    }
}

/// Directives that are about the next path, and not about the list.
bool isForNextPath(std::string_view line) {
    constexpr std::array<std::string_view, 3> directives{"#extinf", "#extvlcopt", "#extbyt"};
    const auto begins = [&](std::string_view directive) {
        return asciiLower(std::string(line.substr(0, directive.size()))) == directive;
    };
    return line.starts_with('#') && std::any_of(directives.begin(), directives.end(), begins);
}

std::vector<PlaylistEntry> entriesOfM3u(std::string_view bytes) {
    std::vector<PlaylistEntry> entries;
    std::vector<ByteRange> parts;
    forEachLine(bytes, [&](std::string_view line, ByteRange range) {
        const bool isPath = !line.empty() && line.front() != '#';
        if (isPath || isForNextPath(line)) parts.push_back(range);
        if (isPath) entries.push_back({{std::string(line)}, std::exchange(parts, {})});
    });
    return entries;
}

/// "File12=path", in any letter case.
struct PlsLine {
    std::string key; ///< "file"
    std::string number;
    std::string_view value;

    static std::optional<PlsLine> parse(std::string_view line) {
        const std::size_t equals = std::min(line.find('='), line.size());
        const std::string_view name = withoutBlanks(line.substr(0, equals));
        const std::size_t digits = std::min(name.find_first_of("0123456789"), name.size());
        if (equals == line.size() || name.find_first_not_of("0123456789", digits) != std::string_view::npos)
            return {};
        return PlsLine{asciiLower(std::string(name.substr(0, digits))), std::string(name.substr(digits)),
                       withoutBlanks(line.substr(equals + 1))};
    }
};

/// Of a number that comes twice, both files are names of the one entry.
std::vector<PlaylistEntry> entriesOfPls(std::string_view bytes) {
    std::vector<PlaylistEntry> entries;
    std::unordered_map<std::string, std::size_t> byNumber;
    forEachLine(bytes, [&](std::string_view text, ByteRange) {
        const std::optional<PlsLine> line = PlsLine::parse(text);
        if (!line || line->key != "file" || line->value.empty()) return;
        const auto [place, isNew] = byNumber.try_emplace(line->number, entries.size());
        if (isNew) entries.emplace_back();
        entries[place->second].names.emplace_back(line->value);
    });
    forEachLine(bytes, [&](std::string_view text, ByteRange range) {
        const std::optional<PlsLine> line = PlsLine::parse(text);
        if (!line || (line->key != "file" && line->key != "title" && line->key != "length")) return;
        if (const auto place = byNumber.find(line->number); place != byNumber.end())
            entries[place->second].parts.push_back(range);
    });
    return entries;
}

} // namespace

std::vector<PlaylistEntry> entriesOfPlaylist(std::string_view bytes, PlaylistFormat format) {
    switch (format) {
    case PlaylistFormat::m3u:
        return entriesOfM3u(bytes);
    case PlaylistFormat::pls:
        return entriesOfPls(bytes);
    case PlaylistFormat::xspf:
        return entriesOfXspf(bytes);
    }
    return {};
}

} // namespace songsweep
