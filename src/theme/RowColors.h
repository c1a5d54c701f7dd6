// SPDX-License-Identifier: MIT
#pragma once

#include <QColor>

namespace songsweep {

/// The colours of the table's rows in one state of selection. Rows are paper: the same in every theme.
struct RowColors {
    QColor text;
    QColor secondaryText; ///< "No", and every text of a row with a missing file
    QColor stars;
    QColor starDots; ///< the places without a star
    QColor boxOutline;
    QColor boxFill; ///< of an empty check box
    QColor checkedBox;
    QColor tick;
    QColor currentOutline; ///< inner outline of the current row with keyboard focus
};

enum class RowState { plain, selected, selectedInactive };

inline constexpr QColor tintedBand{0xED, 0xF3, 0xFE};
inline constexpr QColor whiteBand{0xFF, 0xFF, 0xFF};
inline constexpr QColor selectedBand{0x2B, 0x64, 0xC8};
inline constexpr QColor selectedInactiveBand{0xD3, 0xD9, 0xE4};

const RowColors& rowColors(RowState state);

} // namespace songsweep
