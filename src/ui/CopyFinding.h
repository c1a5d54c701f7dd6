// SPDX-License-Identifier: MIT
#pragma once

#include <QImage>
#include <QString>

#include <cstddef>

namespace songsweep {

/// What a look at the library and the file told of one copy, beyond its record. A value.
struct CopyFinding {
    QString playlists;           ///< that hold it, "Mix, Summer"; "None"
    QString artworkText;         ///< "600 × 600, 41 KB", "None", or why nobody knows
    QImage artwork;              ///< small; null where the file has none that can be shown
    std::size_t artworkHash = 0; ///< of the picture's bytes, by which two are the same
};

} // namespace songsweep
