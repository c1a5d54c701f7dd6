// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

namespace songsweep {

/// The looser forms of a text, which small differences leave alike:
///
///     appendLetters(letters, "Ｂéyoncé & Friends!");   // "beyonce & friends!"
///     appendWords(words, letters);                     // "beyonce and friends"
///
/// Two steps, since what a name tells by its brackets and dashes is looked for between them. Texts that are
/// equal without regard to case have equal forms. Linear; a text of plain ASCII costs no memory of its own.

/// Adds the letters of a text: compatibility forms and case are gone, and so are the accents of Latin and
/// Greek letters. Others are no ornament: without them は and ば were one.
void appendLetters(std::string& letters, std::string_view text);

/// Adds the words of such letters, a blank between each two: punctuation of any kind parts words, as blanks
/// do, and "&" is "and". Nothing where there is no word.
void appendWords(std::string& words, std::string_view letters);

} // namespace songsweep
