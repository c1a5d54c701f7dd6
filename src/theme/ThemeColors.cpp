// SPDX-License-Identifier: MIT
#include "theme/ThemeColors.h"

#include <QPalette>

namespace songsweep {

namespace {

constexpr ThemeColors lightColors{
    .window = {0xF3, 0xF4, 0xF7},
    .content = {0xFF, 0xFF, 0xFF},
    .text = {0x1C, 0x1F, 0x26},
    .secondaryText = {0x5A, 0x62, 0x70},
    .disabledText = {0x9A, 0xA1, 0xAD},
    .line = {0xD9, 0xDC, 0xE3},
    .hover = {0xE6, 0xE9, 0xEF},
    .pressed = {0xD9, 0xDD, 0xE5},
    .buttonFace = {0xFF, 0xFF, 0xFF},
    .buttonBorder = {0xB9, 0xC0, 0xCC},
    .indicatorOutline = {0x7F, 0x89, 0x99},
    .accent = {0x2B, 0x64, 0xC8},
    .accentBorder = {0x24, 0x58, 0xB3},
    .onAccent = {0xFF, 0xFF, 0xFF},
    .focusRing = {0x2B, 0x64, 0xC8},
    .header = {0xF8, 0xF9, 0xFB},
    .sortedHeader = {0xE9, 0xED, 0xF5},
    .sortedHeaderText = {0x1C, 0x1F, 0x26},
    .barTrack = {0xE2, 0xE5, 0xEB},
    .scrollHandle = {0xBF, 0xC5, 0xD0},
    .iconStroke = {0x3B, 0x42, 0x50},
    .quietIcon = {0x7E, 0x8A, 0xA0},
    .emptyStateDashes = {0xB9, 0xC2, 0xD1},
    .warning = {0x8F, 0x52, 0x00},
    .destructive = {0xB3, 0x26, 0x1E},
};

constexpr ThemeColors darkColors{
    .window = {0x25, 0x27, 0x2C},
    .content = {0x1D, 0x1F, 0x23},
    .text = {0xE8, 0xEA, 0xEE},
    .secondaryText = {0xA7, 0xAE, 0xBA},
    .disabledText = {0x6C, 0x72, 0x7E},
    .line = {0x39, 0x3C, 0x43},
    .hover = {0x30, 0x33, 0x3A},
    .pressed = {0x3A, 0x3D, 0x44},
    .buttonFace = {0x34, 0x37, 0x3E},
    .buttonBorder = {0x4C, 0x51, 0x5B},
    .indicatorOutline = {0x7F, 0x88, 0x98},
    .accent = {0x3A, 0x70, 0xD6},
    .accentBorder = {0x54, 0x86, 0xE2},
    .onAccent = {0xFF, 0xFF, 0xFF},
    .focusRing = {0x8A, 0xB1, 0xF8},
    .header = {0x2B, 0x2D, 0x33},
    .sortedHeader = {0x34, 0x39, 0x42},
    .sortedHeaderText = {0xE8, 0xEA, 0xEE},
    .barTrack = {0x3A, 0x3D, 0x44},
    .scrollHandle = {0x5A, 0x60, 0x6B},
    .iconStroke = {0xD3, 0xD7, 0xDF},
    .quietIcon = {0x7F, 0x88, 0x98},
    .emptyStateDashes = {0x4C, 0x52, 0x5E},
    .warning = {0xF0, 0xB4, 0x5A},
    .destructive = {0xF2, 0x8B, 0x82},
};

void setSurfaces(QPalette& palette, const ThemeColors& colors) {
    palette.setColor(QPalette::Window, colors.window);
    palette.setColor(QPalette::Base, colors.content);
    palette.setColor(QPalette::AlternateBase, colors.header);
    palette.setColor(QPalette::Button, colors.buttonFace);
    palette.setColor(QPalette::ToolTipBase, colors.content);
    palette.setColor(QPalette::Highlight, colors.accent);
    palette.setColor(QPalette::Light, colors.hover);
    palette.setColor(QPalette::Midlight, colors.pressed);
    palette.setColor(QPalette::Mid, colors.line);
    palette.setColor(QPalette::Dark, colors.buttonBorder);
    palette.setColor(QPalette::Shadow, colors.indicatorOutline);
}

void setTexts(QPalette& palette, const ThemeColors& colors) {
    for (const auto role :
         {QPalette::WindowText, QPalette::Text, QPalette::ButtonText, QPalette::ToolTipText})
        palette.setColor(role, colors.text);
    palette.setColor(QPalette::HighlightedText, colors.onAccent);
    palette.setColor(QPalette::PlaceholderText, colors.secondaryText);
    palette.setColor(QPalette::BrightText, colors.warning);
    palette.setColor(QPalette::Link, colors.focusRing);
    palette.setColor(QPalette::LinkVisited, colors.focusRing);
    for (const auto role :
         {QPalette::WindowText, QPalette::Text, QPalette::ButtonText, QPalette::PlaceholderText})
        palette.setColor(QPalette::Disabled, role, colors.disabledText);
}

} // namespace

const ThemeColors& themeColors(ThemeKind kind) { return kind == ThemeKind::dark ? darkColors : lightColors; }

ThemeKind themeKind(const QPalette& palette) {
    constexpr int halfLight = 128;
    return palette.color(QPalette::Active, QPalette::Window).lightness() < halfLight ? ThemeKind::dark
                                                                                     : ThemeKind::light;
}

const ThemeColors& themeColors(const QPalette& palette) { return themeColors(themeKind(palette)); }

QPalette themePalette(ThemeKind kind) {
    QPalette palette;
    setSurfaces(palette, themeColors(kind));
    setTexts(palette, themeColors(kind));
    return palette;
}

} // namespace songsweep
