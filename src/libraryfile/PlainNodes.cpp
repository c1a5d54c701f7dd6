// SPDX-License-Identifier: MIT
#include "libraryfile/PlainNodes.h"

#include "libraryfile/XmlText.h"
#include "platform/Utf8.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cstring>
#include <optional>
#include <string_view>
#include <utility>

namespace songsweep {

namespace {

/// Takes one of the beginnings off the text.
bool skip(std::string_view& text, std::string_view beginning) {
    if (!text.starts_with(beginning)) return false;
    text.remove_prefix(beginning.size());
    return true;
}

void skipBlanks(std::string_view& text) {
    text.remove_prefix(std::min(text.find_first_not_of(" \t\n"), text.size()));
}

/// A literal in quotes, of the characters that both a public and a system identifier may have.
bool skipIdentifier(std::string_view& text) {
    if (!skip(text, "\"")) return false;
    constexpr std::string_view letters = "abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ0123456789"
                                         " -()+,./:=?;!*#@$_%";
    text.remove_prefix(std::min(text.find_first_not_of(letters), text.size()));
    return skip(text, "\"");
}

bool skipDocumentType(std::string_view& text) {
    return skipIdentifier(text) && skip(text, " ") && skipIdentifier(text) && skip(text, ">");
}

constexpr std::string_view rootTag = "<plist version=\"1.0\">";
constexpr std::size_t longestHead = 1024;

/// Where the root's tag begins in the first bytes of a file; nothing where they are not plain.
std::optional<std::size_t> rootIn(std::string_view head) {
    std::string_view rest = head;
    skip(rest, "<?xml version=\"1.0\" encoding=\"UTF-8\"?>");
    skipBlanks(rest);
    if (skip(rest, "<!DOCTYPE plist PUBLIC ") && !skipDocumentType(rest)) return {};
    skipBlanks(rest);
    if (!rest.starts_with(rootTag)) return {};
    return head.size() - rest.size();
}

bool holdsElements(Element element) {
    return element == Element::plist || element == Element::dict || element == Element::array;
}

bool isBlank(std::string_view text) {
    return std::all_of(text.begin(), text.end(), [](char c) { return c == '\n' || c == '\t' || c == ' '; });
}

/// Whether a parser gives no node for a text: references may have made carriage returns.
bool isSpace(std::string_view text) { return std::all_of(text.begin(), text.end(), isXmlSpace); }

/// An ASCII character that neither is control nor could be part of markup.
constexpr bool isSimple(char c) {
    return static_cast<signed char>(c) >= ' ' && c != '&' && c != '<' && c != ']';
}

/// Sixteen bytes, which the compiler compares at once.
using Block [[gnu::vector_size(16)]] = signed char;
using Halves = std::array<std::uint64_t, 2>;

/// The same of sixteen bytes.
bool areSimple(Block bytes) {
    const auto odd = (bytes < ' ') | (bytes == '&') | (bytes == '<') | (bytes == ']');
    const auto halves = std::bit_cast<Halves>(odd);
    return (halves[0] | halves[1]) == 0;
}

template <typename Number>
Number numberAt(const char* bytes) {
    Number number{};
    std::memcpy(&number, bytes, sizeof number);
    return number;
}

/// Whether a text is its bytes as they stand, without a further look. Texts are short, so that the last
/// block of a text overlaps the one before it, and the halves of a block each other.
bool isSimple(std::string_view text) {
    const auto lastAt = [&](std::size_t size) { return text.data() + text.size() - size; };
    if (text.size() >= sizeof(Block)) {
        for (const char* at = text.data(); at < lastAt(sizeof(Block)); at += sizeof(Block))
            if (!areSimple(numberAt<Block>(at))) return false;
        return areSimple(numberAt<Block>(lastAt(sizeof(Block))));
    }
    if (text.size() >= sizeof(std::uint64_t)) {
        const Halves halves{numberAt<std::uint64_t>(text.data()),
                            numberAt<std::uint64_t>(lastAt(sizeof(std::uint64_t)))};
        return areSimple(std::bit_cast<Block>(halves));
    }
    return std::all_of(text.begin(), text.end(), [](char c) { return isSimple(c); });
}

/// Whether the raw bytes are a text that any parser of XML reads alike, once its references are replaced.
bool isPlainText(std::string_view raw) {
    const bool characters = std::all_of(raw.begin(), raw.end(), [](char c) {
        return (static_cast<unsigned char>(c) >= ' ' || c == '\n' || c == '\t') && c != '<';
    });
    return characters && isUtf8(raw) && raw.find("]]>") == std::string_view::npos &&
           raw.find("\xEF\xBF\xBE") == std::string_view::npos &&
           raw.find("\xEF\xBF\xBF") == std::string_view::npos;
}

/// Whether all references are to characters, or to the entities that every document has.
bool hasKnownReferencesAlone(std::string_view raw) {
    for (std::size_t at = raw.find('&'); at != std::string_view::npos; at = raw.find('&', at + 1)) {
        const std::string_view reference = raw.substr(at + 1);
        constexpr std::array<std::string_view, 6> known{"#", "amp;", "lt;", "gt;", "quot;", "apos;"};
        if (std::none_of(known.begin(), known.end(),
                         [&](std::string_view name) { return reference.starts_with(name); }))
            return false;
    }
    return true;
}

} // namespace

PlainNodes::PlainNodes(const LibraryFile& file) {
    std::array<char, longestHead> head{};
    const auto count = file.read(0, head.data(), head.size());
    if (!count) return;
    const auto root = rootIn({head.data(), count.value()});
    if (!root) return;
    m_rootBegin = *root;
    m_rootEnd = *root + rootTag.size();
}

PlainNodes::PlainNodes(std::span<const Element> open)
    : m_depth(open.size())
    , m_rootSeen(true) {
    std::copy(open.begin(), open.end(), m_open.begin());
}

bool PlainNodes::take(const Tag& tag) {
    m_count = 0;
    switch (tag.kind) {
    case Tag::Kind::open:
    case Tag::Kind::empty:
        return m_rootSeen ? takeBeginning(tag) : takeRoot(tag);
    case Tag::Kind::close:
        return takeEnd(tag);
    case Tag::Kind::endOfDocument:
        return m_rootSeen && isBlank(tag.text);
    }
    return false;
}

std::optional<XmlProperty> PlainNodes::read(const Property& property) {
    // Names of keys that are known need no look.
    if (m_depth == deepest || (property.meaning == LibraryKey::other && !textOf(property.key))) return {};
    const auto value = textOf(property.value);
    if (!value) return {};
    return XmlProperty{property.meaning, isSpace(*value) ? std::string_view() : *value};
}

bool PlainNodes::takeRoot(const Tag& tag) {
    m_rootSeen = true;
    m_open[m_depth++] = tag.element;
    add({NodeType::element, nameOf(tag.element), {}});
    return tag.begin == m_rootBegin && tag.end == m_rootEnd;
}

bool PlainNodes::takeBeginning(const Tag& tag) {
    const std::string_view name = nameOf(tag.element);
    const bool empty = tag.kind == Tag::Kind::empty;
    const std::size_t length = name.size() + (empty ? std::strlen("</>") : std::strlen("<>"));
    if (name.empty() || tag.end - tag.begin != length || m_depth == deepest) return false;
    if (!holdsElements(m_open[m_depth - 1]) || !isBlank(tag.text)) return false;
    if (!empty) m_open[m_depth++] = tag.element;
    add({NodeType::element, name, {}});
    return true;
}

bool PlainNodes::takeEnd(const Tag& tag) {
    const std::string_view name = nameOf(tag.element);
    if (tag.end - tag.begin != name.size() + std::strlen("</>")) return false;
    const bool good = holdsElements(tag.element) ? isBlank(tag.text) : takeText(tag.text);
    --m_depth;
    add({NodeType::endElement, name, {}});
    return good;
}

bool PlainNodes::takeText(std::string_view raw) {
    const auto text = textOf(raw);
    if (text && !isSpace(*text)) add({NodeType::text, {}, *text});
    return text.has_value();
}

/// The text of raw bytes, where they are plain.
std::optional<std::string_view> PlainNodes::textOf(std::string_view raw) {
    if (raw.size() > longestText) return {};
    if (isSimple(raw)) return raw;
    if (!isPlainText(raw) || !hasKnownReferencesAlone(raw)) return {};
    if (raw.find('&') == std::string_view::npos) return raw;
    auto replaced = decodeXmlText(raw, {});
    if (!replaced) return {};
    m_decoded = std::move(*replaced);
    return m_decoded;
}

} // namespace songsweep
