// SPDX-License-Identifier: MIT
#pragma once

#include "delete/DeleteConfirmationFacts.h"
#include "delete/DeleteFixture.h"
#include "delete/DeletePlan.h"

#include <string>
#include <utility>
#include <vector>

namespace songsweep::test {

/// Rows whose deletion is planned.
class DeletePlanFixture : public DeleteFixture {
  protected:
    using Others = std::vector<std::pair<std::string, std::string>>;

    /// The library's tracks: the displayed rows and these, by ID and location.
    LibraryLocations libraryWith(const Others& others) const {
        return [this, others](const LocationVisitor& visit) {
            for (const TrackRecord* const record : m_list.rows)
                visit(record->pid, record->location.string());
            for (const auto& [pid, location] : others)
                visit(pid, location);
            return true;
        };
    }
    DeletePlan plan(const Others& others, const Files& files) const {
        return makeDeletePlan(m_list.rows, files, libraryWith(others));
    }
    DeletePlan plan(const Others& others = {}) const { return plan(others, m_files); }
    /// The counts of files; of groups, CopiesThatStay asks.
    DeleteConfirmationFacts facts(const Others& others = {}) const {
        DeleteConfirmationFacts facts;
        const auto isStopped = [] { return false; };
        EXPECT_TRUE(surveyFiles(SurveyedRows(m_list.rows), {m_files, libraryWith(others)}, facts, isStopped));
        facts.groupsLosingEveryFile = facts.groupsLosingSharedFiles = 0;
        return facts;
    }
};

} // namespace songsweep::test
