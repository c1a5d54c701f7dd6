// SPDX-License-Identifier: MIT
#pragma once

#include "delete/DeleteConfirmationFacts.h"
#include "delete/DeletePlan.h"
#include "operations/Operation.h"

#include <functional>
#include <memory>

namespace songsweep {

/// Looks at the files of a deletion on a worker thread while the confirmation is open.
///
/// With a million tracks on a slow disk that takes minutes, in which the window has to answer. It is no
/// worker of the event chain: it posts no event, and has a queue of its own, so that nobody waits for it. A
/// survey that was cancelled stops before its next look at the file system and says nothing.
class FileSurvey final : public Operation {
  public:
    struct Answer {
        DeletePlan plan;
        DeleteConfirmationFacts facts; ///< with the counts of files
    };
    /// Called on the worker thread with the serial of the survey.
    using Done = std::function<void(std::uint64_t serial, std::shared_ptr<Answer> answer)>;

    /// `facts` are those that need no file system. Files outlive the survey.
    FileSurvey(SurveyedRows rows, DeleteConfirmationFacts facts, const Files& files,
               LibraryLocations locations, Done done);

    void main() override;

  private:
    SurveyedRows m_rows;
    DeleteConfirmationFacts m_facts;
    const Files& m_files;
    LibraryLocations m_locations;
    Done m_done;
};

} // namespace songsweep
