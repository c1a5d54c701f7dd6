// SPDX-License-Identifier: MIT
#include "libraryfile/TrackFields.h"

#include "libraryfile/EntryTags.h"

#include <algorithm>

namespace songsweep {

namespace {

constexpr int entryDepth = 1; // inside the entry's dictionary

} // namespace

std::optional<TrackFields> TrackFields::parse(std::string_view entry, const XmlEntities& entities) {
    TrackFields fields;
    EntryTags tags(entry);
    LibraryKey key = LibraryKey::none;
    int depth = 0;
    bool leaf = false;
    while (tags.next()) {
        if (tags.kind() == EntryTags::Kind::open) {
            // The key before the entry's dictionary is the entry's own.
            if (depth > 0 || tags.name() == "dict") ++depth;
            leaf = true;
            continue;
        }
        const bool empty = tags.kind() == EntryTags::Kind::empty;
        if (!empty && depth > 0) --depth;
        if (depth == entryDepth && (leaf || empty)) {
            auto value = decodeXmlText(empty ? std::string_view() : tags.text(), entities);
            if (!value) return {};
            if (tags.name() == "key") {
                key = libraryKey(*value);
            } else if (tags.name() != "dict" && tags.name() != "array") {
                fields.keep(key, std::move(*value));
                key = LibraryKey::none;
            }
        }
        leaf = false;
    }
    if (depth != 0) return {};
    return fields;
}

void TrackFields::keep(LibraryKey key, std::string value) {
    if (key == LibraryKey::none || key == LibraryKey::other) return;
    m_values.emplace_back(key, std::move(value));
}

const std::string* TrackFields::find(LibraryKey key) const {
    const auto found = std::find_if(m_values.rbegin(), m_values.rend(),
                                    [&](const auto& value) { return value.first == key; });
    return found == m_values.rend() ? nullptr : &found->second;
}

} // namespace songsweep
