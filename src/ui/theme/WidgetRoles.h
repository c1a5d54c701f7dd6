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
/// - "role" of a push button: "destructive" (text in the destructive colour).
/// - "baseWidth", "baseHeight" of any widget: least lengths in pixels of a 13 px font.
/// - "baseFixedWidth" of any widget: such a length, neither less nor more.
///
/// They are applied when the widget is first shown and again when its window's font changes. Main thread.
class WidgetRoles : public QObject {
    Q_OBJECT

  public:
    void polish(QWidget* widget);

    bool eventFilter(QObject* object, QEvent* event) override;
};

} // namespace songsweep
