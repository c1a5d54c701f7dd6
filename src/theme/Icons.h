// SPDX-License-Identifier: MIT
#pragma once

#include "theme/ThemeColors.h"

#include <QIcon>

class QByteArray;
class QPainter;
class QRectF;

namespace songsweep {

/// The drawings of the program. Their sources are SVG files with one colour that is filled in here.
enum class Icon {
    search,
    mark,
    bin,
    binLarge, ///< thin lines, for 40 px
    cancel,   ///< a cross in a disc
    warning,  ///< an exclamation mark in a triangle
    note,
    star,
    starDot, ///< the place of a missing star
    emptyState,
    application,
    applicationSmall,
};

/// Draws an icon in a theme's colours into `target`, keeping the proportions; vectors at every scale.
void paintIcon(QPainter& painter, Icon icon, const QRectF& target, const ThemeColors& colors);

/// Draws an icon of one colour in a colour of the caller's choice: stars on a selected row.
void paintIcon(QPainter& painter, Icon icon, const QRectF& target, const QColor& color);

/// An icon that takes its colours from the application's palette each time it is painted, so that it follows
/// a change of theme; disabled it takes the disabled text colour.
QIcon themedIcon(Icon icon);

/// The program's own icon: the full drawing, up to 24 px the note alone.
QIcon applicationIcon();

} // namespace songsweep
