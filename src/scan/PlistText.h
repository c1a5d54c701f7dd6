// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace songsweep {

/// Appends the lines of a library file to a text, as iTunes lays them out: "<tabs><key>Name</key><string>…".
///
/// Texts hold only characters that XML knows. The text outlives the object.
class PlistText {
  public:
    /// `indent` is the tabs before every line.
    PlistText(std::string& text, std::string_view indent)
        : m_text(text)
        , m_indent(indent) {}

    /// Nothing for 0, as iTunes does.
    void number(std::string_view key, std::int64_t value);
    /// Nothing for "".
    void string(std::string_view key, std::string_view value);
    void date(std::string_view key, std::int64_t secondsSince1970);
    /// 16 hexadecimal digits.
    void identity(std::string_view key, std::uint64_t value);
    void flag(std::string_view key, bool value);
    /// The key alone: a value of several lines follows.
    void key(std::string_view key);
    void line(std::string_view text);

  private:
    std::string& m_text;
    std::string_view m_indent;
};

} // namespace songsweep
