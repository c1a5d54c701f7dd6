// SPDX-License-Identifier: MIT
#pragma once

#include <compare>
#include <string>
#include <string_view>

namespace songsweep {

/// A text of a record: a pointer to bytes in UTF-8, ended by a zero, that somebody else keeps.
///
/// Eight bytes instead of the sixteen of a string view, which counts in a million records of ten texts each.
/// The length is found when asked for. Library texts hold no zero byte: XML has none. The bytes live in the
/// TrackStorage of the search, or are a literal.
class Text {
  public:
    constexpr Text() = default;
    constexpr Text(const char* zeroTerminated)
        : m_bytes(zeroTerminated) {}

    constexpr std::string_view view() const { return m_bytes; }
    constexpr operator std::string_view() const { return view(); }
    std::string string() const { return std::string(view()); }
    constexpr const char* c_str() const { return m_bytes; }
    constexpr bool empty() const { return *m_bytes == '\0'; }

    friend constexpr bool operator==(Text a, Text b) {
        return a.m_bytes == b.m_bytes || a.view() == b.view();
    }
    friend constexpr bool operator==(Text a, std::string_view b) { return a.view() == b; }
    friend constexpr bool operator==(Text a, const char* b) { return a.view() == b; }

  private:
    const char* m_bytes = "";
};

} // namespace songsweep
