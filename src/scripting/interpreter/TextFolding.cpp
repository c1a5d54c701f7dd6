// SPDX-License-Identifier: MIT
#include "scripting/interpreter/TextFolding.h"

#include "platform/Ascii.h"
#include "scripting/interpreter/Words.h"

#include <unicode/bytestream.h>
#include <unicode/casemap.h>
#include <unicode/normalizer2.h>

#include <algorithm>

namespace songsweep::interpreter {
namespace {

bool startsCharacter(char byte) { return (static_cast<unsigned char>(byte) & 0xC0U) != 0x80U; }

std::string decomposed(const std::string& text) {
    UErrorCode status = U_ZERO_ERROR;
    const icu::Normalizer2* const normalizer = icu::Normalizer2::getNFDInstance(status);
    if (U_FAILURE(status)) return text;
    std::string result;
    icu::StringByteSink<std::string> sink(&result);
    normalizer->normalizeUTF8(0, text, sink, nullptr, status);
    return U_FAILURE(status) ? text : result;
}

std::string caseFolded(const std::string& text) {
    UErrorCode status = U_ZERO_ERROR;
    std::string result;
    icu::StringByteSink<std::string> sink(&result);
    icu::CaseMap::utf8Fold(0, text, sink, nullptr, status);
    return U_FAILURE(status) ? text : result;
}

} // namespace

std::string foldedText(std::string_view text) {
    if (isAscii(text)) return loweredWord(text);
    return decomposed(caseFolded(decomposed(std::string(text))));
}

bool isSameText(std::string_view left, std::string_view right) {
    if (left == right) return true;
    if (isAscii(left) && isAscii(right)) return isSameWord(left, right);
    return foldedText(left) == foldedText(right);
}

std::size_t characterCount(std::string_view text) {
    return static_cast<std::size_t>(std::ranges::count_if(text, startsCharacter));
}

std::size_t characterOffset(std::string_view text, std::size_t index) {
    std::size_t offset = 0;
    for (; offset < text.size(); ++offset) {
        if (!startsCharacter(text[offset])) continue;
        if (index == 0) break;
        --index;
    }
    return offset;
}

} // namespace songsweep::interpreter
