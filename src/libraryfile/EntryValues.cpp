// SPDX-License-Identifier: MIT
#include "libraryfile/EntryValues.h"

#include "library/Trim.h"
#include "libraryfile/EntryTags.h"
#include "platform/Ascii.h"

#include <algorithm>
#include <utility>

namespace songsweep {

namespace {

struct Child {
    std::string_view element;
    std::string_view text; // raw; of one that holds others what stands behind the last of them
    std::size_t begin = 0;
    std::size_t end = 0;
};

/// The next element in the dictionary that the tags are in; nothing at its end, which `isClosed` tells from
/// an end of the bytes.
std::optional<Child> nextChild(EntryTags& tags, bool& isClosed) {
    using Kind = EntryTags::Kind;
    if (!tags.next()) return {};
    isClosed = tags.kind() == Kind::close;
    if (isClosed) return {};
    Child child{tags.name(), {}, tags.begin(), tags.end()};
    for (int depth = tags.kind() == Kind::open ? 1 : 0; depth > 0;) {
        if (!tags.next()) return {};
        if (tags.kind() != Kind::empty) depth += tags.kind() == Kind::open ? 1 : -1;
        child.text = tags.text();
        child.end = tags.end();
    }
    return child;
}

/// Goes into the entry's dictionary; false where that is an empty tag.
bool enterDictionary(EntryTags& tags) {
    while (tags.next())
        if (tags.kind() == EntryTags::Kind::open && tags.name() == "dict") return true;
    return false;
}

bool isSameKey(std::string_view left, std::string_view right) {
    return std::equal(left.begin(), left.end(), right.begin(), right.end(),
                      [](char a, char b) { return asciiLower(a) == asciiLower(b); });
}

std::size_t withoutSpaceBefore(std::string_view bytes, std::size_t at) {
    while (at > 0 && isXmlSpace(bytes[at - 1]))
        --at;
    return at;
}

} // namespace

std::optional<EntryValues> EntryValues::parse(std::string_view entry, const XmlEntities& entities) {
    EntryValues values;
    EntryTags tags(entry);
    if (!enterDictionary(tags)) return values;
    EntryValue value;
    bool isClosed = false;
    while (const auto child = nextChild(tags, isClosed)) {
        const bool holdsOthers = child->element == "dict" || child->element == "array";
        auto text = decodeXmlText(holdsOthers ? std::string_view() : child->text, entities);
        if (!text) return {};
        if (child->element == "key") {
            value.key = trimmed(*text);
            value.keyBegin = child->begin;
        } else if (!value.key.empty()) {
            value.element = child->element;
            value.text = std::move(*text);
            value.begin = child->begin;
            value.end = child->end;
            values.m_values.push_back(std::exchange(value, {}));
        }
    }
    if (!isClosed) return {};
    values.m_contentEnd = withoutSpaceBefore(entry, tags.begin());
    return values;
}

const EntryValue* EntryValues::find(std::string_view key) const {
    const auto found = std::find_if(m_values.rbegin(), m_values.rend(),
                                    [&](const EntryValue& value) { return isSameKey(value.key, key); });
    return found == m_values.rend() ? nullptr : &*found;
}

} // namespace songsweep
