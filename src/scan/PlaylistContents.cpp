// SPDX-License-Identifier: MIT
#include "scan/PlaylistContents.h"

#include "libraryfile/Leftovers.h"
#include "libraryfile/LibraryReplacement.h"
#include "platform/LocalName.h"

#include <utility>

namespace songsweep {

namespace {

constexpr std::uint64_t largestPlaylist = std::uint64_t{64} << 20;

} // namespace

Result<PlaylistContents> PlaylistContents::read(const std::string& path) {
    Result<LibraryFile> file = LibraryFile::open(path);
    if (!file) return file.error();
    const FileStamp stamp = file.value().stamp();
    if (stamp.size > largestPlaylist)
        return Error{Error::Code::invalid, path + " is too large for a playlist"};
    Result<std::string> bytes = file.value().read({0, stamp.size});
    if (!bytes) return bytes.error();
    return PlaylistContents(std::move(file).value(), stamp, std::move(bytes).value());
}

Result<void> PlaylistContents::replace(std::string_view bytes) const {
    const std::string path = canonicalPath(m_file.path());
    if (Result<void> removed = removeLeftovers(path); !removed) return removed;
    LibraryReplacement replacement(path);
    Result<TemporaryFile> version = replacement.write(m_file, {FilePiece{nullptr, {}, std::string(bytes)}});
    if (!version) return version.error();
    return replacement.put(version.value(), m_stamp);
}

} // namespace songsweep
