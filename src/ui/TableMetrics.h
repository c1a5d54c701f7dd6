// SPDX-License-Identifier: MIT
#pragma once

#include <QFont>

namespace songsweep {

/// The lengths of the results table, which grow with its font; in device-independent pixels. A value.
struct TableMetrics {
    explicit TableMetrics(const QFont& font);

    /// A length of the design, which is drawn for a font of 13 pixels.
    int scaled(qreal length) const;

    qreal factor;  ///< of the font against 13 pixels
    int rowHeight; ///< 24, more where the font needs it
    int padding;   ///< left and right of a cell's content
    int box;       ///< side of a check box
    int image;     ///< side of the missing-file mark
    int star;      ///< width of the place of one star
};

} // namespace songsweep
