// SPDX-License-Identifier: MIT
#pragma once

#include <algorithm>
#include <map>
#include <optional>
#include <string>
#include <string_view>

namespace songsweep {

/// The internal entities that a document declares: name and replacement text.
using XmlEntities = std::map<std::string, std::string, std::less<>>;

/// Whether raw bytes are their text as they stand, as mostly they are.
inline bool isItsOwnText(std::string_view raw) {
    return std::none_of(raw.begin(), raw.end(), [](char c) { return c == '&' || c == '<' || c == '\r'; });
}

/// The text of a run of raw bytes between two tags: references are replaced, CDATA sections unpacked,
/// comments and processing instructions left out, line breaks made "\n".
///
/// A reference to an entity that nobody declared gives nothing, as in the readers. Nested entities are
/// followed to a fixed depth and length; nothing where they go beyond, or where a reference is broken.
std::optional<std::string> decodeXmlText(std::string_view raw, const XmlEntities& entities);

/// A text (UTF-8) as raw bytes between two tags, with the references that iTunes writes. Nothing for one with
/// a character that XML does not know, and for bytes that are not UTF-8.
std::optional<std::string> encodeXmlText(std::string_view text);

/// The replacement text of an entity declared with this literal: only character references are replaced at
/// the declaration, the rest where the entity is used. Nothing where a reference is broken.
std::optional<std::string> entityReplacement(std::string_view literal);

/// The characters that separate tokens in XML.
inline bool isXmlSpace(char c) { return c == ' ' || c == '\n' || c == '\t' || c == '\r'; }

} // namespace songsweep
