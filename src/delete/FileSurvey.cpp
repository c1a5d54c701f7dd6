// SPDX-License-Identifier: MIT
#include "delete/FileSurvey.h"

#include "delete/Cleanup.h"
#include "library/WorkerEvent.h"
#include "operations/NotificationCenter.h"

#include <utility>

namespace songsweep {

FileSurvey::FileSurvey(DisplayedList list, RowsLock lock, DeleteConfirmationFacts facts,
                       SurveySources sources, Cleanup& cleanup, NotificationCenter<WorkerEvent>& center)
    : m_list(std::move(list))
    , m_rowsLock(std::move(lock))
    , m_facts(std::move(facts))
    , m_sources(std::move(sources))
    , m_cleanup(cleanup)
    , m_center(center) {}

/// What is taken from the rows, for the files and for the copies that stay.
struct FileSurvey::Rows {
    SurveyedRows files;
    SongsToMerge songs;
};

FileSurvey::Rows FileSurvey::takeRows() {
    const std::lock_guard reading(*m_rowsLock);
    const DisplayedList list = std::exchange(m_list, {});
    static const std::vector<TrackRecord*> none;
    return {SurveyedRows(list.rows, list.storage, [this] { return isCancelled(); }),
            SongsToMerge(m_facts.mergeOffered ? list.rows : none, list.storage, m_sources.keptByReason)};
}

/// Where the library cannot be read, nobody knows what to give.
void FileSurvey::countMerge(const SongsToMerge& songs) {
    if (!m_facts.mergeOffered || isCancelled()) return;
    const auto plan = m_sources.planMerge(songs, {.places = true, .history = true, .fillIns = true});
    m_facts.mergeOffered = plan.hasValue();
    if (plan) m_facts.merge = plan.value().counts;
}

/// What keeps the library from being locked but another program, the look at the library tells.
void FileSurvey::main() {
    m_facts.filesPending = false;
    const Rows rows = takeRows();
    const Result<void> locked = m_cleanup.lock();
    auto plan = surveyFiles(rows.files, m_sources, m_facts, [this] { return isCancelled(); });
    if (!plan) return;
    countMerge(rows.songs);
    m_facts.libraryInUse = !locked && locked.error().code == Error::Code::busy;
    if (m_facts.libraryInUse) m_facts.libraryObstacle = locked.error().message;
    auto answer = std::make_shared<SurveyAnswer>(SurveyAnswer{std::move(*plan), m_facts});
    m_center.post({EventName::surveyDone, std::move(answer), this});
}

} // namespace songsweep
