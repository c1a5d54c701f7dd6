// SPDX-License-Identifier: MIT
#pragma once

#include <QWidget>

namespace songsweep {

/// The drawing over the empty state: one copy of a song that stays, one that goes. In the colours of the
/// theme.
class EmptyStateView : public QWidget {
    Q_OBJECT
  public:
    explicit EmptyStateView(QWidget* parent = nullptr);

    QSize sizeHint() const override;

  protected:
    void paintEvent(QPaintEvent* event) override;
};

} // namespace songsweep
