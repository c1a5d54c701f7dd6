// SPDX-License-Identifier: MIT
#include "theme/RowColors.h"

namespace songsweep {

namespace {

constexpr QColor white{0xFF, 0xFF, 0xFF};
constexpr QColor accent{0x2B, 0x64, 0xC8};
constexpr QColor outline{0x7F, 0x89, 0x99};

constexpr RowColors plainRow{
    .text = {0x1C, 0x1F, 0x26},
    .secondaryText = {0x5A, 0x62, 0x70},
    .stars = {0x4A, 0x63, 0x92},
    .starDots = {0xB4, 0xBE, 0xCF},
    .boxOutline = outline,
    .boxFill = white,
    .checkedBox = accent,
    .tick = white,
    .currentOutline = accent,
};

constexpr RowColors selectedRow{
    .text = white,
    .secondaryText = white,
    .stars = white,
    .starDots = {0x9D, 0xBB, 0xF0},
    .boxOutline = white,
    .boxFill = white,
    .checkedBox = white,
    .tick = accent,
    .currentOutline = {0x12, 0x39, 0x7F},
};

constexpr RowColors selectedInactiveRow{
    .text = {0x1C, 0x1F, 0x26},
    .secondaryText = {0x4A, 0x52, 0x60},
    .stars = {0x3F, 0x56, 0x7F},
    .starDots = {0xB4, 0xBE, 0xCF},
    .boxOutline = outline,
    .boxFill = white,
    .checkedBox = accent,
    .tick = white,
    .currentOutline = accent,
};

} // namespace

const RowColors& rowColors(RowState state) {
    switch (state) {
    case RowState::selected:
        return selectedRow;
    case RowState::selectedInactive:
        return selectedInactiveRow;
    case RowState::plain:
        break;
    }
    return plainRow;
}

} // namespace songsweep
