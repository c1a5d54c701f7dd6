// SPDX-License-Identifier: MIT
#include "ui/PaperCell.h"

#include "ui/TrackTableModel.h"

#include <QAbstractItemView>
#include <QHelpEvent>
#include <QPainter>
#include <QToolTip>

namespace songsweep {

namespace {

/// The window counts and not the focus within it, which the state of the option would tell.
RowState stateOf(const QStyleOptionViewItem& option) {
    if (!option.state.testFlag(QStyle::State_Selected)) return RowState::plain;
    const bool inKeyWindow = option.widget != nullptr && option.widget->isActiveWindow();
    return inKeyWindow ? RowState::selected : RowState::selectedInactive;
}

QColor backgroundOf(RowState state, bool tinted) {
    if (state == RowState::selected) return selectedBand;
    if (state == RowState::selectedInactive) return selectedInactiveBand;
    return tinted ? tintedBand : whiteBand;
}

} // namespace

RowLook willDisplayCell(const QStyleOptionViewItem& option, const QModelIndex& index) {
    const RowState state = stateOf(option);
    return {backgroundOf(state, index.data(TrackTableModel::TintedRole).toBool()), rowColors(state)};
}

PaperCell::PaperCell(QObject* parent)
    : QStyledItemDelegate(parent)
    , m_metrics(QFont()) {}

void PaperCell::paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const {
    drawWithFrame(*painter, option, willDisplayCell(option, index), index);
}

void PaperCell::drawWithFrame(QPainter& painter, const QStyleOptionViewItem& option, const RowLook& look,
                              const QModelIndex& index) const {
    painter.fillRect(option.rect, look.background);
    painter.save();
    drawInterior(painter, option, look.colors, index);
    painter.restore();
}

bool PaperCell::helpEvent(QHelpEvent* event, QAbstractItemView* view, const QStyleOptionViewItem& option,
                          const QModelIndex& index) {
    if (event->type() != QEvent::ToolTip) return QStyledItemDelegate::helpEvent(event, view, option, index);
    const QString text = index.data(Qt::ToolTipRole).toString();
    if (text.isEmpty() || !wantsToolTip(option, text))
        QToolTip::hideText();
    else
        QToolTip::showText(event->globalPos(), text, view->viewport(), option.rect);
    return true;
}

bool PaperCell::wantsToolTip(const QStyleOptionViewItem&, const QString&) const { return true; }

QSize PaperCell::sizeHint(const QStyleOptionViewItem& option, const QModelIndex&) const {
    return {option.rect.width(), m_metrics.rowHeight};
}

} // namespace songsweep
