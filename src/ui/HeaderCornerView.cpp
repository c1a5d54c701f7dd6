// SPDX-License-Identifier: MIT
#include "ui/HeaderCornerView.h"

#include "theme/ThemeColors.h"

#include <QHeaderView>
#include <QPainter>

namespace songsweep {

HeaderCornerView::HeaderCornerView(const QHeaderView& header, QWidget* parent)
    : QWidget(parent)
    , m_header(header) {
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
}

QSize HeaderCornerView::sizeHint() const { return {0, m_header.sizeHint().height()}; }

void HeaderCornerView::paintEvent(QPaintEvent*) {
    const ThemeColors& colors = themeColors(palette());
    QPainter painter(this);
    painter.fillRect(rect(), colors.header);
    painter.fillRect(QRect(0, height() - 1, width(), 1), colors.line);
}

} // namespace songsweep
