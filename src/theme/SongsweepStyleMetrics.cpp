// SPDX-License-Identifier: MIT
#include "theme/Metrics.h"
#include "theme/SongsweepStyle.h"

#include <QStyleOption>
#include <QWidget>

#include <algorithm>
#include <optional>

namespace songsweep {

namespace {

constexpr int arrowWidth = 28;
constexpr int fieldPadding = 9;      // the border and 8
constexpr int lineEditOwnMargin = 2; // what QLineEdit leaves on each side of its text

std::optional<int> controlMetric(QStyle::PixelMetric metric) {
    switch (metric) {
    case QStyle::PM_LayoutLeftMargin:
    case QStyle::PM_LayoutTopMargin:
    case QStyle::PM_LayoutRightMargin:
    case QStyle::PM_LayoutBottomMargin:
    case QStyle::PM_ToolBarIconSize:
        return 20;
    case QStyle::PM_LayoutHorizontalSpacing:
    case QStyle::PM_LayoutVerticalSpacing:
    case QStyle::PM_RadioButtonLabelSpacing:
    case QStyle::PM_HeaderMargin:
        return 8;
    case QStyle::PM_IndicatorWidth:
    case QStyle::PM_IndicatorHeight:
    case QStyle::PM_ExclusiveIndicatorWidth:
    case QStyle::PM_ExclusiveIndicatorHeight:
    case QStyle::PM_ButtonIconSize:
        return 16;
    case QStyle::PM_MessageBoxIconSize:
        return 40;
    default:
        return std::nullopt;
    }
}

std::optional<int> barMetric(QStyle::PixelMetric metric) {
    switch (metric) {
    case QStyle::PM_ScrollBarExtent:
        return 12;
    case QStyle::PM_ScrollBarSliderMin:
        return 28;
    case QStyle::PM_ToolBarItemMargin:
        return 8;
    case QStyle::PM_ToolBarItemSpacing:
    case QStyle::PM_MenuBarHMargin:
    case QStyle::PM_MenuVMargin:
        return 4;
    case QStyle::PM_ToolBarSeparatorExtent:
        return 9;
    case QStyle::PM_ToolTipLabelFrameWidth:
        return 5;
    default:
        return std::nullopt;
    }
}

std::optional<int> unscaledMetric(QStyle::PixelMetric metric) {
    switch (metric) {
    case QStyle::PM_ToolBarFrameWidth:
    case QStyle::PM_ToolBarHandleExtent:
    case QStyle::PM_MenuBarPanelWidth:
    case QStyle::PM_MenuBarVMargin:
    case QStyle::PM_MenuBarItemSpacing:
    case QStyle::PM_ScrollView_ScrollBarSpacing:
    case QStyle::PM_ButtonShiftHorizontal:
    case QStyle::PM_ButtonShiftVertical:
        return 0;
    case QStyle::PM_MenuPanelWidth:
        return 1;
    default:
        return std::nullopt;
    }
}

/// A button in the line of a field, and as high as it.
bool isInline(const QWidget* widget) {
    return widget != nullptr && widget->property("role").toString() == QLatin1String("inline");
}

QSize toolButtonSize(const QStyleOptionToolButton& button, const QSize& text, const QWidget* widget) {
    const auto grown = [&](int length) { return scaledLength(length, widget); };
    if (button.toolButtonStyle == Qt::ToolButtonIconOnly || button.text.isEmpty())
        return QSize(grown(28), grown(28)).expandedTo(button.iconSize + QSize(grown(8), grown(8)));
    const int textWidth = button.fontMetrics.size(Qt::TextShowMnemonic, button.text).width();
    if (button.toolButtonStyle == Qt::ToolButtonTextOnly)
        return {textWidth + 2 * grown(10), std::max(grown(24), text.height())};
    const int width = grown(10) + button.iconSize.width() + grown(8) + textWidth + grown(12);
    return {width, std::max(grown(32), text.height())};
}

QRect fieldContents(const QStyleOptionComboBox& combo, const QWidget* widget) {
    const int padding = scaledLength(fieldPadding, widget) - (combo.editable ? lineEditOwnMargin : 0);
    return combo.rect.adjusted(padding, 1, -scaledLength(arrowWidth, widget), -1);
}

/// Under the text of the field, whose left edge is that of the popup.
QRect popupItemText(QRect text, const QStyleOption& item, const QWidget& view) {
    const int ownMargin = view.style()->pixelMetric(QStyle::PM_FocusFrameHMargin, &item, &view) + 1;
    const int frame = view.mapTo(view.window(), QPoint()).x();
    const int left = scaledLength(fieldPadding, &view) - ownMargin - frame;
    if (item.direction == Qt::LeftToRight) {
        text.setLeft(item.rect.left() + left);
    } else {
        text.setRight(item.rect.right() - left);
    }
    return text;
}

QRect comboBoxPart(const QStyleOptionComboBox& combo, QStyle::SubControl part, const QWidget* widget) {
    QRect rect = combo.rect;
    if (part == QStyle::SC_ComboBoxArrow) rect.setLeft(rect.right() + 1 - scaledLength(arrowWidth, widget));
    if (part == QStyle::SC_ComboBoxEditField) rect = fieldContents(combo, widget);
    return QStyle::visualRect(combo.direction, combo.rect, rect);
}

QRect alongBar(const QStyleOptionSlider& bar, int start, int length) {
    if (bar.orientation == Qt::Horizontal)
        return QStyle::visualRect(bar.direction, bar.rect,
                                  QRect(bar.rect.left() + start, bar.rect.top(), length, bar.rect.height()));
    return {bar.rect.left(), bar.rect.top() + start, bar.rect.width(), length};
}

int sliderLength(const QStyleOptionSlider& bar, int length, int least) {
    const qint64 range = static_cast<qint64>(bar.maximum) - bar.minimum;
    if (range == 0) return length;
    const qint64 share = static_cast<qint64>(bar.pageStep) * length / (range + bar.pageStep);
    return static_cast<int>(std::clamp<qint64>(share, std::min(least, length), length));
}

QRect scrollBarPart(const QStyleOptionSlider& bar, QStyle::SubControl part, int least) {
    const int length = bar.orientation == Qt::Horizontal ? bar.rect.width() : bar.rect.height();
    const int slider = sliderLength(bar, length, least);
    const int start = QStyle::sliderPositionFromValue(bar.minimum, bar.maximum, bar.sliderPosition,
                                                      length - slider, bar.upsideDown);
    switch (part) {
    case QStyle::SC_ScrollBarSlider:
        return alongBar(bar, start, slider);
    case QStyle::SC_ScrollBarSubPage:
        return alongBar(bar, 0, start);
    case QStyle::SC_ScrollBarAddPage:
        return alongBar(bar, start + slider, length - start - slider);
    case QStyle::SC_ScrollBarGroove:
        return bar.rect;
    default:
        return {};
    }
}

} // namespace

int SongsweepStyle::pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const {
    if (metric == PM_FocusFrameHMargin || metric == PM_FocusFrameVMargin) {
        // QFocusFrame asks without a widget; everyone else, such as item views, names itself.
        return widget == nullptr ? scaledLength(FocusRing::reach, widget)
                                 : QProxyStyle::pixelMetric(metric, option, widget);
    }
    if (metric == PM_CheckBoxLabelSpacing) // counted from the last pixel of the box
        return proxy()->pixelMetric(PM_RadioButtonLabelSpacing, option, widget) + 1;
    if (const auto fixed = unscaledMetric(metric)) return *fixed;
    if (const auto length = controlMetric(metric)) return scaledLength(*length, widget);
    if (const auto length = barMetric(metric)) return scaledLength(*length, widget);
    return QProxyStyle::pixelMetric(metric, option, widget);
}

QSize SongsweepStyle::sizeFromContents(ContentsType type, const QStyleOption* option, const QSize& contents,
                                       const QWidget* widget) const {
    const auto grown = [&](int length) { return scaledLength(length, widget); };
    switch (type) {
    case CT_PushButton:
        if (isInline(widget))
            return {contents.width() + grown(26), std::max(grown(28), contents.height() + 2)};
        return {std::max(grown(88), contents.width() + grown(32)),
                std::max(grown(30), contents.height() + 2)};
    case CT_CheckBox:
    case CT_RadioButton:
        return {grown(16 + 8) + contents.width(), std::max(grown(16), contents.height())};
    case CT_ComboBox:
        return {contents.width() + grown(fieldPadding) + grown(arrowWidth),
                std::max(grown(28), contents.height() + 2)};
    case CT_LineEdit:
        return {contents.width() + 2 * grown(fieldPadding), std::max(grown(28), contents.height() + 2)};
    case CT_ProgressBar:
        return {contents.width(), grown(6)};
    case CT_ToolButton:
        if (const auto* button = qstyleoption_cast<const QStyleOptionToolButton*>(option))
            return toolButtonSize(*button, contents, widget);
        break;
    case CT_MenuBarItem:
        return {contents.width() + grown(16), std::max(grown(26), contents.height())};
    case CT_ItemViewItem:
        if (widget != nullptr && widget->inherits("QComboBoxListView")) {
            const QSize size = QProxyStyle::sizeFromContents(type, option, contents, widget);
            return {size.width() + grown(12), std::max(grown(26), size.height())};
        }
        break;
    default:
        break;
    }
    return QProxyStyle::sizeFromContents(type, option, contents, widget);
}

QRect SongsweepStyle::subElementRect(SubElement element, const QStyleOption* option,
                                     const QWidget* widget) const {
    if (element == SE_LineEditContents) {
        const auto* frame = qstyleoption_cast<const QStyleOptionFrame*>(option);
        if (frame == nullptr || frame->lineWidth == 0) return option->rect;
        const int padding = scaledLength(fieldPadding, widget) - lineEditOwnMargin;
        return option->rect.adjusted(padding, 1, -padding, -1);
    }
    if (element == SE_ItemViewItemText && widget != nullptr && widget->inherits("QComboBoxListView"))
        return popupItemText(QProxyStyle::subElementRect(element, option, widget), *option, *widget);
    if (element == SE_ProgressBarGroove || element == SE_ProgressBarContents) return option->rect;
    return QProxyStyle::subElementRect(element, option, widget);
}

QRect SongsweepStyle::subControlRect(ComplexControl control, const QStyleOptionComplex* option,
                                     SubControl part, const QWidget* widget) const {
    if (const auto* combo = qstyleoption_cast<const QStyleOptionComboBox*>(option);
        combo != nullptr && control == CC_ComboBox)
        return comboBoxPart(*combo, part, widget);
    if (const auto* bar = qstyleoption_cast<const QStyleOptionSlider*>(option);
        bar != nullptr && control == CC_ScrollBar)
        return scrollBarPart(*bar, part, proxy()->pixelMetric(PM_ScrollBarSliderMin, option, widget));
    return QProxyStyle::subControlRect(control, option, part, widget);
}

} // namespace songsweep
