// SPDX-License-Identifier: MIT
#include "restore/RestoreRun.h"

#include "libraryfile/LibraryReplacement.h"

#include <algorithm>
#include <span>
#include <utility>

namespace songsweep {

namespace {

using Entry = RestoredTrack::Entry;
using File = RestoredTrack::File;
using End = RestoreReport::End;

constexpr std::size_t filesAFlush = 64; // that are moved after one line of the record

RecordedOutcome::File recordedFile(File file) {
    if (file == File::none) return RecordedOutcome::File::notAsked;
    if (file == File::putBack) return RecordedOutcome::File::putBack;
    return file == File::isGone ? RecordedOutcome::File::missing : RecordedOutcome::File::kept;
}

RecordedOutcome recorded(const RestoredTrack& track) {
    using Track = RecordedOutcome::Track;
    RecordedOutcome outcome{Track::notAttempted, recordedFile(track.file), track.reason};
    if (track.entry == Entry::restored) outcome.track = Track::restored;
    if (track.entry == Entry::failed) outcome.track = Track::failed;
    if (track.entry == Entry::isThere && outcome.reason.empty())
        outcome.reason = "it is in the library already";
    return outcome;
}

RecordEnd::How howOf(End end) {
    if (end == End::complete) return RecordEnd::How::complete;
    return end == End::cancelled ? RecordEnd::How::cancelled : RecordEnd::How::failed;
}

/// What is not done yet.
void setBack(std::vector<RestoredTrack>& tracks) {
    for (RestoredTrack& track : tracks) {
        if (track.entry == Entry::restored) track.entry = Entry::notAttempted;
        if (track.file == File::putBack) track.file = File::notAttempted;
    }
}

} // namespace

RestoreRun::RestoreRun(LibraryRestore& restore, CleanupRecord& record, Trash& trash,
                       const std::vector<RecordedPlaylist>& playlists, RestoreReport report)
    : m_restore(restore)
    , m_record(record)
    , m_trash(trash)
    , m_playlists(playlists)
    , m_report(std::move(report)) {
    m_report.backup = restore.backup();
    m_report.record = record.path();
}

Result<void> RestoreRun::plan() {
    for (const RestoredTrack& track : m_report.tracks)
        m_record.plan(track.plan);
    return m_record.planned();
}

RestoreReport RestoreRun::carryOut(const std::vector<FileReturn>& files, const RestoreTask& task) {
    setBack(m_report.tracks);
    if (task.isCancelled()) return leaveNothing();
    if (writeEntries()) moveFiles(files, task);
    forgetMoved(files);
    m_report.setPlaylists(PlaylistRestoring(m_playlists, m_report.filesThere()).carryOut());
    writeOutcomes();
    return std::move(m_report);
}

RestoreReport RestoreRun::leaveNothing() {
    m_record.discard();
    m_restore.abandon();
    m_report.end = End::cancelled;
    m_report.backup.clear();
    m_report.record.clear();
    return std::move(m_report);
}

bool RestoreRun::writeEntries() {
    if (m_restore.expected().tracks == 0) return true;
    if (const Result<void> told = m_record.writing(m_restore.expected().tracks); !told) {
        fail(told.error());
        return false;
    }
    const Result<LibraryRestore::Outcome> written = m_restore.write();
    if (!written) {
        for (RestoredTrack& track : m_report.tracks)
            if (track.entry == Entry::notAttempted) track.entry = Entry::failed;
        fail(written.error());
        return false;
    }
    m_record.written();
    m_report.setEntries(written.value());
    if (m_restore.isNarrowed()) m_report.notes.push_back(noteOfNarrowness(m_restore.library()));
    return true;
}

void RestoreRun::moveFiles(const std::vector<FileReturn>& files, const RestoreTask& task) {
    std::vector<std::size_t> coming;
    for (std::size_t track = 0; track < files.size(); ++track)
        if (files[track].fate == FileReturn::Fate::comesBack) coming.push_back(track);
    const std::size_t entries = m_report.entries();
    for (std::size_t i = 0; i < coming.size(); ++i) {
        task.progress(entries + i, entries + coming.size());
        if (task.isCancelled()) {
            m_report.end = End::cancelled;
            return;
        }
        const std::size_t ahead = std::min(filesAFlush, coming.size() - i);
        if (i % filesAFlush == 0)
            if (const auto told = m_record.trashing(std::span(coming).subspan(i, ahead)); !told)
                return fail(told.error());
        moveFile(coming[i], files[coming[i]].place);
    }
}

void RestoreRun::moveFile(std::size_t index, const TrashedFile& place) {
    RestoredTrack& track = m_report.tracks[index];
    const Result<RestoredFile> moved = m_trash.restoreFromTrash(place, track.plan.path);
    if (moved) {
        track.file = File::putBack;
        return m_record.trashed(index, place);
    }
    if (moved.error().code == Error::Code::notFound) return track.setFileGone();
    if (moved.error().code == Error::Code::alreadyExists) return track.setFileOccupied();
    track.setFile(File::failed, "its file stays in the Trash: " + moved.error().message);
}

/// A program that was killed in the middle of a move left its file in its place and a record in the Trash.
void RestoreRun::forgetMoved(const std::vector<FileReturn>& files) {
    for (std::size_t track = 0; track < files.size(); ++track)
        if (files[track].fate == FileReturn::Fate::isThere && !files[track].place.name.empty())
            (void)m_trash.restoreFromTrash(files[track].place, m_report.tracks[track].plan.path);
}

void RestoreRun::fail(const Error& error) {
    m_report.end = End::failed;
    m_report.problem = error.message;
}

void RestoreRun::writeOutcomes() {
    for (std::size_t track = 0; track < m_report.tracks.size(); ++track)
        m_record.outcome(track, recorded(m_report.tracks[track]));
    if (const Result<void> ended = m_record.end(howOf(m_report.end), m_report.problem);
        !ended && m_report.end != End::failed)
        fail(ended.error());
}

} // namespace songsweep
