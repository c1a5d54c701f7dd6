// SPDX-License-Identifier: MIT
#pragma once

#include "dupes/MarkChoice.h"
#include "dupes/MarkVerdicts.h"
#include "library/DisplayedList.h"

#include <string>

namespace songsweep {

/// Why a rule marked its rows, and kept others, for as long as anybody asks.
///
/// Keeps the rows in the order in which the rule saw them, since another order might keep another copy; so
/// reasons stay true when the list is sorted, shortened, or a mark is set by hand. 8 bytes a row; a question
/// passes over the rows once to find its row. Main thread; the records are the storage's.
class MarkReasons {
  public:
    MarkReasons(DisplayedList list, const MarkChoice& choice);
    MarkReasons(const MarkReasons&) = delete;
    MarkReasons& operator=(const MarkReasons&) = delete;

    /// Of a marked copy why it goes, "marked by hand" where the rule would not; of one that is not marked why
    /// it stays, "kept: 320 against 128". Empty where there is nothing to say.
    std::string of(const TrackRecord& record);

  private:
    DisplayedList m_list;
    MarkVerdicts m_verdicts;
};

} // namespace songsweep
