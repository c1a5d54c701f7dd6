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
    fields.m_values.reserve(usualValues);
    fields.m_texts.reserve(entry.size());
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
                fields.keep(key, *value);
                key = LibraryKey::none;
            }
        }
        leaf = false;
    }
    if (depth != 0) return {};
    return fields;
}

bool TrackFields::keep(const Property& property, const XmlEntities& entities) {
    if (isItsOwnText(property.value)) {
        keep(property.meaning, property.value);
        return true;
    }
    const auto value = decodeXmlText(property.value, entities);
    if (value) keep(property.meaning, *value);
    return value.has_value();
}

void TrackFields::keep(LibraryKey key, std::string_view value) {
    if (key == LibraryKey::none || key == LibraryKey::other) return;
    m_values.push_back({key, m_texts.size(), value.size()});
    m_texts += value;
}

std::optional<std::string_view> TrackFields::find(LibraryKey key) const {
    const auto found = std::ranges::find(m_values.rbegin(), m_values.rend(), key, &Value::key);
    if (found == m_values.rend()) return {};
    return std::string_view(m_texts).substr(found->begin, found->length);
}

} // namespace songsweep
