// SPDX-License-Identifier: MIT
#pragma once

#include "library/ListGain.h"

#include <QObject>
#include <QTimer>

#include <memory>
#include <vector>

namespace songsweep {

/// Counts what a list would gain in slices of the event loop: at once where the list is short, a moment later
/// where it has a million rows, of which nobody shall wait for the count. Main thread.
class SlicedGain : public QObject {
    Q_OBJECT
  public:
    explicit SlicedGain(QObject* parent = nullptr);

    /// Begins anew. The rows stay as they are until the next call.
    void count(const std::vector<TrackRecord*>& rows);

  Q_SIGNALS:
    void counted(const songsweep::ListGain& gain);

  private:
    void goOn();

    std::unique_ptr<GainPass> m_pass;
    QTimer m_slices;
};

} // namespace songsweep
