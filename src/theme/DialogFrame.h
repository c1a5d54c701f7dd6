// SPDX-License-Identifier: MIT
#pragma once

#include <Qt>
#include <QtGlobal>

namespace songsweep {

/// The flags of a dialog whose frame has a title and a cross, and no button to minimise it: a dialog that is
/// out of sight leaves a window behind that answers nothing.
inline Qt::WindowFlags dialogFrame(Qt::WindowType type) {
    return type | Qt::CustomizeWindowHint | Qt::WindowTitleHint | Qt::WindowSystemMenuHint |
           Qt::WindowCloseButtonHint;
}

} // namespace songsweep
