// SPDX-License-Identifier: MIT
#pragma once

#include <QAccessible>
#include <QString>

namespace songsweep {

/// Has assistive technology say a text that a widget shows, although the focus is elsewhere. Before Qt 6.8 an
/// alert is all there is, which not every platform passes on. Main thread.
template <class Widget>
void announce(Widget& widget, const QString& text) {
#if QT_VERSION >= QT_VERSION_CHECK(6, 8, 0)
    QAccessibleAnnouncementEvent announcement(&widget, text);
#else
    static_cast<void>(text);
    QAccessibleEvent announcement(&widget, QAccessible::Alert);
#endif
    QAccessible::updateAccessibility(&announcement);
}

/// Shows a text in a widget, and announces it where it is a new one that can be seen.
template <class Widget>
void showLive(Widget& widget, const QString& text) {
    if (widget.text() == text) return;
    widget.setText(text);
    if (!text.isEmpty() && widget.isVisible()) announce(widget, text);
}

} // namespace songsweep
