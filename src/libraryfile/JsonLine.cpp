// SPDX-License-Identifier: MIT
#include "libraryfile/JsonLine.h"

#include <array>
#include <charconv>

namespace songsweep {

namespace {

constexpr std::string_view hexDigits = "0123456789abcdef";

void appendEscaped(std::string& line, std::string_view text) {
    for (const char c : text) {
        const auto byte = static_cast<unsigned char>(c);
        if (c == '"' || c == '\\') {
            line += '\\';
            line += c;
        } else if (byte < 0x20) {
            line += "\\u00";
            line += hexDigits[byte >> 4];
            line += hexDigits[byte & 15];
        } else {
            line += c;
        }
    }
}

void appendEncoded(std::string& line, std::string_view bytes) {
    for (const char c : bytes) {
        const auto byte = static_cast<unsigned char>(c);
        if (byte > 0x20 && byte < 0x7F && c != '%' && c != '"' && c != '\\') {
            line += c;
        } else {
            line += '%';
            line += hexDigits[byte >> 4];
            line += hexDigits[byte & 15];
        }
    }
}

/// The length of the character that the bytes begin with; 0 where they begin with none.
std::size_t characterLength(std::string_view bytes) {
    const auto at = [&](std::size_t i) {
        return i < bytes.size() ? static_cast<unsigned char>(bytes[i]) : 0U;
    };
    const auto follows = [&](std::size_t i) { return (at(i) & 0xC0U) == 0x80U; };
    const unsigned first = at(0);
    if (first < 0x80) return 1;
    if (first >= 0xC2 && first < 0xE0) return follows(1) ? 2 : 0;
    if (first >= 0xE0 && first < 0xF0) {
        const bool overlong = first == 0xE0 && at(1) < 0xA0;
        const bool surrogate = first == 0xED && at(1) >= 0xA0;
        return follows(1) && follows(2) && !overlong && !surrogate ? 3 : 0;
    }
    if (first >= 0xF0 && first < 0xF5) {
        const bool overlong = first == 0xF0 && at(1) < 0x90;
        const bool beyond = first == 0xF4 && at(1) >= 0x90;
        return follows(1) && follows(2) && follows(3) && !overlong && !beyond ? 4 : 0;
    }
    return 0;
}

} // namespace

JsonLine& JsonLine::text(std::string_view key, std::string_view value) {
    const bool plain = isUtf8(value);
    addKey(key, plain ? "" : "Encoded");
    m_line += '"';
    if (plain) {
        appendEscaped(m_line, value);
    } else {
        appendEncoded(m_line, value);
    }
    m_line += '"';
    return *this;
}

JsonLine& JsonLine::number(std::string_view key, std::int64_t value) {
    addKey(key);
    addDigits(value);
    return *this;
}

JsonLine& JsonLine::numbers(std::string_view key, std::span<const std::size_t> values) {
    addKey(key);
    m_line += '[';
    for (const std::size_t value : values) {
        if (m_line.back() != '[') m_line += ',';
        addDigits(static_cast<std::int64_t>(value));
    }
    m_line += ']';
    return *this;
}

JsonLine& JsonLine::truth(std::string_view key, bool value) {
    addKey(key);
    m_line += value ? "true" : "false";
    return *this;
}

const std::string& JsonLine::finished() {
    m_line += m_line.empty() ? "{}\n" : "}\n";
    return m_line;
}

void JsonLine::addKey(std::string_view key, std::string_view suffix) {
    m_line += m_line.empty() ? '{' : ',';
    m_line += '"';
    m_line += key;
    m_line += suffix;
    m_line += "\":";
}

void JsonLine::addDigits(std::int64_t value) {
    std::array<char, 24> digits{};
    const auto end = std::to_chars(digits.data(), digits.data() + digits.size(), value).ptr;
    m_line.append(digits.data(), end);
}

bool isUtf8(std::string_view bytes) {
    while (!bytes.empty()) {
        const std::size_t length = characterLength(bytes);
        if (length == 0) return false;
        bytes.remove_prefix(length);
    }
    return true;
}

} // namespace songsweep
