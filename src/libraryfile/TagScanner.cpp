// SPDX-License-Identifier: MIT
#include "libraryfile/TagScanner.h"

#include <algorithm>
#include <cstring>

namespace songsweep {

namespace {

Element elementOf(std::string_view name) {
    const auto found = std::find(elementNames.begin(), elementNames.end() - 1, name);
    return static_cast<Element>(found - elementNames.begin());
}

bool startsName(char c) {
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || c == '_' || c == ':' ||
           static_cast<unsigned char>(c) >= 0x80;
}

bool endsName(char c) { return isXmlSpace(c) || c == '>' || c == '/'; }

} // namespace

TagScanner::TagScanner(const LibraryFile& file)
    : m_file(file)
    , m_window(file) {
    m_text = m_at = m_window.begin();
}

TagScanner::TagScanner(const LibraryFile& file, std::uint64_t offset, std::vector<Element> open)
    : m_file(file)
    , m_window(file, offset)
    , m_open(std::move(open))
    , m_started(true)
    , m_rootSeen(true) {
    m_text = m_at = m_window.begin();
}

bool TagScanner::next(Tag& tag) {
    if (!m_started && !start()) return false;
    if (takeUsualTag(tag)) return true;
    if (findTag()) return takeUsualTag(tag) || (findTagEnd() && readTag(tag));
    if (!m_failure.empty() || m_window.error() || !finish()) return false;
    tag = Tag();
    tag.text = {m_text, static_cast<std::size_t>(m_at - m_text)};
    return true;
}

Error TagScanner::error() const {
    return m_window.error() ? *m_window.error() : errorAt(m_failedAt, m_failure);
}

void TagScanner::finishTag(Tag& tag, const char* tagEnd) {
    tag.begin = offsetOf(m_at);
    tag.end = offsetOf(tagEnd) + 1;
    tag.text = {m_text, static_cast<std::size_t>(m_at - m_text)};
    m_text = m_at = tagEnd + 1;
}

Error TagScanner::errorAt(std::uint64_t offset, const std::string& reason) const {
    FileWindow window(m_file);
    std::uint64_t line = 1;
    const char* at = window.begin();
    while (window.advance(at)) {
        const std::uint64_t left = offset - window.offset();
        const auto size = static_cast<std::uint64_t>(window.end() - window.begin());
        at = window.begin() + std::min(left, size);
        line += static_cast<std::uint64_t>(std::count(window.begin(), at, '\n'));
        if (left <= size) break;
    }
    return {Error::Code::invalid, "line " + std::to_string(line) + ": " + reason};
}

/// Moves to the "<" of the next tag. False, without a failure, at the end of the file.
bool TagScanner::findTag() {
    for (;;) {
        const auto left = static_cast<std::size_t>(m_window.end() - m_at);
        const auto* found = static_cast<const char*>(std::memchr(m_at, '<', left));
        if (found == nullptr) {
            m_at = m_window.end();
            if (!more()) return false;
            continue;
        }
        m_at = found;
        if (!need(2)) return cutOff("a tag");
        if (m_at[1] == '/' || startsName(m_at[1])) return true;
        if (!skipMarkup()) return false;
    }
}

bool TagScanner::findTagEnd() {
    const char* at = m_at + 1;
    for (;;) {
        for (; at < m_window.end() && *at != '>'; ++at) {
            if (*at == '<') return fail("a \"<\" inside a tag");
            if (*at != '"' && *at != '\'') continue;
            // A value in quotes may hold ">".
            const auto left = static_cast<std::size_t>(m_window.end() - at - 1);
            const auto* quote = static_cast<const char*>(std::memchr(at + 1, *at, left));
            if (quote == nullptr) break;
            at = quote;
        }
        if (at < m_window.end() && *at == '>') break;
        const auto offset = at - m_at;
        if (!more()) return cutOff("a tag");
        at = m_at + offset;
    }
    m_tagEnd = at;
    return true;
}

bool TagScanner::readTag(Tag& tag) {
    const bool closes = m_at[1] == '/';
    const bool empty = !closes && m_tagEnd[-1] == '/';
    const char* nameBegin = m_at + (closes ? 2 : 1);
    const std::string_view name(
        nameBegin, static_cast<std::size_t>(std::find_if(nameBegin, m_tagEnd, endsName) - nameBegin));
    tag.kind = closes ? Tag::Kind::close : empty ? Tag::Kind::empty : Tag::Kind::open;
    tag.element = elementOf(name);
    const bool good = closes ? closeElement(tag.element, name) : openElement(tag.element, name);
    if (!good) return false;
    if (empty) {
        if (tag.element == Element::other) m_otherNames.pop_back();
        m_open.pop_back();
    }
    finishTag(tag, m_tagEnd);
    return true;
}

bool TagScanner::openElement(Element element, std::string_view name) {
    if (m_open.empty() && m_rootSeen) return fail("there is more after the end of the document");
    if (m_open.empty() && !noTextSinceLastTag()) return fail("there is text before the document");
    if (m_open.size() == deepestNesting) return fail("elements are nested too deep");
    m_rootSeen = true;
    m_open.push_back(element);
    if (element == Element::other) m_otherNames.emplace_back(name);
    return true;
}

bool TagScanner::closeElement(Element element, std::string_view name) {
    if (m_open.empty()) return fail("</" + std::string(name) + "> closes nothing");
    const bool same = m_open.back() == element && (element != Element::other || m_otherNames.back() == name);
    if (!same) return fail("</" + std::string(name) + "> stands where </" + openName() + "> is due");
    if (element == Element::other) m_otherNames.pop_back();
    m_open.pop_back();
    return true;
}

bool TagScanner::finish() {
    if (!m_open.empty()) return cutOff("<" + openName() + ">");
    if (!m_rootSeen) return fail("the file is no XML document");
    if (!noTextSinceLastTag()) return fail("there is more after the end of the document");
    return true;
}

bool TagScanner::noTextSinceLastTag() const {
    const auto text = decodeXmlText({m_text, static_cast<std::size_t>(m_at - m_text)}, {});
    return text && std::all_of(text->begin(), text->end(), isXmlSpace);
}

/// Skips a comment, a CDATA section, a processing instruction or the document type.
bool TagScanner::skipMarkup() {
    if (m_at[1] == '?') return skipPast("?>", 2) || cutOff("a processing instruction");
    if (m_at[1] != '!') return fail("a \"<\" that begins no tag");
    need(9);
    const std::string_view head(m_at, std::min<std::size_t>(9, m_window.end() - m_at));
    if (head.starts_with("<!--")) return skipPast("-->", 4) || cutOff("a comment");
    if (head == "<![CDATA[") {
        if (m_open.empty()) return fail("a CDATA section outside the document");
        return skipPast("]]>", 9) || cutOff("a CDATA section");
    }
    if (head == "<!DOCTYPE" && !m_rootSeen) return skipDocumentType() || cutOff("the document type");
    return fail("a \"<!\" that begins nothing known");
}

/// Moves behind the next `mark`, looking from `from` bytes behind the present place.
bool TagScanner::skipPast(std::string_view mark, std::size_t from) {
    for (;;) {
        const std::string_view rest(m_at, static_cast<std::size_t>(m_window.end() - m_at));
        const std::size_t found = rest.find(mark, from);
        if (found != std::string_view::npos) {
            m_at += found + mark.size();
            return true;
        }
        from = std::max(from, rest.size() - std::min(rest.size(), mark.size()));
        if (!more()) return false;
    }
}

/// Reads on, keeping everything since the last tag.
bool TagScanner::more() {
    if (m_window.atEndOfFile() || m_window.error()) return false;
    const auto searched = m_at - m_text;
    const bool read = m_window.advance(m_text);
    m_text = m_window.begin();
    m_at = m_text + searched;
    return read;
}

/// Sees to it that `count` bytes stand at the present place; false where the file ends before.
bool TagScanner::need(std::size_t count) {
    while (static_cast<std::size_t>(m_window.end() - m_at) < count)
        if (!more()) return false;
    return true;
}

bool TagScanner::fail(std::string reason) {
    if (m_failure.empty()) {
        m_failure = std::move(reason);
        m_failedAt = offsetOf(m_at);
    }
    return false;
}

bool TagScanner::cutOff(const std::string& where) {
    if (m_failure.empty()) {
        m_failure = "the file ends inside " + where;
        m_failedAt = offsetOf(m_window.end());
    }
    return false;
}

std::string TagScanner::openName() const {
    return m_open.back() == Element::other ? m_otherNames.back() : std::string(nameOf(m_open.back()));
}

} // namespace songsweep
