// SPDX-License-Identifier: MIT
#include "scan/FileTitle.h"

#include <cstddef>

namespace songsweep {

namespace {

constexpr std::string_view digits = "0123456789";
constexpr std::string_view blanks = " _\t";

std::string_view withoutBlanks(std::string_view text) {
    const std::size_t begin = text.find_first_not_of(blanks);
    if (begin == std::string_view::npos) return {};
    return text.substr(begin, text.find_last_not_of(blanks) - begin + 1);
}

std::string_view stemOf(std::string_view path) {
    path.remove_prefix(path.rfind('/') + 1);
    return path.substr(0, path.rfind('.'));
}

/// A number of one to three digits at the front: its value and its length.
struct Number {
    std::int32_t value = 0;
    std::size_t length = 0;
};

Number numberAt(std::string_view text) {
    constexpr std::size_t mostDigits = 3;
    Number number;
    number.length = std::min(text.find_first_not_of(digits), text.size());
    if (number.length > mostDigits) return {};
    for (const char digit : text.substr(0, number.length))
        number.value = 10 * number.value + (digit - '0');
    return number;
}

/// The title behind a number and what parts them; the whole where no number stands there by itself.
std::string_view behindNumber(std::string_view text, const Number& number) {
    const std::string_view rest = text.substr(number.length);
    const std::size_t begin = rest.find_first_not_of(" _.-)");
    if (number.length == 0 || begin == 0 || begin == std::string_view::npos) return text;
    // A single digit with a blank alone behind it belongs to the title more often than not.
    const bool isParted = rest.substr(0, begin).find_first_of(".-)") != std::string_view::npos;
    return number.length > 1 || isParted ? rest.substr(begin) : text;
}

} // namespace

std::string titleOfFile(std::string_view path, std::int32_t trackNumber) {
    const std::string_view stem = withoutBlanks(stemOf(path));
    std::string_view numbered = stem;
    Number number = numberAt(stem);
    // "1-03 Song": the disc stands before the number.
    if (number.length == 1 && stem.size() > 2 && (stem[1] == '-' || stem[1] == '.')) {
        const Number second = numberAt(stem.substr(2));
        if (second.length == 2) {
            numbered = stem.substr(2);
            number = second;
        }
    }
    if (trackNumber != 0 && number.value % 100 != trackNumber) return std::string(stem);
    const std::string_view title = behindNumber(numbered, number);
    return std::string(title == numbered ? stem : title);
}

FileTitle splitTitle(const std::string& title) {
    constexpr std::string_view dash = " - ";
    const std::size_t at = title.find(dash);
    if (at == std::string::npos) return {{}, title};
    FileTitle parts{std::string(withoutBlanks(std::string_view(title).substr(0, at))),
                    std::string(withoutBlanks(std::string_view(title).substr(at + dash.size())))};
    if (parts.artist.empty() || parts.name.empty()) return {{}, title};
    return parts;
}

} // namespace songsweep
