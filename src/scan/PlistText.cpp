// SPDX-License-Identifier: MIT
#include "scan/PlistText.h"

#include "libraryfile/XmlText.h"

#include <algorithm>
#include <array>
#include <chrono>
#include <cstdio>

namespace songsweep {

namespace {

constexpr std::int64_t earliest = -2'082'844'800; // 1904-01-01
constexpr std::int64_t latest = 253'402'300'799;  // 9999-12-31

} // namespace

void PlistText::number(std::string_view key, std::int64_t value) {
    if (value == 0) return;
    this->key(key);
    m_text += "<integer>";
    m_text += std::to_string(value);
    m_text += "</integer>\n";
}

void PlistText::string(std::string_view key, std::string_view value) {
    if (value.empty()) return;
    this->key(key);
    m_text += "<string>";
    m_text += encodeXmlText(value).value_or("");
    m_text += "</string>\n";
}

void PlistText::date(std::string_view key, std::int64_t secondsSince1970) {
    using namespace std::chrono;
    // A file system may tell times that no calendar has, and one date that cannot be read spoils a library.
    const std::int64_t held = std::clamp(secondsSince1970, earliest, latest);
    const sys_seconds instant{seconds(held)};
    const auto day = floor<days>(instant);
    const year_month_day date(day);
    const hh_mm_ss time(instant - day);
    std::array<char, 64> text{};
    std::snprintf(text.data(), text.size(), "<date>%04d-%02u-%02uT%02d:%02d:%02dZ</date>\n", int(date.year()),
                  unsigned(date.month()), unsigned(date.day()), int(time.hours().count()),
                  int(time.minutes().count()), int(time.seconds().count()));
    this->key(key);
    m_text += text.data();
}

void PlistText::identity(std::string_view key, std::uint64_t value) {
    constexpr std::string_view digits = "0123456789ABCDEF";
    this->key(key);
    m_text += "<string>";
    for (unsigned shift = 64; shift > 0; shift -= 4)
        m_text += digits[(value >> (shift - 4)) & 0xFU];
    m_text += "</string>\n";
}

void PlistText::flag(std::string_view key, bool value) {
    this->key(key);
    m_text += value ? "<true/>\n" : "<false/>\n";
}

void PlistText::key(std::string_view key) {
    m_text += m_indent;
    m_text += "<key>";
    m_text += key;
    m_text += "</key>";
}

void PlistText::line(std::string_view text) {
    m_text += m_indent;
    m_text += text;
    m_text += '\n';
}

} // namespace songsweep
