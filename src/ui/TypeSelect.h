// SPDX-License-Identifier: MIT
#pragma once

#include "library/TrackRecord.h"

#include <QElapsedTimer>
#include <QString>

#include <vector>

namespace songsweep {

/// Finds tracks by the first letters of their names, as they are typed.
///
/// Letters typed in quick succession make one beginning; the same letter again steps through the names with
/// it. A search goes around the end. It folds only the names whose first letter may fit, so that a million
/// rows are searched within a key press.
class TypeSelect {
  public:
    /// The row to jump to, -1 for none. `current` is the row to search on from, -1 for none; it is a
    /// candidate itself where `currentCounts`.
    int find(const std::vector<TrackRecord*>& rows, int current, bool currentCounts, const QString& typed);

  private:
    void append(const QString& typed);

    QString m_beginning;
    QElapsedTimer m_sinceLastKey;
};

} // namespace songsweep
