// SPDX-License-Identifier: MIT
#include "delete/DeleteProc.h"

#include "delete/DeleteTexts.h"
#include "operations/NotificationCenter.h"
#include "platform/Files.h"
#include "platform/Log.h"
#include "scripting/AppleScript.h"

#include <exception>

namespace songsweep {

namespace {

DeleteOutcome outcomeOf(const TrackRecord& record) {
    DeleteOutcome outcome;
    outcome.pid = record.pid.string();
    outcome.name = record.name.string();
    outcome.artist = record.artist.string();
    outcome.location = record.location.string();
    return outcome;
}

} // namespace

/// Takes rows out of a list front to back: rows that stay move down over those that went, and the list is cut
/// to its new length when the gap is closed, however the loop ends.
class DeleteProc::Gap {
  public:
    explicit Gap(std::vector<TrackRecord*>& rows)
        : m_rows(rows) {}
    Gap(const Gap&) = delete;
    Gap& operator=(const Gap&) = delete;
    ~Gap() {
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

DeleteProc::DeleteProc(DisplayedList& list, bool isDelFile, DeleteServices services, DeletePlan plan,
                       std::shared_ptr<DeleteReport> report)
    : m_list(list)
    , m_isDelFile(isDelFile)
    , m_services(services)
    , m_plan(std::move(plan))
    , m_report(std::move(report)) {}

void DeleteProc::main() {
    std::exception_ptr failure;
    if (!m_list.rows.empty()) {
        bool completed = false;
        try {
            (void)run(deleteTexts::mute);
            completed = deleteRows();
        } catch (...) {
            failure = std::current_exception();
        }
        unmute(failure);
        if (completed) m_services.center.post({EventName::deleteValidity, {}, this});
    }
    postEnd();
    if (failure) std::rethrow_exception(failure);
}

/// The sound comes back however the loop ended, and the end is still reported when that fails.
void DeleteProc::unmute(std::exception_ptr& failure) {
    try {
        (void)run(deleteTexts::unmute);
    } catch (...) {
        if (!failure) failure = std::current_exception();
    }
}

/// False when the operation was cancelled before the last row.
bool DeleteProc::deleteRows() {
    const std::size_t count = m_list.rows.size();
    Gap gap(m_list.rows);
    for (std::size_t pass = 0; pass < count; ++pass) {
        if (isCancelled()) return false;
        if (!gap.record().checkbox) {
            gap.keep();
            continue;
        }
        deleteMarked(gap.record());
        gap.remove();
        m_services.center.post({EventName::deleteAddCount, {}, this});
    }
    return true;
}

void DeleteProc::deleteMarked(TrackRecord& record) {
    DeleteOutcome outcome = outcomeOf(record);
    deleteTrack(record, outcome);
    if (m_isDelFile) deleteFile(record, outcome);
    m_report->outcomes.push_back(std::move(outcome));
}

void DeleteProc::deleteTrack(const TrackRecord& record, DeleteOutcome& outcome) {
    const Result<void> deleted = run(deleteTexts::deleteTrack(record.pid));
    outcome.track = deleted ? DeleteOutcome::Track::deleted : DeleteOutcome::Track::failed;
    outcome.dealtWith = deleted.hasValue();
    if (!deleted) outcome.reason = deleted.error().message;
}

void DeleteProc::deleteFile(const TrackRecord& record, DeleteOutcome& outcome) {
    const auto known = m_plan.files.find(&record);
    const bool trashedBefore = known != m_plan.files.end() && m_trashed.contains(known->second);
    if (!m_services.files.exists(record.location.c_str())) {
        outcome.file = trashedBefore ? DeleteOutcome::File::trashed : DeleteOutcome::File::missing;
        return;
    }
    outcome.file = DeleteOutcome::File::kept;
    if (outcome.track == DeleteOutcome::Track::failed) return; // its reason stands there already
    if (m_plan.shared.contains(&record)) {
        outcome.reason = "a track that stays uses it too";
        return;
    }
    trash(record, outcome);
}

void DeleteProc::trash(const TrackRecord& record, DeleteOutcome& outcome) {
    outcome.dealtWith = false;
    const auto hfs = nameableHfsPath(record.location);
    if (!hfs) {
        outcome.reason = "its name cannot be told to Finder";
        return;
    }
    try {
        const Result<void> trashed = run(deleteTexts::deleteFile(*hfs));
        if (!trashed) outcome.reason = trashed.error().message;
    } catch (const std::exception& exception) {
        // A file that cannot be deleted does not end the deletion of the others.
        outcome.reason = exception.what();
    }
    if (m_services.files.exists(record.location.c_str())) {
        if (outcome.reason.empty()) outcome.reason = "it is still there";
        return;
    }
    outcome.file = DeleteOutcome::File::trashed;
    outcome.dealtWith = true;
    outcome.reason.clear();
    const auto known = m_plan.files.find(&record);
    if (known != m_plan.files.end()) m_trashed.insert(known->second);
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
    noteNotAttempted();
    m_services.center.post({isCancelled() ? EventName::deleteCancel : EventName::deleteFinish, {}, this});
    for (const DeleteOutcome& outcome : m_report->outcomes)
        m_services.log.line(outcomeLine(outcome));
}

} // namespace songsweep
