// SPDX-License-Identifier: MIT
#include "delete/FileSurvey.h"

#include "library/WorkerEvent.h"
#include "operations/NotificationCenter.h"

#include <utility>

namespace songsweep {

FileSurvey::FileSurvey(SurveyedRows rows, DeleteConfirmationFacts facts, const Files& files,
                       LibraryLocations locations, NotificationCenter<WorkerEvent>& center)
    : m_rows(std::move(rows))
    , m_facts(facts)
    , m_files(files)
    , m_locations(std::move(locations))
    , m_center(center) {}

void FileSurvey::main() {
    m_facts.filesPending = false;
    auto plan = surveyFiles(m_rows, m_files, m_locations, m_facts, [this] { return isCancelled(); });
    if (!plan) return;
    auto answer = std::make_shared<SurveyAnswer>(SurveyAnswer{std::move(*plan), m_facts});
    m_center.post({EventName::surveyDone, std::move(answer), this});
}

} // namespace songsweep
