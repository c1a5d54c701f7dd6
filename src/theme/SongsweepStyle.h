// SPDX-License-Identifier: MIT
#pragma once

#include "theme/FocusRing.h"
#include "theme/ReturnKey.h"
#include "theme/WidgetRoles.h"

#include <QProxyStyle>

class QApplication;

namespace songsweep {

/// Gives the application its style and its icon. Call it once there is one, before the first window.
void applyTheme(QApplication& application);

/// The look of every window, over Fusion: flat controls, one accent colour, lengths that grow with the font.
///
/// A proxy style, and no style sheet, because a style reaches all folders' widgets without being included by
/// them, takes its colours from the palette, and keeps Qt's geometry and accessibility. The palette hook
/// replaces whatever palette the system has by the light or the dark theme, also each time it changes.
/// Widgets say what they are by dynamic properties, see WidgetRoles. Main thread.
class SongsweepStyle : public QProxyStyle {
    Q_OBJECT

  public:
    SongsweepStyle();

    using QProxyStyle::polish;
    void polish(QApplication* application) override;
    void polish(QPalette& palette) override;
    void polish(QWidget* widget) override;

    int pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const override;
    int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                  QStyleHintReturn* returnData) const override;
    QSize sizeFromContents(ContentsType type, const QStyleOption* option, const QSize& contents,
                           const QWidget* widget) const override;
    QRect subElementRect(SubElement element, const QStyleOption* option,
                         const QWidget* widget) const override;
    QRect subControlRect(ComplexControl control, const QStyleOptionComplex* option, SubControl part,
                         const QWidget* widget) const override;
    void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                       const QWidget* widget) const override;
    void drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget) const override;
    void drawComplexControl(ComplexControl control, const QStyleOptionComplex* option, QPainter* painter,
                            const QWidget* widget) const override;
    QIcon standardIcon(StandardPixmap icon, const QStyleOption* option, const QWidget* widget) const override;

    /// Shows the mnemonics' underlines while Alt is held.
    bool eventFilter(QObject* object, QEvent* event) override;

  private:
    void revealMnemonics(bool revealed);
    bool drawButton(ControlElement element, const QStyleOption* option, QPainter* painter,
                    const QWidget* widget) const;
    bool drawBar(ControlElement element, const QStyleOption* option, QPainter* painter,
                 const QWidget* widget) const;
    void drawFocusFrame(const QStyleOption* option, QPainter* painter, const QWidget* frame) const;

    FocusRing m_focusRing;
    ReturnKey m_returnKey;
    WidgetRoles m_roles;
    bool m_mnemonicsRevealed = false;
};

} // namespace songsweep
