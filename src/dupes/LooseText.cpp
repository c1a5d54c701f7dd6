// SPDX-License-Identifier: MIT
#include "dupes/LooseText.h"

#include "platform/Ascii.h"

#include <unicode/bytestream.h>
#include <unicode/normalizer2.h>
#include <unicode/uchar.h>
#include <unicode/uscript.h>
#include <unicode/utf8.h>

#include <algorithm>
#include <cstdint>
#include <iterator>
#include <stdexcept>

namespace songsweep {

namespace {

/// Letters that no form of Unicode takes apart.
struct LooseLetter {
    UChar32 letter;
    std::string_view plain;
};

constexpr LooseLetter looseLetters[] = {
    {U'ø', "o"}, {U'ł', "l"}, {U'đ', "d"}, {U'ħ', "h"}, {U'ŧ', "t"}, {U'ı', "i"}, {U'æ', "ae"}, {U'œ', "oe"},
};

constexpr std::uint32_t partingCategories = U_GC_P_MASK | U_GC_Z_MASK | U_GC_SK_MASK | U_GC_CC_MASK;

using Instance = const icu::Normalizer2* (*)(UErrorCode& status);

std::string normalized(std::string_view text, Instance instance) {
    UErrorCode status = U_ZERO_ERROR;
    const icu::Normalizer2* const form = instance(status);
    std::string result;
    icu::StringByteSink<std::string> sink(&result);
    if (U_SUCCESS(status))
        form->normalizeUTF8(0, {text.data(), static_cast<std::int32_t>(text.size())}, sink, nullptr, status);
    if (U_FAILURE(status)) throw std::runtime_error(std::string("Unicode data: ") + u_errorName(status));
    return result;
}

UChar32 nextCharacter(std::string_view text, std::int32_t& position) {
    UChar32 character = 0;
    U8_NEXT_OR_FFFD(text.data(), position, static_cast<std::int32_t>(text.size()), character);
    return character;
}

void appendCharacter(std::string& text, UChar32 character) {
    char bytes[U8_MAX_LENGTH];
    std::int32_t count = 0;
    U8_APPEND_UNSAFE(bytes, count, character);
    text.append(bytes, static_cast<std::size_t>(count));
}

bool isMark(UChar32 character) { return (U_GET_GC_MASK(character) & U_GC_M_MASK) != 0; }

/// A mark on a blank is what the compatibility form makes of an accent that stands alone, as in "don´t".
bool losesMarks(UChar32 base) {
    if (u_isblank(base)) return true;
    UErrorCode status = U_ZERO_ERROR;
    const UScriptCode script = uscript_getScript(base, &status);
    return script == USCRIPT_LATIN || script == USCRIPT_GREEK;
}

void appendLetter(std::string& letters, UChar32 character) {
    const auto* const found = std::find_if(std::begin(looseLetters), std::end(looseLetters),
                                           [&](const LooseLetter& row) { return row.letter == character; });
    if (found != std::end(looseLetters))
        letters += found->plain;
    else
        appendCharacter(letters, character);
}

void appendWithoutMarks(std::string& letters, std::string_view decomposed) {
    UChar32 base = U' ';
    for (std::int32_t position = 0; position < static_cast<std::int32_t>(decomposed.size());) {
        const UChar32 character = nextCharacter(decomposed, position);
        if (!isMark(character))
            base = character;
        else if (losesMarks(base))
            continue;
        appendLetter(letters, character);
    }
}

constexpr bool isAsciiWord(char c) {
    constexpr std::string_view symbols = "$+<=>|~"; // of which some are whole names of albums
    return (c >= 'a' && c <= 'z') || (c >= '0' && c <= '9') || symbols.find(c) != std::string_view::npos;
}

/// Puts a blank between words, and none before the first.
class WordJoiner {
  public:
    explicit WordJoiner(std::string& words)
        : m_words(words)
        , m_start(words.size()) {}

    void part() { m_parted = true; }
    void add(std::string_view bytes) {
        if (m_parted && m_words.size() > m_start) m_words += ' ';
        m_parted = false;
        m_words += bytes;
    }

  private:
    std::string& m_words;
    std::size_t m_start;
    bool m_parted = false;
};

} // namespace

void appendLetters(std::string& letters, std::string_view text) {
    if (!isAscii(text)) {
        const std::string folded = normalized(text, icu::Normalizer2::getNFKCCasefoldInstance);
        return appendWithoutMarks(letters, normalized(folded, icu::Normalizer2::getNFDInstance));
    }
    const std::size_t start = letters.size();
    letters += text;
    std::transform(text.begin(), text.end(), letters.begin() + static_cast<std::ptrdiff_t>(start),
                   [](char c) { return asciiLower(c); });
}

void appendWords(std::string& words, std::string_view letters) {
    WordJoiner joiner(words);
    for (std::int32_t position = 0; position < static_cast<std::int32_t>(letters.size());) {
        const std::int32_t start = position;
        const UChar32 character = nextCharacter(letters, position);
        const std::string_view bytes =
            letters.substr(static_cast<std::size_t>(start), static_cast<std::size_t>(position - start));
        const bool isWord = character < 0x80 ? isAsciiWord(static_cast<char>(character))
                                             : (U_GET_GC_MASK(character) & partingCategories) == 0;
        if (isWord || character == U'&') {
            if (character == U'&') joiner.part();
            joiner.add(isWord ? bytes : "and");
        }
        if (!isWord) joiner.part();
    }
}

} // namespace songsweep
