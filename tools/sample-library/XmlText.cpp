// SPDX-License-Identifier: MIT
#include "sample-library/XmlText.h"

#include <charconv>
#include <chrono>

namespace songsweep::sample {

namespace {

constexpr std::string_view hexDigits = "0123456789ABCDEF";

bool standsInUrl(char character) {
    constexpr std::string_view unreserved = "-_.~/!$'()*+,:=@";
    return (character >= 'a' && character <= 'z') || (character >= 'A' && character <= 'Z') ||
           (character >= '0' && character <= '9') || unreserved.find(character) != std::string_view::npos;
}

void appendPadded(std::string& text, std::int64_t value, std::size_t digits) {
    const auto before = text.size();
    appendNumber(text, value);
    const auto written = text.size() - before;
    if (written < digits) text.insert(before, digits - written, '0');
}

} // namespace

void appendEscaped(std::string& text, std::string_view value) {
    for (const char character : value) {
        switch (character) {
        case '&':
            text += "&#38;";
            break;
        case '<':
            text += "&#60;";
            break;
        case '>':
            text += "&#62;";
            break;
        default:
            text += character;
        }
    }
}

void appendFileUrl(std::string& text, std::string_view path) {
    text += "file://";
    for (const char character : path) {
        if (standsInUrl(character)) {
            text += character;
            continue;
        }
        const auto byte = static_cast<unsigned char>(character);
        text += '%';
        text += hexDigits[byte >> 4U];
        text += hexDigits[byte & 15U];
    }
}

void appendNumber(std::string& text, std::int64_t value) {
    char digits[24];
    const auto end = std::to_chars(std::begin(digits), std::end(digits), value).ptr;
    text.append(digits, end);
}

void appendHex(std::string& text, std::uint64_t value) {
    for (int shift = 60; shift >= 0; shift -= 4)
        text += hexDigits[(value >> static_cast<unsigned>(shift)) & 15U];
}

void appendDate(std::string& text, std::int64_t secondsSince1970) {
    using namespace std::chrono;
    const sys_seconds moment{seconds(secondsSince1970)};
    const auto day = floor<days>(moment);
    const year_month_day date(day);
    const hh_mm_ss time(moment - day);
    appendPadded(text, static_cast<int>(date.year()), 4);
    text += '-';
    appendPadded(text, static_cast<unsigned>(date.month()), 2);
    text += '-';
    appendPadded(text, static_cast<unsigned>(date.day()), 2);
    text += 'T';
    appendPadded(text, time.hours().count(), 2);
    text += ':';
    appendPadded(text, time.minutes().count(), 2);
    text += ':';
    appendPadded(text, time.seconds().count(), 2);
    text += 'Z';
}

} // namespace songsweep::sample
