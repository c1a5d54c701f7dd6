// SPDX-License-Identifier: MIT
#include "scan/PlaylistCuts.h"

#include "scan/Hash64.h"

#include <algorithm>
#include <vector>

namespace songsweep {

namespace {

using Cut = RecordedPlaylist::Cut;
using Names = std::vector<std::vector<std::string>>;

constexpr std::size_t longestNeighbour = 1000; // bytes, enough to find the place again

/// The line that ends there, or its last part.
std::string lineBefore(std::string_view text, std::size_t at) {
    if (at == 0) return {};
    const std::size_t feed = at == 1 ? std::string_view::npos : text.rfind('\n', at - 2);
    const std::size_t begin = feed == std::string_view::npos ? 0 : feed + 1;
    const std::size_t length = std::min(at - begin, longestNeighbour);
    return std::string(text.substr(at - length, length));
}

/// The line that begins there, or its first part.
std::string lineBehind(std::string_view text, std::size_t at) {
    if (at >= text.size()) return {};
    const std::size_t end = std::min(text.find('\n', at), text.size() - 1) + 1;
    return std::string(text.substr(at, std::min(end - at, longestNeighbour)));
}

/// Neighbouring parts as one.
void addCuts(std::vector<Cut>& cuts, std::size_t number, const PlaylistEntry& entry, const std::string& file,
             std::string_view bytes) {
    std::uint64_t end = UINT64_MAX;
    for (const ByteRange& part : entry.parts) {
        const std::string_view text = bytes.substr(part.begin, part.length);
        if (part.begin == end) {
            cuts.back().bytes += text;
        } else {
            cuts.push_back({number, part.begin, file, std::string(text), {}, {}});
        }
        end = part.end();
    }
}

void addNeighbours(std::vector<Cut>& cuts, std::string_view rest) {
    std::uint64_t removed = 0;
    for (Cut& cut : cuts) {
        const auto at = static_cast<std::size_t>(cut.at - removed);
        cut.before = lineBefore(rest, at);
        cut.after = lineBehind(rest, at);
        removed += cut.bytes.size();
    }
}

Names namesOf(const std::vector<PlaylistEntry>& entries) {
    Names names;
    for (const PlaylistEntry& entry : entries)
        names.push_back(entry.names);
    return names;
}

} // namespace

Result<RecordedPlaylist> playlistCuts(std::string_view bytes, const std::string& playlist,
                                      const GoneFiles& gone) {
    const PlaylistFormat format = playlistFormatOf(playlist).value_or(PlaylistFormat::m3u);
    const std::vector<PlaylistEntry> entries = entriesOfPlaylist(bytes, format);
    RecordedPlaylist recorded;
    Names staying;
    for (std::size_t number = 0; number < entries.size(); ++number) {
        if (const auto file = gone.namedBy(entries[number], playlist)) {
            addCuts(recorded.cuts, number, entries[number], *file, bytes);
        } else {
            staying.push_back(entries[number].names);
        }
    }
    if (recorded.cuts.empty()) return recorded;
    std::sort(recorded.cuts.begin(), recorded.cuts.end(),
              [](const Cut& one, const Cut& other) { return one.at < other.at; });
    const std::string rest = withoutCuts(bytes, recorded);
    if (namesOf(entriesOfPlaylist(rest, format)) != staying)
        return Error{Error::Code::failed, "its lines cannot be taken out by themselves"};
    addNeighbours(recorded.cuts, rest);
    recorded.hash = hash64(rest);
    return recorded;
}

std::string withoutCuts(std::string_view bytes, const RecordedPlaylist& playlist) {
    std::string rest;
    std::uint64_t end = 0;
    for (const Cut& cut : playlist.cuts) {
        rest += bytes.substr(end, cut.at - end);
        end = cut.at + cut.bytes.size();
    }
    return rest.append(bytes.substr(end));
}

} // namespace songsweep
