// SPDX-License-Identifier: MIT
#pragma once

#include "library/Columns.h"

#include <string>
#include <string_view>
#include <vector>

namespace songsweep::cli {

/// The places that a text takes in a terminal: two for East Asian wide characters, none for combining marks.
int displayWidth(std::string_view text);

/// Columns of a table for people: first told every row, to learn the widths, then asked for lines.
///
/// Two passes over the rows, and no row is kept.
class TextTable {
  public:
    struct ColumnTitle {
        std::string title;
        Alignment alignment;
        int widest; ///< longer texts are cut with "..."
    };

    explicit TextTable(std::vector<ColumnTitle> columns);

    void measure(const std::vector<std::string>& cells);
    std::string titles() const;
    std::string line(const std::vector<std::string>& cells) const;

  private:
    std::vector<ColumnTitle> m_columns;
    std::vector<int> m_widths;
};

} // namespace songsweep::cli
