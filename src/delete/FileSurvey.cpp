// SPDX-License-Identifier: MIT
#include "delete/FileSurvey.h"

#include "library/WorkerEvent.h"
#include "operations/NotificationCenter.h"

#include <utility>

namespace songsweep {

FileSurvey::FileSurvey(SurveyedRows rows, DeleteConfirmationFacts facts, SurveySources sources,
                       NotificationCenter<WorkerEvent>& center)
    : m_rows(std::move(rows))
    , m_facts(std::move(facts))
    , m_sources(std::move(sources))
    , m_center(center) {}

void FileSurvey::main() {
    m_facts.filesPending = false;
    auto plan = surveyFiles(m_rows, m_sources, m_facts, [this] { return isCancelled(); });
    if (!plan) return;
    auto answer = std::make_shared<SurveyAnswer>(SurveyAnswer{std::move(*plan), m_facts});
    m_center.post({EventName::surveyDone, std::move(answer), this});
}

} // namespace songsweep
