// SPDX-License-Identifier: MIT
#pragma once

#include "library/LibraryKeys.h"
#include "libraryfile/Element.h"

#include <cstdint>
#include <string_view>

namespace songsweep {

/// A key of a dictionary and the element behind it that is its value: "<key>Size</key><integer>7</integer>",
/// or "<key>Master</key><true/>".
struct Property {
    std::string_view key;   ///< without references, not beginning with a blank; as long as the bytes live
    std::string_view value; ///< raw bytes, the same; empty of an empty tag
    LibraryKey meaning = LibraryKey::none; ///< of the key
    Element element = Element::other;
    bool isEmptyTag = false;
    const char* endTag = nullptr; ///< the tag that ends the value
    std::uint64_t end = 0;        ///< its offset, where the property is of a file
};

/// Reads a property, with blanks before it, as iTunes writes nearly all of them: in a piece, its tags without
/// attributes, its value no dictionary and no array. To take four tags at a time costs a quarter of what they
/// cost one by one. Where it ends; null where something else stands there, or the last bytes are too near to
/// tell.
const char* readProperty(const char* begin, const char* end, Property& property);

} // namespace songsweep
