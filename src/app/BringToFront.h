// SPDX-License-Identifier: MIT
#pragma once

#include <QWidget>

namespace songsweep {

/// Shows a window above all others, with the keyboard.
inline void bringToFront(QWidget& window) {
    window.show();
    window.raise();
    window.activateWindow();
}

} // namespace songsweep
