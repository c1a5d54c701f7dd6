// SPDX-License-Identifier: MIT
#include "delete/FileSurvey.h"

#include <utility>

namespace songsweep {

FileSurvey::FileSurvey(SurveyedRows rows, DeleteConfirmationFacts facts, const Files& files,
                       LibraryLocations locations, Done done)
    : m_rows(std::move(rows))
    , m_facts(facts)
    , m_files(files)
    , m_locations(std::move(locations))
    , m_done(std::move(done)) {}

void FileSurvey::main() {
    m_facts.filesPending = false;
    auto plan = surveyFiles(m_rows, m_files, m_locations, m_facts, [this] { return isCancelled(); });
    if (plan) m_done(serial(), std::make_shared<Answer>(Answer{std::move(*plan), m_facts}));
}

} // namespace songsweep
