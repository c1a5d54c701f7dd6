// SPDX-License-Identifier: MIT
#pragma once

#include <QWidget>

class QHeaderView;

namespace songsweep {

/// Goes on with a table's header over the vertical scroll bar, so that the bar begins where the rows do.
class HeaderCornerView : public QWidget {
    Q_OBJECT
  public:
    HeaderCornerView(const QHeaderView& header, QWidget* parent);

    QSize sizeHint() const override;

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    const QHeaderView& m_header;
};

} // namespace songsweep
