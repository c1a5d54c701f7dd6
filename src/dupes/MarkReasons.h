// SPDX-License-Identifier: MIT
#pragma once

#include "dupes/MarkChoice.h"
#include "dupes/MarkVerdicts.h"
#include "dupes/RecordingGroups.h"
#include "library/DisplayedList.h"

#include <cstddef>
#include <optional>
#include <string>
#include <unordered_map>
#include <vector>

namespace songsweep {

/// Why a rule marked its rows, and kept others, for as long as anybody asks.
///
/// Keeps the rows in the order in which the rule saw them, since another order might keep another copy; so
/// reasons stay true when the list is sorted, shortened, or a mark is set by hand. Where sounds were compared
/// they are of recordings. 8 bytes a row and a bit; a question passes over the rows once to find its row.
/// Main thread; the records are the storage's.
class MarkReasons {
  public:
    enum class Recordings { unknown, compared };

    /// Of a rule that has marked the rows just now.
    MarkReasons(DisplayedList list, const MarkChoice& choice, Recordings recordings = Recordings::unknown);
    MarkReasons(const MarkReasons&) = delete;
    MarkReasons& operator=(const MarkReasons&) = delete;

    /// Of a marked copy why it goes, "marked by hand" where the rule would not; of one that is not marked why
    /// it stays, "kept: 320 against 128". Empty where there is nothing to say, as of the only copy of a
    /// recording, which no rule looks at: see recordingReason().
    std::string of(const TrackRecord& record);
    const MarkChoice& choice() const { return m_verdicts.choice(); }
    /// For whoever asks of every record: a pass over the rows, and then none for each question.
    void index();

  private:
    std::string ofRow(std::size_t row);
    std::size_t rowOf(const TrackRecord& record) const;

    std::optional<RecordingGroups> m_recordings; ///< nothing where sounds were not compared
    DisplayedList m_list;
    std::unordered_map<const TrackRecord*, std::size_t> m_rowOf; ///< empty before `index`
    MarkVerdicts m_verdicts;
    std::vector<char> m_marked; ///< by the rule
};

} // namespace songsweep
