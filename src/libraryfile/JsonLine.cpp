// SPDX-License-Identifier: MIT
#include "libraryfile/JsonLine.h"

#include "platform/Utf8.h"

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

} // namespace songsweep
