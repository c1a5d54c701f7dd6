// SPDX-License-Identifier: MIT
#pragma once

#include "libraryfile/LibraryFile.h"
#include "scan/SoundFormat.h"

#include <string>
#include <string_view>
#include <vector>

namespace songsweep {

/// One entry of a playlist file: what it names, and which bytes are there for it alone.
struct PlaylistEntry {
    /// The file, as bytes that stand in the playlist: a path with either separator, or a URL of any scheme.
    /// An XSPF track may tell of several places, the best first.
    std::vector<std::string> names;

    /// Whole lines where the entry has these to itself, in order: in an M3U its path and the directives for
    /// it ("#EXTINF"), in a PLS all of its number, in an XSPF its "track" element.
    std::vector<ByteRange> parts;

    bool operator==(const PlaylistEntry&) const = default;
};

/// The entries of a playlist file in its order.
///
/// Whatever the bytes, a list comes of them; what cannot be understood is left out, and of an XSPF all behind
/// the place where it is no longer well-formed. Linear, thread-safe.
std::vector<PlaylistEntry> entriesOfPlaylist(std::string_view bytes, PlaylistFormat format);

} // namespace songsweep
