// SPDX-License-Identifier: MIT
#include "libraryfile/Property.h"

#include "libraryfile/XmlText.h"

#include <cstddef>
#include <cstring>

namespace songsweep {

namespace {

/// "</key><integer/>": what is looked at behind a text without asking for the end of the bytes.
constexpr std::ptrdiff_t roomOfTags = 16;

/// The first "<" of a range, where there is room for a tag behind it; null otherwise.
const char* findTag(const char* begin, const char* end) {
    const auto* found =
        static_cast<const char*>(std::memchr(begin, '<', static_cast<std::size_t>(end - begin)));
    return found != nullptr && end - found >= roomOfTags ? found : nullptr;
}

bool standsAt(const char* at, std::string_view text) {
    return std::memcmp(at, text.data(), text.size()) == 0;
}

const char* skipBlanks(const char* at, const char* end) {
    while (at < end && (*at == '\t' || *at == '\n' || *at == ' '))
        ++at;
    return at;
}

bool canBeValue(Element element) {
    return element != Element::dict && element != Element::array && element != Element::key &&
           element != Element::other;
}

/// Reads the value whose tag's name begins there.
const char* readValue(const char* nameBegin, const char* end, Property& property) {
    property.element = usualElement(nameBegin);
    if (!canBeValue(property.element)) return nullptr;
    const std::string_view name = nameOf(property.element);
    const char* const at = nameBegin + name.size();
    property.value = {};
    property.endTag = at;
    property.isEmptyTag = !isTagOf(property.element, nameBegin);
    if (property.isEmptyTag)
        return standsAt(nameBegin, name) && standsAt(at, "/>") ? at + std::strlen("/>") : nullptr;
    property.endTag = findTag(at + 1, end);
    if (property.endTag == nullptr || property.endTag[1] != '/') return nullptr;
    property.value = {at + 1, static_cast<std::size_t>(property.endTag - at - 1)};
    const char* const closingName = property.endTag + std::strlen("</");
    return isTagOf(property.element, closingName) ? closingName + name.size() + 1 : nullptr;
}

} // namespace

const char* readProperty(const char* begin, const char* end, Property& property) {
    constexpr std::string_view keyBegin = "<key>";
    constexpr std::string_view keyEnd = "</key><";
    const char* at = skipBlanks(begin, end);
    if (end - at < roomOfTags || !standsAt(at, keyBegin)) return nullptr;
    at += keyBegin.size();
    const char* const behindKey = findTag(at, end);
    if (behindKey == nullptr || behindKey == at || isXmlSpace(*at) || !standsAt(behindKey, keyEnd))
        return nullptr;
    property.key = {at, static_cast<std::size_t>(behindKey - at)};
    property.meaning = libraryKey(property.key);
    const bool isKnown = property.meaning != LibraryKey::other;
    if (!isKnown && property.key.find('&') != std::string_view::npos) return nullptr;
    return readValue(behindKey + keyEnd.size(), end, property);
}

} // namespace songsweep
