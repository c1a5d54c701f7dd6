// SPDX-License-Identifier: MIT
#pragma once

#include "libraryfile/Property.h"
#include "libraryfile/XmlText.h"

#include <algorithm>
#include <cstddef>
#include <string_view>

namespace songsweep {

/// Goes through the tags of a run of bytes whose tags are known to match: an entry of a library that was
/// indexed.
///
///     EntryTags tags(bytes);
///     while (tags.next()) …tags.name()…
///
/// Comments, CDATA sections and processing instructions are no tags. The bytes must outlive it. Linear; in
/// the header, as every value of every track that is asked for passes here.
class EntryTags {
  public:
    enum class Kind { open, close, empty };

    explicit EntryTags(std::string_view bytes)
        : m_bytes(bytes) {}

    /// Moves to the next tag; false at the end.
    bool next() {
        std::size_t at = m_bytes.find('<', m_end);
        while (at + 1 < m_bytes.size() && (m_bytes[at + 1] == '!' || m_bytes[at + 1] == '?'))
            at = m_bytes.find('<', endOfMarkup(at));
        const std::size_t end = endOfTag(at);
        if (end >= m_bytes.size()) return false;
        m_textBegin = m_end;
        m_begin = at;
        m_end = end + 1;
        readName(m_bytes.substr(at + 1, end - at - 1));
        return true;
    }

    /// Moves on behind the property that is next, see Property.h; false where something else is.
    bool takeProperty(Property& property) {
        const char* const behind =
            readProperty(m_bytes.data() + m_end, m_bytes.data() + m_bytes.size(), property);
        if (behind != nullptr) m_end = static_cast<std::size_t>(behind - m_bytes.data());
        return behind != nullptr;
    }

    Kind kind() const { return m_kind; }
    std::string_view name() const { return m_name; }
    /// The raw bytes between the tag before and this one.
    std::string_view text() const { return m_bytes.substr(m_textBegin, m_begin - m_textBegin); }

    std::size_t begin() const { return m_begin; } ///< of the tag
    std::size_t end() const { return m_end; }     ///< behind the tag

  private:
    std::size_t endOfMarkup(std::size_t at) const {
        const std::string_view markup = m_bytes.substr(at);
        const std::string_view mark = markup.starts_with("<!--")        ? "-->"
                                      : markup.starts_with("<![CDATA[") ? "]]>"
                                                                        : "?>";
        return std::min(m_bytes.find(mark, at + (mark == "-->" ? 4 : 2)), m_bytes.size());
    }

    std::size_t endOfTag(std::size_t at) const {
        for (; at < m_bytes.size() && m_bytes[at] != '>'; ++at) {
            if (m_bytes[at] != '"' && m_bytes[at] != '\'') continue;
            at = m_bytes.find(m_bytes[at], at + 1);
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

    std::string_view m_bytes;
    std::string_view m_name;
    std::size_t m_textBegin = 0;
    std::size_t m_begin = 0;
    std::size_t m_end = 0;
    Kind m_kind = Kind::open;
};

} // namespace songsweep
