// SPDX-License-Identifier: MIT
#include "restore/CleanupCell.h"

#include "theme/Metrics.h"

#include <QPainter>
#include <QWidget>

namespace songsweep {

namespace {

constexpr int rowHeight = 24;
constexpr int padding = 8;

} // namespace

void CleanupCell::paint(QPainter* painter, const QStyleOptionViewItem& option,
                        const QModelIndex& index) const {
    QStyleOptionViewItem background = option;
    initStyleOption(&background, index);
    const QString text = std::exchange(background.text, QString());
    const QStyle& style = *option.widget->style();
    style.drawControl(QStyle::CE_ItemViewItem, &background, painter, option.widget);
    const int air = scaledLength(padding, option.widget);
    const bool isSelected = option.state.testFlag(QStyle::State_Selected);
    painter->save();
    painter->setFont(background.font);
    style.drawItemText(painter, option.rect.adjusted(air, 0, -air, 0),
                       static_cast<int>(background.displayAlignment), background.palette,
                       option.state.testFlag(QStyle::State_Enabled), text,
                       isSelected ? QPalette::HighlightedText : QPalette::Text);
    painter->restore();
}

QSize CleanupCell::sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const {
    const QSize own = QStyledItemDelegate::sizeHint(option, index);
    return {own.width() + 2 * scaledLength(padding, option.widget),
            qMax(own.height(), scaledLength(rowHeight, option.widget))};
}

} // namespace songsweep
