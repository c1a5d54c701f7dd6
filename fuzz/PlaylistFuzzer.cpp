// SPDX-License-Identifier: MIT
//
// Any bytes as a playlist file, the first one choosing its format: the parts of its entries lie in it, one
// behind the other; and what a deletion cuts out of it, a restore puts back byte for byte.
#include "Check.h"
#include "scan/PlaylistCuts.h"
#include "scan/PlaylistMeanings.h"
#include "scan/PlaylistReturn.h"

#include <algorithm>

namespace {

using namespace songsweep;

const std::string folder = "/no/such/folder";

struct Kind {
    PlaylistFormat format;
    std::string name;
};

Kind kindOf(std::uint8_t byte) {
    const Kind kinds[] = {{PlaylistFormat::m3u, "list/x.m3u"},
                          {PlaylistFormat::pls, "list/x.pls"},
                          {PlaylistFormat::xspf, "list/x.xspf"}};
    return kinds[byte % 3];
}

void checkParts(const std::vector<PlaylistEntry>& entries, std::size_t size) {
    std::vector<ByteRange> parts;
    for (const PlaylistEntry& entry : entries)
        parts.insert(parts.end(), entry.parts.begin(), entry.parts.end());
    std::sort(parts.begin(), parts.end(), [](ByteRange a, ByteRange b) { return a.begin < b.begin; });
    std::uint64_t end = 0;
    for (const ByteRange& part : parts) {
        fuzz::check(part.begin >= end && part.length <= size && part.begin <= size - part.length,
                    "parts of entries overlap or lie outside of the file");
        end = part.begin + part.length;
    }
}

/// Every other entry is one of a file that goes.
GoneFiles goneOf(const std::vector<PlaylistEntry>& entries, const std::string& playlist) {
    GoneFiles gone(folder);
    for (std::size_t i = 0; i < entries.size(); i += 2)
        for (const std::string& name : entries[i].names)
            for (const std::string& path : meaningsOf(name, playlist, folder))
                gone.add(folder + "/" + path);
    return gone;
}

void checkReturn(std::string_view bytes, const std::string& playlist, const GoneFiles& gone) {
    Result<RecordedPlaylist> cuts = playlistCuts(bytes, playlist, gone);
    if (!cuts) return;
    cuts.value().path = folder + "/" + playlist;
    const std::string rest = withoutCuts(bytes, cuts.value());
    const PlaylistReturn back = returnLines(rest, cuts.value(), [](const std::string&) { return true; });
    fuzz::check(back.isComplete, "a line has no place in a playlist that nobody changed");
    fuzz::check(back.bytes == bytes, "a playlist is not as it was");
    static_cast<void>(returnLines(bytes, cuts.value(), [](const std::string&) { return true; }));
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    if (size == 0) return 0;
    const Kind kind = kindOf(data[0]);
    const std::string_view bytes = fuzz::textOf(data + 1, size - 1);
    const std::vector<PlaylistEntry> entries = entriesOfPlaylist(bytes, kind.format);
    checkParts(entries, bytes.size());
    checkReturn(bytes, kind.name, goneOf(entries, kind.name));
    return 0;
}
