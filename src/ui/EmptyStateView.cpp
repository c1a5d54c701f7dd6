// SPDX-License-Identifier: MIT
#include "ui/EmptyStateView.h"

#include "theme/Icons.h"
#include "theme/Metrics.h"

#include <QPainter>

namespace songsweep {

EmptyStateView::EmptyStateView(QWidget* parent)
    : QWidget(parent) {
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
}

QSize EmptyStateView::sizeHint() const { return {scaledLength(112, this), scaledLength(96, this)}; }

void EmptyStateView::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    paintIcon(painter, Icon::emptyState, rect(), themeColors(palette()));
}

} // namespace songsweep
