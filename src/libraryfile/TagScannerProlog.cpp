// SPDX-License-Identifier: MIT
//
// What stands before the first tag: byte order mark, XML declaration, document type.
#include "libraryfile/TagScanner.h"
#include "platform/Ascii.h"

#include <algorithm>
#include <utility>

namespace songsweep {

namespace {

constexpr std::string_view entityMark = "<!ENTITY";

/// The value of `name = "value"` in a declaration; empty where there is none.
std::string_view pseudoAttribute(std::string_view declaration, std::string_view name) {
    std::size_t at = declaration.find(name);
    if (at == std::string_view::npos) return {};
    at = declaration.find_first_of("\"'", at);
    if (at == std::string_view::npos) return {};
    const std::size_t end = declaration.find(declaration[at], at + 1);
    return end == std::string_view::npos ? std::string_view() : declaration.substr(at + 1, end - at - 1);
}

} // namespace

/// Looks at the first bytes: the encoding must be one whose ASCII bytes stand for themselves.
bool TagScanner::start() {
    m_started = true;
    if (!need(4)) return fail("the file is no XML document");
    const std::string_view head(m_at, 4);
    if (head.starts_with("\xFF\xFE") || head.starts_with("\xFE\xFF") ||
        head.find('\0') != std::string_view::npos)
        return fail("the encoding UTF-16 is not supported, only UTF-8");
    if (head == "bpli") return fail("the file is a binary property list, not an XML one");
    if (head.starts_with("\xEF\xBB\xBF")) m_text = m_at += 3;
    if (!need(6) || std::string_view(m_at, 5) != "<?xml" || !isXmlSpace(m_at[5])) return true;

    const std::size_t offset = static_cast<std::size_t>(m_at - m_text);
    if (!skipPast("?>", 2)) return cutOff("a processing instruction");
    const bool good = checkDeclaration({m_text + offset, static_cast<std::size_t>(m_at - m_text) - offset});
    m_text = m_at;
    return good;
}

bool TagScanner::checkDeclaration(std::string_view declaration) {
    const std::string_view encoding = pseudoAttribute(declaration, "encoding");
    const std::string lower = asciiLower(std::string(encoding));
    if (lower.empty() || lower == "utf-8" || lower == "utf8" || lower == "us-ascii" || lower == "ascii")
        return true;
    return fail("the encoding " + std::string(encoding) + " is not supported, only UTF-8");
}

/// Moves behind the document type, collecting the entities that its internal subset declares.
bool TagScanner::skipDocumentType() {
    if (!noTextSinceLastTag()) return fail("there is text before the document");
    ++m_at;
    for (;;) {
        if (!need(1)) return false;
        const char c = *m_at;
        if (c == '>') { // Those of the internal subset end its declarations, which are skipped whole.
            m_text = ++m_at;
            return true;
        }
        if (c == '"' || c == '\'') {
            if (!skipPast({&c, 1}, 1)) return false;
            continue;
        }
        if (c != '<') {
            ++m_at;
            continue;
        }
        need(8);
        const std::string_view head(m_at, std::min<std::size_t>(8, m_window.end() - m_at));
        const bool skipped = head.starts_with("<!--") ? skipPast("-->", 4)
                             : head.starts_with("<?") ? skipPast("?>", 2)
                                                      : skipDeclaration(head == entityMark);
        if (!skipped) return false;
    }
}

/// Moves behind one declaration of the internal subset.
bool TagScanner::skipDeclaration(bool isEntity) {
    const auto begin = m_at - m_text;
    ++m_at;
    while (need(1) && *m_at != '>') {
        const char c = *m_at;
        if (c != '"' && c != '\'') {
            ++m_at;
        } else if (!skipPast({&c, 1}, 1)) {
            return false;
        }
    }
    if (!need(1)) return false;
    ++m_at;
    const auto length = static_cast<std::size_t>(m_at - m_text - begin);
    return !isEntity || declareEntity({m_text + begin, length});
}

/// Takes note of an entity whose text stands in its declaration; nobody fetches any other.
bool TagScanner::declareEntity(std::string_view declaration) {
    constexpr std::string_view blanks = " \t\r\n";
    const std::size_t nameBegin = declaration.find_first_not_of(blanks, entityMark.size());
    const std::size_t nameEnd = declaration.find_first_of(blanks, nameBegin);
    if (nameEnd == std::string_view::npos || declaration[nameBegin] == '%') return true;
    const std::string_view rest = declaration.substr(declaration.find_first_not_of(blanks, nameEnd));
    if (rest.front() != '"' && rest.front() != '\'') return true;

    const std::string name(declaration.substr(nameBegin, nameEnd - nameBegin));
    auto text = entityReplacement(rest.substr(1, rest.find(rest.front(), 1) - 1));
    if (!text) return fail("the entity " + name + " holds a broken reference");
    if (text->find('<') != std::string::npos)
        return fail("the entity " + name + " holds markup, which is not supported");
    m_entities.try_emplace(name, std::move(*text));
    return true;
}

} // namespace songsweep
