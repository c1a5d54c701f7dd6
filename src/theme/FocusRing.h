// SPDX-License-Identifier: MIT
#pragma once

#include <QFocusFrame>
#include <QPointer>

class QApplication;
class QWidget;

namespace songsweep {

/// The ring around the control that has the keyboard focus.
///
/// It lies 2 px outside the control, where the control itself cannot paint, so it is a frame of its own on
/// top of the window's other widgets: no neighbour and no container cuts it. There is one for the
/// application, moved to where the focus goes; tables and other views show their current row instead. Main
/// thread.
class FocusRing : public QObject {
    Q_OBJECT

  public:
    /// Pixels from the control's edge to the ring's outer edge, for a font of 13 px.
    static constexpr int reach = 4;

    void follow(QApplication* application);

  private:
    void moveTo(QWidget* widget);

    QPointer<QFocusFrame> m_frame;
};

} // namespace songsweep
