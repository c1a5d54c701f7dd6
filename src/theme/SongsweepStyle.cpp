// SPDX-License-Identifier: MIT
#include "theme/SongsweepStyle.h"

#include "theme/Icons.h"
#include "theme/Metrics.h"
#include "theme/ThemeColors.h"

#include <QApplication>
#include <QDialogButtonBox>
#include <QKeyEvent>
#include <QStyleHints>
#include <QWidget>

namespace songsweep {

namespace {

ThemeKind systemTheme(const QPalette& systemPalette) {
#if QT_VERSION >= QT_VERSION_CHECK(6, 5, 0)
    const Qt::ColorScheme scheme = QGuiApplication::styleHints()->colorScheme();
    if (scheme != Qt::ColorScheme::Unknown)
        return scheme == Qt::ColorScheme::Dark ? ThemeKind::dark : ThemeKind::light;
#endif
    return themeKind(systemPalette);
}

/// A desktop that says nothing about the order of buttons is taken for Windows by Qt; the program never runs
/// there, and the desktops that say nothing place the button that confirms at the right.
int buttonLayout(int ofPlatform) {
    return ofPlatform == QDialogButtonBox::WinLayout ? QDialogButtonBox::GnomeLayout : ofPlatform;
}

} // namespace

void applyTheme(QApplication& /*application*/) {
    QApplication::setStyle(new SongsweepStyle);
    QApplication::setWindowIcon(applicationIcon());
}

SongsweepStyle::SongsweepStyle()
    : QProxyStyle(QStringLiteral("fusion")) {}

void SongsweepStyle::polish(QApplication* application) {
    QProxyStyle::polish(application);
    m_focusRing.follow(application);
    m_returnKey.follow(application);
    application->installEventFilter(this);
}

void SongsweepStyle::polish(QPalette& palette) { palette = themePalette(systemTheme(palette)); }

void SongsweepStyle::polish(QWidget* widget) {
    QProxyStyle::polish(widget);
    if (widget->inherits("QTipLabel")) widget->setPalette(QApplication::palette());
    m_roles.polish(widget);
}

int SongsweepStyle::styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                              QStyleHintReturn* returnData) const {
    switch (hint) {
    case SH_UnderlineShortcut:
        return m_mnemonicsRevealed ? 1 : 0;
    case SH_DialogButtonLayout:
        return buttonLayout(QProxyStyle::styleHint(hint, option, widget, returnData));
    case SH_FocusFrame_AboveWidget:
        return 1;
    case SH_FocusFrame_Mask: // the ring is drawn, not cut out
    case SH_DialogButtonBox_ButtonsHaveIcons:
    case SH_ComboBox_Popup:
    case SH_ToolBar_Movable:
    case SH_Widget_Animation_Duration:
    case SH_EtchDisabledText:
        return 0;
    default:
        return QProxyStyle::styleHint(hint, option, widget, returnData);
    }
}

QIcon SongsweepStyle::standardIcon(StandardPixmap icon, const QStyleOption* option,
                                   const QWidget* widget) const {
    if (icon == SP_MessageBoxWarning) return themedIcon(Icon::warning);
    return QProxyStyle::standardIcon(icon, option, widget);
}

bool SongsweepStyle::eventFilter(QObject* object, QEvent* event) {
    const QEvent::Type type = event->type();
    if (type == QEvent::KeyPress || type == QEvent::KeyRelease) {
        if (static_cast<QKeyEvent*>(event)->key() == Qt::Key_Alt) revealMnemonics(type == QEvent::KeyPress);
    } else if (type == QEvent::ApplicationDeactivate) {
        revealMnemonics(false);
    }
    return QProxyStyle::eventFilter(object, event);
}

void SongsweepStyle::revealMnemonics(bool revealed) {
    if (m_mnemonicsRevealed == revealed) return;
    m_mnemonicsRevealed = revealed;
    for (QWidget* window : QApplication::topLevelWidgets()) {
        for (QWidget* widget : window->findChildren<QWidget*>())
            widget->update();
    }
}

} // namespace songsweep
