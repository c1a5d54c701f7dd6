// SPDX-License-Identifier: MIT
#include "libraryfile/LibraryRewrite.h"

#include "libraryfile/FileCopy.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <unordered_set>
#include <utility>

namespace songsweep {

namespace {

constexpr const char* temporaryName = ".songsweep-rewriting.tmp";

/// The IDs of the tracks that stay, where IDs repeat; nobody needs them otherwise.
std::unordered_set<std::int64_t> repeatedIdsThatStay(const LibraryIndex& index) {
    std::unordered_set<std::int64_t> ids;
    if (!index.trackIdsRepeat) return ids;
    for (const TrackSlot& track : index.tracks)
        if (!track.deleted) ids.insert(track.trackId);
    return ids;
}

/// Tells which items a rewrite takes out.
class ItemRule {
  public:
    explicit ItemRule(const LibraryIndex& index)
        : m_index(index)
        , m_staying(repeatedIdsThatStay(index)) {}

    bool goes(const ItemSlot& item) const {
        if (item.track == LibraryIndex::noTrack) return false;
        const TrackSlot& track = m_index.tracks[item.track];
        return track.deleted && !m_staying.contains(track.trackId);
    }

  private:
    const LibraryIndex& m_index;
    std::unordered_set<std::int64_t> m_staying;
};

std::int64_t idOf(const LibraryIndex& index, const ItemSlot& item) {
    return item.track == LibraryIndex::noTrack ? -1 : index.tracks[item.track].trackId;
}

bool isSameTrack(const TrackSlot& a, const TrackSlot& b) {
    return a.trackId == b.trackId && a.persistentId == b.persistentId &&
           a.persistentIdKind == b.persistentIdKind && a.length == b.length;
}

bool tracksRemain(const LibraryIndex& original, const LibraryIndex& rewritten) {
    auto next = rewritten.tracks.begin();
    for (const TrackSlot& track : original.tracks) {
        if (track.deleted) continue;
        if (next == rewritten.tracks.end() || !isSameTrack(track, *next)) return false;
        ++next;
    }
    return next == rewritten.tracks.end();
}

bool itemsRemain(const LibraryIndex& original, const PlaylistSlot& before, const LibraryIndex& rewritten,
                 const PlaylistSlot& after, const ItemRule& rule) {
    auto next = after.items.begin();
    for (const ItemSlot& item : before.items) {
        if (rule.goes(item)) continue;
        const bool same = next != after.items.end() && next->length == item.length &&
                          idOf(original, item) == idOf(rewritten, *next);
        if (!same) return false;
        ++next;
    }
    return next == after.items.end() && before.name == after.name;
}

std::string folderOf(const std::string& path) {
    const std::size_t slash = path.rfind('/');
    if (slash == std::string::npos) return ".";
    return slash == 0 ? "/" : path.substr(0, slash);
}

} // namespace

std::vector<ByteRange> rangesOfDeletions(const LibraryIndex& index) {
    std::vector<ByteRange> ranges;
    for (const TrackSlot& track : index.tracks)
        if (track.deleted) ranges.push_back(track.range());
    const ItemRule rule(index);
    for (const PlaylistSlot& playlist : index.playlists)
        for (const ItemSlot& item : playlist.items)
            if (rule.goes(item)) ranges.push_back({playlist.begin + item.begin, item.length});
    const auto byBegin = [](const ByteRange& a, const ByteRange& b) { return a.begin < b.begin; };
    if (!std::is_sorted(ranges.begin(), ranges.end(), byBegin))
        std::sort(ranges.begin(), ranges.end(), byBegin);
    return ranges;
}

bool isRemainderOf(const LibraryIndex& original, const LibraryIndex& rewritten) {
    if (!tracksRemain(original, rewritten)) return false;
    if (original.playlists.size() != rewritten.playlists.size()) return false;
    const ItemRule rule(original);
    for (std::size_t i = 0; i < original.playlists.size(); ++i) {
        if (!itemsRemain(original, original.playlists[i], rewritten, rewritten.playlists[i], rule))
            return false;
    }
    return true;
}

Result<RewrittenLibrary> RewrittenLibrary::write(const LibraryFile& original, const LibraryIndex& index,
                                                 const std::string& path) {
    const std::string temporaryPath = folderOf(path) + "/" + temporaryName;
    ::unlink(temporaryPath.c_str());
    RewrittenLibrary rewritten(temporaryPath);
    const auto copied = copyWithoutRanges(original, rangesOfDeletions(index), temporaryPath);
    if (!copied) return copied.error();

    const auto file = LibraryFile::open(temporaryPath);
    if (!file) return file.error();
    auto readBack = LibraryIndex::read(file.value());
    if (!readBack) return readBack.error();
    if (!isRemainderOf(index, readBack.value()))
        return Error{Error::Code::inputOutput,
                     "what was written of " + path + " does not read back the same"};
    rewritten.m_index = std::move(readBack).value();
    return rewritten;
}

Result<void> RewrittenLibrary::tryToWrite(const LibraryFile& original, const std::string& path) {
    const std::string temporaryPath = folderOf(path) + "/" + temporaryName;
    ::unlink(temporaryPath.c_str());
    const RewrittenLibrary empty(temporaryPath);
    return copyWithoutRanges(original, {{0, original.stamp().size}}, temporaryPath);
}

RewrittenLibrary::RewrittenLibrary(RewrittenLibrary&& other) noexcept
    : m_temporaryPath(std::exchange(other.m_temporaryPath, {}))
    , m_index(std::move(other.m_index)) {}

RewrittenLibrary::~RewrittenLibrary() {
    if (!m_temporaryPath.empty()) ::unlink(m_temporaryPath.c_str());
}

Result<void> RewrittenLibrary::takePlace(const std::string& path, int folderDescriptor) {
    if (std::rename(m_temporaryPath.c_str(), path.c_str()) != 0) return systemError(errno, "write", path);
    m_temporaryPath.clear();
    // The rename is done; a folder that cannot be flushed (some file systems) undoes nothing.
    ::fsync(folderDescriptor);
    return {};
}

} // namespace songsweep
