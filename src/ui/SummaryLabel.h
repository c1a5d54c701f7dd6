// SPDX-License-Identifier: MIT
#pragma once

#include <QLabel>

namespace songsweep {

/// A line like "Playlist: same name, artist" whose beginning is cut with dots where it does not fit, since
/// its end tells more; the whole stands in a tool tip then. Its text stays the whole. Main thread.
class SummaryLabel : public QLabel {
    Q_OBJECT
  public:
    using QLabel::QLabel;

    /// What there is room for.
    QString shownText() const;

    QSize minimumSizeHint() const override;

  protected:
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

  private:
    /// The part from the last ": " on, which is never cut.
    QString end() const;
};

} // namespace songsweep
