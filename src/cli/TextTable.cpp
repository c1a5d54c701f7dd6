// SPDX-License-Identifier: MIT
#include "cli/TextTable.h"

#include <unicode/uchar.h>
#include <unicode/utf8.h>

#include <algorithm>

namespace songsweep::cli {

namespace {

constexpr std::string_view gap = "  ";
constexpr std::string_view ellipsis = "...";

int widthOf(UChar32 character) {
    switch (u_charType(character)) {
    case U_NON_SPACING_MARK:
    case U_ENCLOSING_MARK:
    case U_FORMAT_CHAR:
    case U_CONTROL_CHAR:
        return 0;
    default:
        break;
    }
    const int eastAsian = u_getIntPropertyValue(character, UCHAR_EAST_ASIAN_WIDTH);
    return eastAsian == U_EA_FULLWIDTH || eastAsian == U_EA_WIDE ? 2 : 1;
}

/// The longest beginning of a text that takes at most `width` places.
std::string_view beginning(std::string_view text, int width) {
    std::int32_t end = 0;
    int used = 0;
    const auto length = static_cast<std::int32_t>(text.size());
    while (end < length) {
        std::int32_t next = end;
        UChar32 character = 0;
        U8_NEXT_OR_FFFD(text.data(), next, length, character);
        used += widthOf(character);
        if (used > width) break;
        end = next;
    }
    return text.substr(0, static_cast<std::size_t>(end));
}

/// A text for one line: line breaks and other control characters, which a name may hold, become blanks.
std::string oneLine(std::string_view text) {
    std::string line(text);
    for (char& c : line)
        if (static_cast<unsigned char>(c) < ' ' || c == '\x7F') c = ' ';
    return line;
}

std::string cut(const std::string& text, int width) {
    if (displayWidth(text) <= width) return text;
    return std::string(beginning(text, width - static_cast<int>(ellipsis.size()))) + std::string(ellipsis);
}

std::string withoutTrailingBlanks(std::string line) {
    line.erase(line.find_last_not_of(' ') + 1);
    return line;
}

bool isVisibleAscii(std::string_view text) {
    return std::all_of(text.begin(), text.end(), [](char c) { return c >= ' ' && c <= '~'; });
}

} // namespace

int displayWidth(std::string_view text) {
    if (isVisibleAscii(text)) return static_cast<int>(text.size());
    int width = 0;
    const auto length = static_cast<std::int32_t>(text.size());
    for (std::int32_t at = 0; at < length;) {
        UChar32 character = 0;
        U8_NEXT_OR_FFFD(text.data(), at, length, character);
        width += widthOf(character);
    }
    return width;
}

TextTable::TextTable(std::vector<ColumnTitle> columns)
    : m_columns(std::move(columns)) {
    for (const ColumnTitle& column : m_columns)
        m_widths.push_back(displayWidth(column.title));
}

void TextTable::measure(const std::vector<std::string>& cells) {
    for (std::size_t i = 0; i < cells.size(); ++i)
        m_widths.at(i) =
            std::max(m_widths.at(i), std::min(displayWidth(oneLine(cells[i])), m_columns.at(i).widest));
}

std::string TextTable::titles() const {
    std::vector<std::string> cells;
    for (const ColumnTitle& column : m_columns)
        cells.push_back(column.title);
    return line(cells);
}

std::string TextTable::line(const std::vector<std::string>& cells) const {
    std::string whole;
    for (std::size_t i = 0; i < cells.size(); ++i) {
        const std::string text = cut(oneLine(cells[i]), m_widths.at(i));
        const std::string padding(static_cast<std::size_t>(m_widths.at(i) - displayWidth(text)), ' ');
        if (i > 0) whole += gap;
        whole += m_columns.at(i).alignment == Alignment::right ? padding + text : text + padding;
    }
    return withoutTrailingBlanks(std::move(whole)) + '\n';
}

} // namespace songsweep::cli
