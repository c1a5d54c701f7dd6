// SPDX-License-Identifier: MIT
#pragma once

#include <QTextDocument>

namespace songsweep {

/// A tool tip takes whatever looks like markup for it; names of tracks and playlists are none.
inline QString plainToolTip(const QString& text) {
    if (!Qt::mightBeRichText(text)) return text;
    return QStringLiteral("<span>%1</span>").arg(text.toHtmlEscaped());
}

} // namespace songsweep
