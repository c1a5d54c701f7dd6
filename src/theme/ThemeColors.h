// SPDX-License-Identifier: MIT
#pragma once

#include <QColor>

class QPalette;

namespace songsweep {

enum class ThemeKind { light, dark };

/// Every colour of the program but those of the table's rows, as values.
///
/// There are two tables of them and no object that holds "the present theme": the palette is the carrier.
/// Whatever paints asks `themeColors(palette)`, so a palette that changes while the program runs changes
/// everything with it. Main thread or not, it does not matter; a lookup costs one comparison.
struct ThemeColors {
    QColor window;  ///< windows, toolbar, strip
    QColor content; ///< the desk below the rows, fields, an empty check box
    QColor text;
    QColor secondaryText;
    QColor disabledText;
    QColor line; ///< dividing lines
    QColor hover;
    QColor pressed;
    QColor buttonFace;
    QColor buttonBorder;
    QColor indicatorOutline; ///< of check boxes and radio buttons
    QColor accent;           ///< default button, bar, checked box
    QColor accentBorder;
    QColor onAccent;
    QColor focusRing; ///< also the sort arrow
    QColor header;
    QColor sortedHeader;
    QColor sortedHeaderText;
    QColor barTrack;
    QColor scrollHandle;
    QColor iconStroke;
    QColor quietIcon; ///< the cancel disc and the line of the empty state
    QColor emptyStateDashes;
    QColor warning;
    QColor destructive;
};

const ThemeColors& themeColors(ThemeKind kind);

/// The theme that a palette belongs to, by the lightness of its window colour; works for the system's own
/// palettes as well as for `themePalette`.
ThemeKind themeKind(const QPalette& palette);

const ThemeColors& themeColors(const QPalette& palette);

/// The palette that carries a theme. Secondary text is `PlaceholderText`, warnings are `BrightText`,
/// dividing lines `Mid`; the other roles mean what Qt says.
QPalette themePalette(ThemeKind kind);

} // namespace songsweep
