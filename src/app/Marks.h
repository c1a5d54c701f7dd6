// SPDX-License-Identifier: MIT
#pragma once

#include "library/Columns.h"

#include <cstdint>
#include <string>
#include <vector>

namespace songsweep {

class Log;
class MarkView;
class Results;
struct MarkChoice;
struct MarkEffect;
struct TrackRecord;

/// The verbs that set the check boxes of the results: by hand, by menu, by a rule of the mark dialog. Main
/// thread, while no worker runs: the groups of a search are whole only at its end.
class Marks {
  public:
    Marks(Results& results, MarkView& view, Log& log);

    void markButtonClick();
    void markOkButtonClick(const MarkChoice& choice);
    /// What the choice would do.
    MarkEffect effect(const MarkChoice& choice) const;
    void markCancelButtonClick();
    void markFolderButtonClick();
    void markNone();
    /// 0 and 1 check and uncheck the selected rows, 2 and 3 all rows.
    void markMenuClick(std::int32_t tag);
    void setObjectValue(bool value, Column column, int row);
    /// Checks the selected rows, or unchecks them where all are checked.
    void toggleSelectedRows();
    /// Takes the last change of marks back, and does it again.
    void undo();
    void redo();

  private:
    void mark(const MarkChoice& choice);
    void setMarks(const std::string& name, const std::vector<TrackRecord*>& rows, bool value);
    void setByHand(const std::string& name, const std::vector<TrackRecord*>& rows, bool value);
    void showMarks();

    Results& m_results;
    MarkView& m_view;
    Log& m_log;
    bool m_kindListFlag = true;
};

} // namespace songsweep
