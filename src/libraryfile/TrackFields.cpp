// SPDX-License-Identifier: MIT
#include "libraryfile/TrackFields.h"

#include "libraryfile/EntryTags.h"

#include <algorithm>

namespace songsweep {

namespace {

constexpr int entryDepth = 1; // inside the entry's dictionary
constexpr std::size_t usualValues = 16;

} // namespace

std::optional<TrackFields> TrackFields::parse(std::string_view entry, const XmlEntities& entities) {
    TrackFields fields;
    EntryTags tags(entry);
    LibraryKey key = LibraryKey::none;
    int depth = 0;
    bool leaf = false;
    Property property;
    for (;;) {
        if (depth == entryDepth && tags.takeProperty(property)) {
            leaf = false;
            key = LibraryKey::none;
            if (!fields.keep(property, entities)) return {};
            continue;
        }
        if (!tags.next()) break;
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

bool TrackFields::keep(const Property& property, const XmlEntities& entities) {
    const LibraryKey key = property.meaning;
    if (isItsOwnText(property.value)) {
        if (key != LibraryKey::other) keep(key, std::string(property.value));
        return true;
    }
    auto value = decodeXmlText(property.value, entities);
    if (value) keep(key, std::move(*value));
    return value.has_value();
}

void TrackFields::keep(LibraryKey key, std::string value) {
    if (key == LibraryKey::none || key == LibraryKey::other) return;
    if (m_values.empty()) m_values.reserve(usualValues);
    m_values.emplace_back(key, std::move(value));
}

const std::string* TrackFields::find(LibraryKey key) const {
    const auto found = std::find_if(m_values.rbegin(), m_values.rend(),
                                    [&](const auto& value) { return value.first == key; });
    return found == m_values.rend() ? nullptr : &found->second;
}

} // namespace songsweep
