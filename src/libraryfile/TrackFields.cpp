// SPDX-License-Identifier: MIT
#include "libraryfile/TrackFields.h"

#include <algorithm>

namespace songsweep {

namespace {

/// Goes through the tags of a run of bytes whose tags are known to match.
class EntryTags {
  public:
    enum class Kind { open, close, empty };

    explicit EntryTags(std::string_view bytes)
        : m_rest(bytes) {}

    /// Moves to the next tag; false at the end.
    bool next() {
        std::size_t at = m_rest.find('<');
        while (at + 1 < m_rest.size() && (m_rest[at + 1] == '!' || m_rest[at + 1] == '?'))
            at = m_rest.find('<', endOfMarkup(at));
        const std::size_t end = endOfTag(at);
        if (end >= m_rest.size()) return false;
        m_text = m_rest.substr(0, at);
        readName(m_rest.substr(at + 1, end - at - 1));
        m_rest.remove_prefix(end + 1);
        return true;
    }

    Kind kind() const { return m_kind; }
    std::string_view name() const { return m_name; }
    /// The raw bytes between the tag before and this one.
    std::string_view text() const { return m_text; }

  private:
    std::size_t endOfMarkup(std::size_t at) const {
        const std::string_view markup = m_rest.substr(at);
        const std::string_view mark = markup.starts_with("<!--")        ? "-->"
                                      : markup.starts_with("<![CDATA[") ? "]]>"
                                                                        : "?>";
        return std::min(m_rest.find(mark, at + (mark == "-->" ? 4 : 2)), m_rest.size());
    }

    std::size_t endOfTag(std::size_t at) const {
        for (; at < m_rest.size() && m_rest[at] != '>'; ++at) {
            if (m_rest[at] != '"' && m_rest[at] != '\'') continue;
            at = m_rest.find(m_rest[at], at + 1);
            if (at == std::string_view::npos) return at;
        }
        return at;
    }

    void readName(std::string_view tag) {
        m_kind = tag.starts_with('/') ? Kind::close : tag.ends_with('/') ? Kind::empty : Kind::open;
        if (m_kind == Kind::close) tag.remove_prefix(1);
        const auto* end =
            std::find_if(tag.begin(), tag.end(), [](char c) { return isXmlSpace(c) || c == '/'; });
        m_name = tag.substr(0, static_cast<std::size_t>(end - tag.begin()));
    }

    std::string_view m_rest;
    std::string_view m_text;
    std::string_view m_name;
    Kind m_kind = Kind::open;
};

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
