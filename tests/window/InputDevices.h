// SPDX-License-Identifier: MIT
#pragma once

#include <QPoint>
#include <QString>
#include <QStringList>

#include <string>

namespace songsweep::test {

/// The keyboard and the mouse of a display: events that come from the X server as those of real devices do.
class InputDevices {
  public:
    /// `display` as in the variable DISPLAY.
    explicit InputDevices(QString display)
        : m_display(std::move(display)) {}

    /// Presses and releases keys in the window that has the focus: "ctrl+shift+r", "Return".
    void press(const std::string& keys) const;
    void click(QPoint place) const;
    void doubleClick(QPoint place) const;

    /// The title of the window that has the focus; empty while none has it, or no window manager runs yet.
    std::string activeWindow() const;

  private:
    /// What the tool prints; it fails where there is no such window.
    struct Answer {
        bool succeeded = false;
        QString text;
    };
    Answer run(const QStringList& arguments) const;
    void act(const QStringList& arguments) const;

    QString m_display;
};

} // namespace songsweep::test
