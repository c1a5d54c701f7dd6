// SPDX-License-Identifier: MIT
#include "theme/Metrics.h"
#include "theme/Painting.h"
#include "theme/SongsweepStyle.h"

#include <QCheckBox>
#include <QFocusFrame>
#include <QPainter>
#include <QRadioButton>
#include <QToolButton>

namespace songsweep {

namespace {

painting::Canvas canvasOf(QPainter* painter, const QStyleOption* option, const QWidget* widget) {
    return {*painter, themeColors(option->palette), fontScale(widget)};
}

bool isDestructive(const QWidget* widget) {
    return widget != nullptr && widget->property("role").toString() == QLatin1String("destructive");
}

bool isEnabled(const QStyleOption* option) { return (option->state & QStyle::State_Enabled) != 0; }

} // namespace

void SongsweepStyle::drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                                   const QWidget* widget) const {
    const painting::Canvas canvas = canvasOf(painter, option, widget);
    switch (element) {
    case PE_FrameFocusRect: // the focus ring stands for it
    case PE_FrameLineEdit:  // drawn with its panel
    case PE_PanelMenuBar:
        return;
    case PE_PanelLineEdit:
        if (const auto* frame = qstyleoption_cast<const QStyleOptionFrame*>(option);
            frame != nullptr && frame->lineWidth > 0)
            painting::field(canvas, option->rect, isEnabled(option));
        return;
    case PE_IndicatorCheckBox:
    case PE_IndicatorItemViewItemCheck:
        return painting::checkBox(canvas, *option);
    case PE_IndicatorRadioButton:
        return painting::radioButton(canvas, *option);
    case PE_PanelButtonTool:
        return painting::flatButton(canvas, *option);
    case PE_IndicatorToolBarSeparator:
        return painting::toolBarSeparator(canvas, option->rect);
    case PE_PanelMenu:
    case PE_PanelTipLabel:
        return painting::popupPanel(canvas, option->rect);
    case PE_FrameMenu: // drawn with its panel
        return;
    case PE_Frame:
        return painting::roundedBox(canvas, option->rect, 0, QColor(), canvas.colors.buttonBorder);
    case PE_PanelScrollAreaCorner:
        return painter->fillRect(option->rect, canvas.colors.window);
    default:
        QProxyStyle::drawPrimitive(element, option, painter, widget);
    }
}

void SongsweepStyle::drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                                 const QWidget* widget) const {
    if (drawButton(element, option, painter, widget)) return;
    if (drawBar(element, option, painter, widget)) return;
    QProxyStyle::drawControl(element, option, painter, widget);
}

bool SongsweepStyle::drawButton(ControlElement element, const QStyleOption* option, QPainter* painter,
                                const QWidget* widget) const {
    const painting::Canvas canvas = canvasOf(painter, option, widget);
    if (const auto* button = qstyleoption_cast<const QStyleOptionButton*>(option)) {
        if (element == CE_PushButtonBevel) {
            painting::pushButton(canvas, *button);
            return true;
        }
        if (element == CE_PushButtonLabel) {
            QStyleOptionButton label = *button;
            label.palette.setColor(QPalette::ButtonText,
                                   painting::pushButtonText(canvas.colors, *button, isDestructive(widget)));
            QProxyStyle::drawControl(element, &label, painter, widget);
            return true;
        }
        if (element == CE_CheckBoxLabel && widget != nullptr) {
            QStyleOptionButton label = *button;
            label.palette.setColor(QPalette::WindowText, label.palette.color(widget->foregroundRole()));
            QProxyStyle::drawControl(element, &label, painter, widget);
            return true;
        }
    }
    if (const auto* button = qstyleoption_cast<const QStyleOptionToolButton*>(option);
        button != nullptr && element == CE_ToolButtonLabel) {
        painting::toolButtonLabel(canvas, *button, *proxy(), widget);
        return true;
    }
    if (const auto* combo = qstyleoption_cast<const QStyleOptionComboBox*>(option);
        combo != nullptr && element == CE_ComboBoxLabel) {
        if (combo->editable) return true;
        const QRect text = proxy()->subControlRect(CC_ComboBox, combo, SC_ComboBoxEditField, widget);
        const auto flags =
            static_cast<int>(visualAlignment(combo->direction, Qt::AlignLeft) | Qt::AlignVCenter);
        const QString shown = combo->fontMetrics.elidedText(combo->currentText, Qt::ElideRight, text.width());
        proxy()->drawItemText(painter, text, flags, combo->palette, isEnabled(combo), shown,
                              QPalette::ButtonText);
        return true;
    }
    return false;
}

bool SongsweepStyle::drawBar(ControlElement element, const QStyleOption* option, QPainter* painter,
                             const QWidget* widget) const {
    const painting::Canvas canvas = canvasOf(painter, option, widget);
    switch (element) {
    case CE_ProgressBar:
        if (const auto* bar = qstyleoption_cast<const QStyleOptionProgressBar*>(option))
            painting::progressBar(canvas, *bar);
        return true;
    case CE_ToolBar:
        painting::toolBar(canvas, option->rect);
        return true;
    case CE_MenuBarItem:
        if (const auto* item = qstyleoption_cast<const QStyleOptionMenuItem*>(option))
            painting::menuBarItem(canvas, *item, *proxy());
        return true;
    case CE_MenuBarEmptyArea:
        painter->fillRect(option->rect, canvas.colors.window);
        return true;
    case CE_HeaderSection:
        if (const auto* header = qstyleoption_cast<const QStyleOptionHeader*>(option))
            painting::headerSection(canvas, *header);
        return true;
    case CE_HeaderLabel:
        if (const auto* header = qstyleoption_cast<const QStyleOptionHeader*>(option);
            header != nullptr && header->orientation == Qt::Vertical) {
            // The margin is meant for the sides; of a row of 22 it would leave six.
            QStyleOptionHeader label = *header;
            const int margin = proxy()->pixelMetric(PM_HeaderMargin, option, widget);
            label.rect.adjust(0, -margin, 0, margin);
            QProxyStyle::drawControl(element, &label, painter, widget);
            return true;
        }
        return false;
    case CE_HeaderEmptyArea:
        painter->fillRect(option->rect, canvas.colors.header);
        return true;
    case CE_ShapedFrame:
        if (const auto* frame = qstyleoption_cast<const QStyleOptionFrame*>(option);
            frame != nullptr && (frame->frameShape == QFrame::HLine || frame->frameShape == QFrame::VLine)) {
            painting::dividingLine(canvas, option->rect,
                                   frame->frameShape == QFrame::HLine ? Qt::Horizontal : Qt::Vertical);
            return true;
        }
        return false;
    case CE_FocusFrame:
        drawFocusFrame(option, painter, widget);
        return true;
    default:
        return false;
    }
}

void SongsweepStyle::drawFocusFrame(const QStyleOption* option, QPainter* painter,
                                    const QWidget* frame) const {
    constexpr qreal controlRadius = 6;
    constexpr qreal boxRadius = 4;
    const painting::Canvas canvas = canvasOf(painter, option, frame);
    const QWidget* widget = static_cast<const QFocusFrame*>(frame)->widget();
    if (widget == nullptr) return;
    QRect control(frame->mapFromGlobal(widget->mapToGlobal(QPoint())), widget->size());
    qreal radius = controlRadius * canvas.scale;
    QStyleOptionButton indicator;
    indicator.rect = control;
    indicator.direction = widget->layoutDirection();
    if (qobject_cast<const QCheckBox*>(widget) != nullptr) {
        control = proxy()->subElementRect(SE_CheckBoxIndicator, &indicator, widget);
        radius = boxRadius * canvas.scale;
    } else if (qobject_cast<const QRadioButton*>(widget) != nullptr) {
        control = proxy()->subElementRect(SE_RadioButtonIndicator, &indicator, widget);
        radius = control.width() / 2.0;
    }
    painting::focusRing(canvas, control, radius);
}

void SongsweepStyle::drawComplexControl(ComplexControl control, const QStyleOptionComplex* option,
                                        QPainter* painter, const QWidget* widget) const {
    const painting::Canvas canvas = canvasOf(painter, option, widget);
    if (const auto* combo = qstyleoption_cast<const QStyleOptionComboBox*>(option);
        combo != nullptr && control == CC_ComboBox) {
        const QRect arrow = proxy()->subControlRect(control, option, SC_ComboBoxArrow, widget);
        painting::comboBox(canvas, *combo, arrow);
        return;
    }
    if (const auto* bar = qstyleoption_cast<const QStyleOptionSlider*>(option);
        bar != nullptr && control == CC_ScrollBar) {
        painting::scrollBar(canvas, *bar,
                            proxy()->subControlRect(control, option, SC_ScrollBarSlider, widget));
        return;
    }
    if (const auto* button = qstyleoption_cast<const QStyleOptionToolButton*>(option);
        button != nullptr && control == CC_ToolButton) {
        painting::flatButton(canvas, *button);
        proxy()->drawControl(CE_ToolButtonLabel, button, painter, widget);
        return;
    }
    QProxyStyle::drawComplexControl(control, option, painter, widget);
}

} // namespace songsweep
