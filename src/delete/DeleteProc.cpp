// SPDX-License-Identifier: MIT
#include "delete/DeleteProc.h"

#include "delete/Cleanup.h"
#include "delete/DeleteTexts.h"
#include "delete/Obstacles.h"
#include "library/WorkerEvent.h"
#include "operations/NotificationCenter.h"
#include "platform/Log.h"
#include "scripting/AppleScript.h"
#include "scripting/TextLiteral.h"

#include <exception>

namespace songsweep {

namespace {

constexpr const char* lastCopyReason = "the copy that was to stay is no longer there, or does not work";

} // namespace

/// Compacts a list front to back: rows that stay move down over those that went, and the list is cut to its
/// new length when the compaction ends, however the loop does.
class DeleteProc::Compaction {
  public:
    explicit Compaction(std::vector<TrackRecord*>& rows)
        : m_rows(rows) {}
    Compaction(const Compaction&) = delete;
    Compaction& operator=(const Compaction&) = delete;
    ~Compaction() {
        m_rows.erase(m_rows.begin() + static_cast<std::ptrdiff_t>(m_kept),
                     m_rows.begin() + static_cast<std::ptrdiff_t>(m_next));
    }

    TrackRecord& record() const { return *m_rows[m_next]; }
    void keep() { m_rows[m_kept++] = m_rows[m_next++]; }
    void remove() { ++m_next; }

  private:
    std::vector<TrackRecord*>& m_rows;
    std::size_t m_kept = 0;
    std::size_t m_next = 0;
};

DeleteProc::DeleteProc(DisplayedList& list, bool isDelFile, DeleteServices services, DeletePlan plan)
    : m_list(list)
    , m_isDelFile(isDelFile)
    , m_services(services)
    , m_keptSongs(std::move(plan.keptSongs))
    , m_merge(std::move(plan.merge))
    , m_fileDeletion(services.scripts, services.files, std::move(plan)) {}

void DeleteProc::main() {
    std::exception_ptr failure;
    if (!m_list.rows.empty() && begin() && deleteAll(failure))
        m_services.center.post({EventName::deleteValidity, {}, this});
    postEnd();
    if (failure) std::rethrow_exception(failure);
}

bool DeleteProc::begin() {
    const auto files = m_isDelFile ? Cleanup::Files::go : Cleanup::Files::stay;
    const Result<void> begun = m_services.cleanup.begin(plannedTracks(), files);
    if (!begun) {
        m_report->notBegun = begun.error().message;
        noteNotAttempted();
    }
    return begun.hasValue();
}

/// One for each outcome that is to come, in the same order.
std::vector<RecordedTrack> DeleteProc::plannedTracks() const {
    std::vector<RecordedTrack> tracks;
    for (const TrackRecord* const record : m_list.rows)
        if (record->checkbox) tracks.push_back(m_fileDeletion.planFor(*record, m_isDelFile));
    return tracks;
}

/// True when every row was visited and the library is written.
bool DeleteProc::deleteAll(std::exception_ptr& failure) {
    bool completed = false;
    try {
        (void)run(deleteTexts::mute);
        completed = deleteRows();
    } catch (...) {
        failure = std::current_exception();
    }
    finish();
    endCleanup(failure     ? RecordEnd::How::failed
               : completed ? RecordEnd::How::complete
                           : RecordEnd::How::cancelled);
    unmute(failure);
    return completed && !hasFailed();
}

/// What is told of a track is what the library on the disk says.
void DeleteProc::finish() {
    const Result<void> written = m_services.cleanup.finish();
    if (!written) m_report->notWritten = written.error().message;
    for (std::size_t number = 0; number < m_report->outcomes.size(); ++number) {
        DeleteOutcome& outcome = m_report->outcomes[number];
        if (outcome.track != DeleteOutcome::Track::deleted || !m_services.cleanup.hasTrack(number)) continue;
        outcome.track = DeleteOutcome::Track::failed;
        outcome.dealtWith = false;
        outcome.merged.reset();
        outcome.addReason(written ? "the library still has it" : "the library was not written");
    }
    m_report->merge = m_merge.counts;
    m_report->countMerge();
    m_fileDeletion.settle(m_report->outcomes, m_services.cleanup);
    m_report->notes = m_services.cleanup.traces().notes;
    noteNotAttempted();
}

void DeleteProc::endCleanup(RecordEnd::How how) {
    m_report->how = hasFailed() ? RecordEnd::How::failed : how;
    const auto ended = m_services.cleanup.end(*m_report, m_report->how);
    if (!ended) m_services.log.line("The record has no end : " + ended.error().message);
    const Cleanup::Traces traces = m_services.cleanup.traces();
    m_report->backup = traces.backup;
    m_report->record = traces.record;
}

bool DeleteProc::hasFailed() const { return !m_report->notBegun.empty() || !m_report->notWritten.empty(); }

/// The sound comes back however the loop ended, and the end is still reported when that fails.
void DeleteProc::unmute(std::exception_ptr& failure) {
    try {
        (void)run(deleteTexts::unmute);
    } catch (...) {
        if (!failure) failure = std::current_exception();
    }
}

/// False when the operation was cancelled, or the library could not be written, before the last row.
bool DeleteProc::deleteRows() {
    const std::size_t count = m_list.rows.size();
    m_sharedIds.emplace(m_list.rows, m_services.tracksOfId);
    if (m_isDelFile) m_fileDeletion.keepFiles(m_list.rows, *m_sharedIds);
    m_stayingCopies.emplace(m_list.rows, m_keptSongs, m_services.files);
    Compaction compaction(m_list.rows);
    for (std::size_t pass = 0; pass < count; ++pass) {
        if (isCancelled()) return false;
        if (!compaction.record().checkbox) {
            compaction.keep();
            continue;
        }
        if (!m_services.cleanup.beginTrack(m_report->outcomes.size())) return false;
        deleteMarked(compaction.record());
        compaction.remove();
        m_services.center.post({EventName::deleteAddCount, {}, this});
    }
    return true;
}

void DeleteProc::deleteMarked(TrackRecord& record) {
    DeleteOutcome outcome = outcomeOf(record);
    deleteTrack(record, outcome);
    if (m_isDelFile && outcome.track == DeleteOutcome::Track::deleted) {
        m_fileDeletion.deleteFileOf(record, outcome, m_report->outcomes.size());
    } else if (m_isDelFile) {
        m_fileDeletion.keepFileOf(record, outcome);
    }
    m_report->outcomes.push_back(std::move(outcome));
}

/// By what is known only now that its turn has come.
std::string DeleteProc::reasonToKeep(const TrackRecord& record) {
    if (const auto failed = m_merge.failed.find(&record); failed != m_merge.failed.end())
        return failed->second;
    std::string reason = m_sharedIds->reasonToKeep(record);
    if (reason.empty() && !m_stayingCopies->isLeftOf(record)) reason = lastCopyReason;
    const char* const obstacle = m_isDelFile ? m_fileDeletion.trackObstacle(record) : nullptr;
    return reason.empty() && obstacle ? obstacle : reason;
}

/// iTunes calls it no error when nothing has the ID, so that a track without one would count as deleted.
void DeleteProc::deleteTrack(const TrackRecord& record, DeleteOutcome& outcome) {
    if (const std::string reason = reasonToKeep(record); !reason.empty()) {
        outcome.track = DeleteOutcome::Track::failed;
        outcome.addReason(reason);
        return;
    }
    const Result<void> deleted =
        canStandInText(record.pid) ? run(deleteTexts::deleteTrack(record.pid)) : Result<void>();
    const char* const obstacle = trackObstacle(record.pid);
    if (deleted && !obstacle) {
        outcome.track = DeleteOutcome::Track::deleted;
        outcome.dealtWith = true;
        if (const auto given = m_merge.given.find(&record); given != m_merge.given.end())
            outcome.merged = given->second;
        return;
    }
    outcome.track = DeleteOutcome::Track::failed;
    outcome.addReason(obstacle ? obstacle : deleted.error().message);
}

Result<void> DeleteProc::run(const std::string& text) {
    const Result<Descriptor> result = m_services.scripts.executeAndReturnError(text);
    if (!result) return result.error();
    return {};
}

void DeleteProc::noteNotAttempted() {
    for (const TrackRecord* const record : m_list.rows) {
        if (record->checkbox) m_report->outcomes.push_back(outcomeOf(*record));
    }
}

void DeleteProc::postEnd() {
    m_services.center.post(
        {isCancelled() || hasFailed() ? EventName::deleteCancel : EventName::deleteFinish, m_report, this});
    logReport(*m_report, m_services.log);
}

} // namespace songsweep
