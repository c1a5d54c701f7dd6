// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>

class QWidget;

namespace songsweep {

/// What a widget says about itself by dynamic properties, and what the style makes of it. So a dialog can be
/// a heading or a warning without knowing any colour or font size, and a layout file holds lengths that grow.
///
/// - "role" of a label: "heading" (1.15, bold), "title" (1.4), "secondary" (quieter), "helper" (quieter and
///   0.92), "small" (0.92), "warning" (warning colour), "smallWarning" (warning colour, 0.92).
/// - "role" of a push button: "destructive" (text in the destructive colour), "inline" (beside a field and as
///   high as it).
/// - "baseWidth", "baseHeight" of any widget: least lengths in pixels of a 13 px font.
/// - "baseFixedHeight" of any widget: a height, neither less nor more.
/// - "baseIndent" of a label: how far its text stands from its left edge.
/// - "icon" of a label: "application", "bin" or "warning", drawn "baseIconSize" large in the theme's colours.
///
/// They are applied when the widget is first shown and again when its window's font or palette changes. Main
/// thread.
class WidgetRoles : public QObject {
    Q_OBJECT

  public:
    void polish(QWidget* widget);

    bool eventFilter(QObject* object, QEvent* event) override;
};

} // namespace songsweep
