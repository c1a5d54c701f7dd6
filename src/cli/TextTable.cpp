// SPDX-License-Identifier: MIT
#include "cli/TextTable.h"

#include <unicode/uchar.h>
#include <unicode/utf8.h>

#include <algorithm>
#include <utility>

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

std::string cut(std::string_view text, int width) {
    return std::string(beginning(text, width - static_cast<int>(ellipsis.size()))) + std::string(ellipsis);
}

void eraseTrailingBlanks(std::string& line) { line.erase(line.find_last_not_of(' ') + 1); }

/// Looks at all characters, which the compiler does many at a time.
bool isVisibleAscii(std::string_view text) {
    bool isVisible = true;
    for (const char c : text)
        isVisible &= static_cast<unsigned char>(c - ' ') <= '~' - ' ';
    return isVisible;
}

/// A text for one line, and the places that it takes.
class LineText {
  public:
    explicit LineText(std::string_view text)
        : m_text(text)
        , m_width(static_cast<int>(text.size())) {
        if (isVisibleAscii(text)) return;
        keep(oneLine(text));
    }
    LineText(const LineText&) = delete;
    LineText& operator=(const LineText&) = delete;
    ~LineText() = default;

    std::string_view text() const { return m_text; }
    int width() const { return m_width; }

    void cutTo(int width) {
        if (m_width > width) keep(cut(m_text, width));
    }

  private:
    void keep(std::string text) {
        m_made = std::move(text);
        m_text = m_made;
        m_width = displayWidth(m_text);
    }

    std::string_view m_text;
    std::string m_made;
    int m_width;
};

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
            std::max(m_widths.at(i), std::min(LineText(cells[i]).width(), m_columns.at(i).widest));
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
        LineText cell(cells[i]);
        cell.cutTo(m_widths.at(i));
        const auto padding = static_cast<std::size_t>(m_widths.at(i) - cell.width());
        const bool isRight = m_columns.at(i).alignment == Alignment::right;
        if (i > 0) whole += gap;
        whole.append(isRight ? padding : 0, ' ').append(cell.text()).append(isRight ? 0 : padding, ' ');
    }
    eraseTrailingBlanks(whole);
    whole += '\n';
    return whole;
}

} // namespace songsweep::cli
