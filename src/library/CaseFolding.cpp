// SPDX-License-Identifier: MIT
#include "library/CaseFolding.h"

#include "platform/Ascii.h"

#include <unicode/bytestream.h>
#include <unicode/casemap.h>
#include <unicode/normalizer2.h>
#include <unicode/uchar.h>
#include <unicode/utf8.h>

#include <algorithm>
#include <cstdint>
#include <stdexcept>

namespace songsweep {

namespace {

void requireSuccess(UErrorCode status) {
    if (U_FAILURE(status)) throw std::runtime_error(std::string("Unicode data: ") + u_errorName(status));
}

icu::StringPiece piece(std::string_view text) {
    return {text.data(), static_cast<std::int32_t>(text.size())};
}

std::string decomposed(std::string_view text) {
    UErrorCode status = U_ZERO_ERROR;
    const icu::Normalizer2* const nfd = icu::Normalizer2::getNFDInstance(status);
    requireSuccess(status);
    std::string result;
    icu::StringByteSink<std::string> sink(&result);
    nfd->normalizeUTF8(0, piece(text), sink, nullptr, status);
    requireSuccess(status);
    return result;
}

void appendFoldedCharacters(std::string& key, std::string_view text) {
    const auto length = static_cast<std::int32_t>(text.size());
    for (std::int32_t position = 0; position < length;) {
        UChar32 character = 0;
        U8_NEXT_OR_FFFD(text.data(), position, length, character);
        char bytes[U8_MAX_LENGTH];
        std::int32_t count = 0;
        U8_APPEND_UNSAFE(bytes, count, u_foldCase(character, U_FOLD_CASE_DEFAULT));
        key.append(bytes, static_cast<std::size_t>(count));
    }
}

using AsciiMapping = char (*)(char);
using UnicodeMapping = void (*)(const char* locale, std::uint32_t options, icu::StringPiece text,
                                icu::ByteSink& sink, icu::Edits* edits, UErrorCode& status);

std::string converted(std::string_view text, AsciiMapping ascii, UnicodeMapping unicode) {
    std::string result;
    if (isAscii(text)) {
        result.resize(text.size());
        std::transform(text.begin(), text.end(), result.begin(), ascii);
        return result;
    }
    icu::StringByteSink<std::string> sink(&result);
    UErrorCode status = U_ZERO_ERROR;
    unicode("", 0, piece(text), sink, nullptr, status);
    requireSuccess(status);
    return result;
}

int sign(int difference) { return (difference > 0) - (difference < 0); }

} // namespace

void appendFoldedKey(std::string& key, std::string_view text) {
    // A plain letter is never changed by what stands behind it, so only the rest has to be decomposed.
    const auto firstOther = std::find_if_not(text.begin(), text.end(), [](char c) { return isAscii(c); });
    const auto plain = static_cast<std::size_t>(firstOther - text.begin());
    const std::size_t start = key.size();
    key.append(text.substr(0, plain));
    std::transform(key.begin() + static_cast<std::ptrdiff_t>(start), key.end(),
                   key.begin() + static_cast<std::ptrdiff_t>(start), [](char c) { return asciiLower(c); });
    if (plain < text.size()) appendFoldedCharacters(key, decomposed(text.substr(plain)));
}

std::string foldedKey(std::string_view text) {
    std::string key;
    appendFoldedKey(key, text);
    return key;
}

bool equalIgnoringCase(std::string_view a, std::string_view b) {
    const auto [restA, restB] = std::mismatch(a.begin(), a.end(), b.begin(), b.end(),
                                              [](char x, char y) { return asciiLower(x) == asciiLower(y); });
    if (restA == a.end() && restB == b.end()) return true;
    // No accent behind it makes a plain letter another one, nor an ended text a longer one.
    const bool plainA = restA == a.end() || isAscii(*restA);
    const bool plainB = restB == b.end() || isAscii(*restB);
    if (plainA && plainB) return false;
    return foldedKey(a) == foldedKey(b);
}

int compareIgnoringCase(std::string_view a, std::string_view b) {
    return sign(foldedKey(a).compare(foldedKey(b)));
}

std::string lowercase(std::string_view text) {
    return converted(text, asciiLower, icu::CaseMap::utf8ToLower);
}
std::string uppercase(std::string_view text) {
    return converted(text, asciiUpper, icu::CaseMap::utf8ToUpper);
}

} // namespace songsweep
