// SPDX-License-Identifier: MIT
#pragma once

#include "delete/DeleteConfirmationFacts.h"
#include "delete/DeletePlan.h"
#include "operations/Operation.h"

#include <memory>
#include <mutex>

namespace songsweep {

class Cleanup;
struct WorkerEvent;
template <typename Event>
class NotificationCenter;

/// What a look at the files of a deletion gives.
struct SurveyAnswer {
    DeletePlan plan;
    DeleteConfirmationFacts facts; ///< with the counts of files
};

/// Looks at the files of a deletion on a worker thread while the confirmation is open.
///
/// With a million tracks on a slow disk that takes minutes, in which the window has to answer. It is no
/// worker of the event chain: its one event, "surveyDone" with the answer, starts no other, and it has a
/// queue of its own, so that nobody waits for it. It locks the library for the clean-up that may follow; who
/// drops it or its answer unlocks the library behind it. A survey that was cancelled stops before its next
/// look at the file system and says nothing. The rows are read on its thread, too, since a million of them
/// take longer than a press of a button may: until a `RowsLock` was had after it was cancelled, or it has
/// answered, nobody changes them.
class FileSurvey final : public Operation {
  public:
    /// Held while the rows are read.
    using RowsLock = std::shared_ptr<std::mutex>;

    /// `facts` are those that need no file system. Clean-up and centre outlive the survey.
    FileSurvey(DisplayedList list, RowsLock lock, DeleteConfirmationFacts facts, SurveySources sources,
               Cleanup& cleanup, NotificationCenter<WorkerEvent>& center);

    void main() override;

  private:
    struct Rows;
    Rows takeRows();
    void countMerge(const SongsToMerge& songs);

    DisplayedList m_list;
    RowsLock m_rowsLock;
    DeleteConfirmationFacts m_facts;
    SurveySources m_sources;
    Cleanup& m_cleanup;
    NotificationCenter<WorkerEvent>& m_center;
};

} // namespace songsweep
