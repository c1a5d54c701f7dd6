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

SurveyedRows FileSurvey::takeRows() {
    const std::lock_guard reading(*m_rowsLock);
    const DisplayedList list = std::exchange(m_list, {});
    return SurveyedRows(list.rows, list.storage, [this] { return isCancelled(); });
}

/// What keeps the library from being locked but another program, the look at the library tells.
void FileSurvey::main() {
    m_facts.filesPending = false;
    const SurveyedRows rows = takeRows();
    const Result<void> locked = m_cleanup.lock();
    auto plan = surveyFiles(rows, m_sources, m_facts, [this] { return isCancelled(); });
    if (!plan) return;
    m_facts.libraryInUse = !locked && locked.error().code == Error::Code::busy;
    if (m_facts.libraryInUse) m_facts.libraryObstacle = locked.error().message;
    auto answer = std::make_shared<SurveyAnswer>(SurveyAnswer{std::move(*plan), m_facts});
    m_center.post({EventName::surveyDone, std::move(answer), this});
}

} // namespace songsweep
