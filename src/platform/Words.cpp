// SPDX-License-Identifier: MIT
#include "platform/Words.h"

#include <QCoreApplication>
#include <QLocale>

#include <clocale>
#include <set>
#include <string>

namespace songsweep {

namespace {

bool isPlaceholder(std::string_view text, std::size_t at) {
    return text[at] == '%' && at + 1 < text.size() && text[at + 1] >= '1' && text[at + 1] <= '9';
}

/// The digits of the placeholders, each once, ascending.
std::string digitsOf(std::string_view text) {
    std::set<char> digits;
    for (std::size_t at = 0; at < text.size(); ++at)
        if (isPlaceholder(text, at)) digits.insert(text[at + 1]);
    return {digits.begin(), digits.end()};
}

/// The C locale knows no groups of digits; Qt takes it for American English, which has them.
bool isPlainLocale() {
    const char* const name = std::setlocale(LC_NUMERIC, nullptr);
    const bool isC = name != nullptr && (std::string_view(name) == "C" || std::string_view(name) == "POSIX" ||
                                         std::string_view(name).starts_with("C."));
    return isC && QLocale() == QLocale::system();
}

/// The number in the place of every "%1": a wording for one need not have it, and then begins with "%2".
std::string withCount(std::string text, std::string_view number) {
    constexpr std::string_view placeholder = "%1";
    for (std::size_t at = text.find(placeholder); at != std::string::npos;
         at = text.find(placeholder, at + number.size()))
        text.replace(at, placeholder.size(), number);
    return text;
}

} // namespace

std::string words(const char* context, const char* text) {
    return QCoreApplication::translate(context, text).toStdString();
}

std::string countedWords(const char* context, const char* many, const char* one, std::int64_t count) {
    const auto number = static_cast<int>(count);
    const std::string found = QCoreApplication::translate(context, many, one, number).toStdString();
    const bool isEnglish = found == many;
    return withCount(isEnglish && count == 1 ? one : found, numberText(count));
}

std::string countedWords(const Countable& text, std::int64_t count) {
    return countedWords(text.context, text.many, text.one, count);
}

std::string numberText(std::int64_t number) {
    if (isPlainLocale()) return std::to_string(number);
    return QLocale().toString(static_cast<qlonglong>(number)).toStdString();
}

std::string filled(std::string_view text, std::initializer_list<std::string_view> values) {
    const std::string digits = digitsOf(text);
    std::string made;
    for (std::size_t at = 0; at < text.size(); ++at) {
        const std::size_t number = isPlaceholder(text, at) ? digits.find(text[at + 1]) : std::string::npos;
        if (number < values.size())
            made += values.begin()[number];
        else if (number != std::string::npos)
            made += text.substr(at, 2);
        else {
            made += text[at];
            continue;
        }
        ++at;
    }
    return made;
}

} // namespace songsweep
