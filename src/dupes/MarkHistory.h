// SPDX-License-Identifier: MIT
#pragma once

#include "library/TrackRecord.h"

#include <cstddef>
#include <functional>
#include <optional>
#include <string>
#include <unordered_set>
#include <vector>

namespace songsweep {

/// What was done to the marks, so that it can be taken back and done again, and which of them somebody made
/// by hand.
///
///     history.record(MarkHistory::By::hand, "Mark all", rows, [&] { for (TrackRecord* row : rows) … });
///     history.undo();
///
/// A step keeps the rows whose mark it changed; as a mark has two states, doing and undoing it are one act. A
/// rule replaces all marks, and so leaves none that was made by hand; which ones there are is worked out of
/// the steps when somebody asks, which is seldom. 16 bytes a changed row. The rows are those of one list:
/// whoever changes the list says so. Main thread.
class MarkHistory {
  public:
    enum class By { hand, rule };
    using Rows = std::vector<TrackRecord*>;

    /// Does the act, and keeps what it changed of the rows under the name; nothing where that is nothing.
    void record(By by, const std::string& name, const Rows& rows, const std::function<void()>& act);

    /// The name of what `undo` takes back and `redo` does again; empty for nothing.
    std::string undoName() const { return m_done == 0 ? std::string() : m_steps[m_done - 1].name; }
    std::string redoName() const { return m_done == m_steps.size() ? std::string() : m_steps[m_done].name; }
    /// Linear in the rows that the steps changed, once after each change.
    int marksByHand() const;

    void undo();
    void redo();
    /// The list is another one, without marks.
    void clear();
    /// Rows are gone: these are left, and nothing can be undone.
    void keepOnly(const Rows& rows);

  private:
    using Records = std::unordered_set<const TrackRecord*>;
    struct Change {
        TrackRecord* record;
        bool isMarked; ///< after the step
    };
    struct Step {
        By by;
        std::string name;
        std::vector<Change> changes;
    };

    static std::vector<Change> changesOf(const Rows& rows, const std::vector<char>& before);
    static void follow(const Step& step, Records& byHand);
    void forgetFirst();

    std::vector<Step> m_steps;
    std::size_t m_done = 0;              ///< steps that are done; those behind it were taken back
    Records m_byHandBefore;              ///< marks made by hand in steps that are forgotten
    mutable std::optional<int> m_byHand; ///< their number, once somebody asked
};

} // namespace songsweep
