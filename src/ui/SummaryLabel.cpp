// SPDX-License-Identifier: MIT
#include "ui/SummaryLabel.h"

#include <QHelpEvent>
#include <QPainter>
#include <QStyle>
#include <QToolTip>

namespace songsweep {

QString SummaryLabel::end() const {
    const auto place = text().lastIndexOf(QStringLiteral(": "));
    return place < 0 ? QString() : text().mid(place);
}

QString SummaryLabel::shownText() const {
    const QString kept = end();
    const QString beginning = text().chopped(kept.size());
    const int room = contentsRect().width() - fontMetrics().horizontalAdvance(kept);
    return fontMetrics().elidedText(beginning, Qt::ElideRight, room) + kept;
}

QSize SummaryLabel::minimumSizeHint() const {
    return {fontMetrics().horizontalAdvance(end()), QLabel::minimumSizeHint().height()};
}

bool SummaryLabel::event(QEvent* event) {
    if (event->type() != QEvent::ToolTip) return QLabel::event(event);
    const QString whole = shownText() == text() ? QString() : text();
    QToolTip::showText(static_cast<QHelpEvent*>(event)->globalPos(), whole, this);
    return true;
}

void SummaryLabel::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    style()->drawItemText(&painter, contentsRect(), Qt::AlignRight | Qt::AlignVCenter | Qt::TextSingleLine,
                          palette(), isEnabled(), shownText(), foregroundRole());
}

} // namespace songsweep
