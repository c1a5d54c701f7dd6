// SPDX-License-Identifier: MIT
//
// The short ways through a library as iTunes writes it.
#include "libraryfile/Property.h"
#include "libraryfile/TagScanner.h"

#include <cstddef>
#include <cstring>

namespace songsweep {

namespace {

constexpr std::ptrdiff_t longestUsualTag = 16;

} // namespace

/// Takes the next tag where it is one of the usual ones, without attributes, and stands in the window: nearly
/// all of them are. What it leaves goes the general way.
bool TagScanner::takeUsualTag(Tag& tag) {
    const char* end = m_window.end();
    const auto* at = static_cast<const char*>(std::memchr(m_at, '<', static_cast<std::size_t>(end - m_at)));
    if (at == nullptr || end - at < longestUsualTag || m_open.empty()) return false;
    const bool closes = at[1] == '/';
    const Element element = closes ? m_open.back() : usualElement(at + 1);
    const std::string_view name = nameOf(element);
    const char* nameBegin = at + (closes ? 2 : 1);
    const char* nameEnd = nameBegin + name.size();
    if (name.empty()) return false;
    const bool empty = !closes && nameEnd[0] == '/' && nameEnd[1] == '>' &&
                       std::memcmp(nameBegin, name.data(), name.size()) == 0;
    if (!empty && !isTagOf(element, nameBegin)) return false;

    m_at = at;
    tag.kind = closes ? Tag::Kind::close : empty ? Tag::Kind::empty : Tag::Kind::open;
    tag.element = element;
    if (closes) {
        m_open.pop_back();
    } else if (!empty) {
        if (m_open.size() == deepestNesting) return false;
        m_open.push_back(element);
    }
    finishTag(tag, empty ? nameEnd + 1 : nameEnd);
    return true;
}

bool TagScanner::takeProperty(Property& property) {
    if (m_open.empty() || m_open.back() != Element::dict || m_open.size() == deepestNesting) return false;
    const char* const behind = readProperty(m_at, m_window.end(), property);
    if (behind == nullptr) return false;
    m_text = m_at = behind;
    property.end = offsetOf(property.endTag);
    return true;
}

} // namespace songsweep
