// SPDX-License-Identifier: MIT
#pragma once

#include <string>

namespace songsweep::interpreter {

/// A place in a text, both counted from 1, columns in characters.
struct Position {
    int line = 1;
    int column = 1;
    bool operator==(const Position&) const = default;
};

/// "line 2, column 5: reason".
inline std::string locatedText(Position position, const std::string& reason) {
    return "line " + std::to_string(position.line) + ", column " + std::to_string(position.column) + ": " +
           reason;
}

} // namespace songsweep::interpreter
