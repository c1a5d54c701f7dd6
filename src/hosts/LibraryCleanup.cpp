// SPDX-License-Identifier: MIT
#include "hosts/LibraryCleanup.h"

#include "hosts/EmbeddedLibrary.h"
#include "libraryfile/LibraryReplacement.h"
#include "scan/PlaylistRewriting.h"

#include <algorithm>
#include <iterator>
#include <unordered_map>
#include <unordered_set>
#include <utility>

namespace songsweep {

namespace {

constexpr std::size_t filesABatch = 64; // that are written down, on the disk, before they are moved

std::vector<std::size_t> tracksOf(std::span<const HeldFile> files) {
    std::vector<std::size_t> tracks;
    for (const HeldFile& file : files)
        tracks.insert(tracks.end(), file.tracks.begin(), file.tracks.end());
    return tracks;
}

/// The track IDs of a version of the library; thousands of tracks may have one persistent ID.
class PresentIds {
  public:
    explicit PresentIds(LibraryDocument& library)
        : m_library(library) {}

    /// The ID that was planned; nothing is known where another track has it now.
    std::int64_t of(const RecordedTrack& track) {
        const auto [known, isNew] = m_ids.try_emplace(track.persistentId);
        if (isNew)
            for (const auto position : m_library.tracksWithPersistentId(track.persistentId))
                known->second.insert(m_library.trackId(position));
        return known->second.contains(track.trackId) ? track.trackId : -1;
    }

  private:
    LibraryDocument& m_library;
    std::unordered_map<std::string, std::unordered_set<std::int64_t>> m_ids;
};

} // namespace

Result<void> LibraryCleanup::lock(const CleanupLock::Request& request) {
    m_library.beginScript();
    const auto document = m_library.document();
    return document ? document.value()->lockForCleanup(request) : Result<void>(document.error());
}

void LibraryCleanup::unlock() {
    if (!isOn() && !m_isMerging && m_library.opened() != nullptr) m_library.opened()->endCleanup();
}

Result<void> LibraryCleanup::begin(const CleanupLock::Request& request, CleanupPlan plan) {
    if (m_merges.empty() && m_library.opened() != nullptr) forgetMerges(*m_library.opened());
    if (m_library.opened() != nullptr && !m_isMerging)
        if (auto written = m_write(*m_library.opened()); !written) return written;
    m_library.beginScript();
    const auto document = m_library.document();
    if (!document) return document.error();
    LibraryDocument& library = *document.value();
    auto begun = library.beginCleanup(request);
    if (begun && library.lostChanges()) begun = *library.lostChanges();
    if (begun) begun = beginRecord(library, std::move(plan));
    if (!begun) {
        library.abandonCleanup();
        forgetMerges(library);
    }
    return begun;
}

Result<void> LibraryCleanup::beginMerge(const CleanupLock::Request& request) {
    if (m_library.opened() != nullptr)
        if (auto written = m_write(*m_library.opened()); !written) return written;
    m_library.beginScript();
    const auto document = m_library.document();
    if (!document) return document.error();
    auto bound = document.value()->bindChangesToVersion(request);
    m_isMerging = bound.hasValue();
    m_merges.clear();
    return bound;
}

void LibraryCleanup::noteMerge(const MergedSong& song) {
    if (m_library.opened() == nullptr) return;
    LibraryDocument& library = *m_library.opened();
    const auto kept = library.tracksWithPersistentId(song.keptId);
    if (kept.empty()) return; // Another program changed the library, which the next step finds.
    PendingMerge merge;
    merge.kept = kept.front();
    merge.record = {song.keptId, library.trackId(merge.kept), {}, song.places, {}};
    for (const MergedSong::Removed& removed : song.removed) {
        std::ranges::copy(library.tracksWithPersistentId(removed.persistentId),
                          std::back_inserter(merge.removed));
        merge.record.removed.push_back(removed.number);
    }
    m_merges.push_back(std::move(merge));
}

void LibraryCleanup::abandonMerge() {
    if (m_library.opened() == nullptr) return;
    m_library.opened()->endCleanup();
    forgetMerges(*m_library.opened());
}

void LibraryCleanup::forgetMerges(LibraryDocument& library) {
    if (m_isMerging) library.rollback();
    m_isMerging = false;
    m_merges.clear();
}

/// Where one of its copies stays after all, the others stay with it, and the kept one is as it was.
void LibraryCleanup::withdrawIncompleteMerges(LibraryDocument& library) {
    m_isMerging = false;
    std::vector<LibraryDocument::TrackPosition> changed;
    std::vector<LibraryDocument::TrackPosition> deleted;
    for (const PendingMerge& merge : std::exchange(m_merges, {})) {
        if (std::ranges::all_of(merge.removed, [&](auto track) { return library.isDeleted(track); }))
            continue;
        changed.push_back(merge.kept);
        deleted.insert(deleted.end(), merge.removed.begin(), merge.removed.end());
    }
    if (!changed.empty()) library.withdraw(changed, deleted);
}

Result<void> LibraryCleanup::beginRecord(LibraryDocument& library, CleanupPlan plan) {
    RecordHeading heading = library.cleanupHeading();
    heading.program = std::move(plan.program);
    heading.tracks = plan.tracks.size();
    heading.withFiles = plan.withFiles;
    const std::string backup = heading.backup;
    m_notes.clear();
    if (heading.isNarrowed) m_notes.push_back(noteOfNarrowness(heading.library));
    m_version = heading.version;
    auto record = CleanupRecord::create(std::move(heading));
    if (!record) return record.error();
    PresentIds ids(library);
    for (RecordedTrack& track : plan.tracks) {
        track.trackId = ids.of(track);
        record.value().plan(track);
    }
    if (auto noted = recordMerges(library, record.value()); !noted) {
        record.value().discard();
        return noted;
    }
    if (auto planned = record.value().planned(); !planned) {
        record.value().discard();
        return planned;
    }
    m_backup = backup;
    m_recordPath = record.value().path();
    m_record = std::move(record).value();
    m_plan = std::move(plan.tracks);
    noteUsers();
    m_fates.assign(m_plan.size(), std::nullopt);
    m_written.assign(m_plan.size(), false);
    m_firstUnwritten = 0;
    m_track = 0;
    m_hasActed = false;
    m_error.reset();
    return {};
}

Result<void> LibraryCleanup::recordMerges(LibraryDocument& library, CleanupRecord& record) {
    for (PendingMerge& merge : m_merges) {
        auto values = library.changedValues(merge.kept);
        if (!values) return values.error();
        merge.record.values = std::move(values).value();
        record.merge(merge.record);
    }
    return {};
}

void LibraryCleanup::noteUsers() {
    m_users.clear();
    for (std::size_t track = 0; track < m_plan.size(); ++track)
        if (m_plan[track].file != FileStamp()) m_users[m_plan[track].file].push_back(track);
}

bool LibraryCleanup::beginTrack(std::size_t number) {
    m_track = number;
    return !m_error;
}

void LibraryCleanup::holdFile(const std::string& path) {
    m_files.hold({path, m_plan[m_track].file}, m_track);
}

Result<void> LibraryCleanup::write(LibraryDocument& library) {
    if (m_error) {
        library.rollback(); // What was told meanwhile is not written either.
        return *m_error;
    }
    if (m_isMerging && !library.lostChanges()) withdrawIncompleteMerges(library);
    auto written = writeLibrary(library);
    if (written) written = moveFiles(library);
    if (!written) m_error = written.error();
    return written;
}

Result<void> LibraryCleanup::writeLibrary(LibraryDocument& library) {
    if (library.pendingDeletions() == 0) return m_write(library);
    m_hasActed = true;
    auto noted = m_record->writing(library.pendingDeletions());
    if (!noted) library.rollback();
    auto written = m_write(library);
    if (!noted) return noted;
    if (!written) return written;
    m_record->written();
    noteBackup(library);
    noteWritten(library);
    return {};
}

/// It was made again where another program had written the library before the first write.
void LibraryCleanup::noteBackup(const LibraryDocument& library) {
    const FileStamp version = library.cleanupHeading().version;
    if (version == m_version) return;
    m_record->backedUpAgain(version);
    m_version = version;
}

/// The track in hand may have been told but in part; it is looked at again after the next write.
void LibraryCleanup::noteWritten(LibraryDocument& library) {
    for (std::size_t track = m_firstUnwritten; track <= m_track; ++track)
        m_written[track] = library.tracksWithPersistentId(m_plan[track].persistentId).empty();
    m_firstUnwritten = m_track;
}

Result<void> LibraryCleanup::moveFiles(LibraryDocument& library) {
    const auto files = m_files.take([&](const HeldFile& file) { return isGone(file, library); });
    m_hasActed |= !files.empty();
    Result<void> noted;
    for (std::span<const HeldFile> rest = files; !rest.empty();) {
        const auto batch = rest.first(std::min(filesABatch, rest.size()));
        if (noted) noted = m_record->trashing(tracksOf(batch));
        for (const HeldFile& file : batch)
            settle(file, noted ? file.moveTo(m_trash) : Result<TrashedFile>(noted.error()));
        rest = rest.subspan(batch.size());
    }
    return noted;
}

/// Nor must a track of the plan lose it whose turn is still to come, or that could not be deleted.
bool LibraryCleanup::isGone(const HeldFile& file, LibraryDocument& library) const {
    const auto users = m_users.find(file.stamp);
    return areGone(file.tracks, library) && (users == m_users.end() || areGone(users->second, library));
}

bool LibraryCleanup::areGone(const std::vector<std::size_t>& tracks, LibraryDocument& library) const {
    return std::all_of(tracks.begin(), tracks.end(), [&](std::size_t track) {
        return library.tracksWithPersistentId(m_plan[track].persistentId).empty();
    });
}

Error LibraryCleanup::reasonToKeep(const HeldFile& file) const {
    const bool isOfOther = m_library.opened() != nullptr && areGone(file.tracks, *m_library.opened());
    return {Error::Code::failed, isOfOther ? "another track that uses it is still in the library"
                                           : "its track is still in the library"};
}

void LibraryCleanup::settle(const HeldFile& file, const Result<TrashedFile>& fate) {
    for (const std::size_t track : file.tracks) {
        m_fates[track] = fate;
        if (fate) m_record->trashed(track, fate.value());
    }
}

Result<void> LibraryCleanup::finish() {
    Result<void> written;
    if (m_library.opened() != nullptr) written = write(*m_library.opened());
    for (const HeldFile& file : m_files.takeAll())
        settle(file, reasonToKeep(file));
    m_library.beginScript(); // What is told from here on is what the disk says, whatever a write said.
    static_cast<void>(m_library.document());
    if (m_hasActed) rewritePlaylists();
    return written;
}

/// Last, as a line goes only with its file: a track whose file stays is found again by the next scan.
void LibraryCleanup::rewritePlaylists() {
    std::vector<std::string> paths;
    for (std::size_t track = 0; track < m_plan.size(); ++track)
        if (!m_plan[track].path.empty() && !hasTrack(track)) paths.push_back(m_plan[track].path);
    for (std::string& note : songsweep::rewritePlaylists(m_library.path(), paths, *m_record))
        m_notes.push_back(std::move(note));
}

bool LibraryCleanup::hasTrack(std::size_t number) const {
    LibraryDocument* const document = m_library.opened();
    if (m_library.error() || document == nullptr) return !m_written[number];
    return !document->tracksWithPersistentId(m_plan[number].persistentId).empty();
}

Result<void> LibraryCleanup::end(std::span<const RecordedOutcome> outcomes, RecordEnd::How how,
                                 const std::string& reason) {
    if (!isOn()) return {};
    m_isMerging = false;
    m_merges.clear();
    if (!m_hasActed && !m_error) {
        leaveNothing();
        m_plan.clear();
        return {};
    }
    for (std::size_t track = 0; track < outcomes.size(); ++track)
        m_record->outcome(track, outcomes[track]);
    auto ended = m_record->end(how, reason);
    m_record.reset();
    if (m_library.opened() != nullptr) m_library.opened()->endCleanup();
    m_plan.clear();
    m_error.reset();
    return ended;
}

void LibraryCleanup::endAtOnce() {
    if (isOn() && !m_hasActed && !m_error) leaveNothing();
}

void LibraryCleanup::leaveNothing() {
    m_record->discard();
    m_record.reset();
    if (m_library.opened() != nullptr) m_library.opened()->abandonCleanup();
    m_backup.clear();
    m_recordPath.clear();
}

} // namespace songsweep
