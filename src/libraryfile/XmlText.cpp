// SPDX-License-Identifier: MIT
#include "libraryfile/XmlText.h"

#include "platform/Utf8.h"

#include <charconv>
#include <cstdint>

namespace songsweep {

namespace {

constexpr int deepestEntity = 16;
constexpr int mostEntities = 10'000;
constexpr std::size_t longestText = std::size_t{32} << 20;

void appendUtf8(std::string& out, std::uint32_t c) {
    if (c < 0x80) {
        out += static_cast<char>(c);
    } else if (c < 0x800) {
        out += static_cast<char>(0xC0 | (c >> 6));
        out += static_cast<char>(0x80 | (c & 0x3F));
    } else if (c < 0x10000) {
        out += static_cast<char>(0xE0 | (c >> 12));
        out += static_cast<char>(0x80 | ((c >> 6) & 0x3F));
        out += static_cast<char>(0x80 | (c & 0x3F));
    } else {
        out += static_cast<char>(0xF0 | (c >> 18));
        out += static_cast<char>(0x80 | ((c >> 12) & 0x3F));
        out += static_cast<char>(0x80 | ((c >> 6) & 0x3F));
        out += static_cast<char>(0x80 | (c & 0x3F));
    }
}

bool isXmlCharacter(std::uint32_t c) {
    if (c < 0x20) return c == '\t' || c == '\n' || c == '\r';
    return c < 0xD800 || (c >= 0xE000 && c <= 0x10FFFF && c != 0xFFFE && c != 0xFFFF);
}

/// Appends the character of "#38" or "#x26".
bool appendCharacter(std::string& out, std::string_view reference) {
    reference.remove_prefix(1);
    const bool hexadecimal = reference.starts_with('x');
    if (hexadecimal) reference.remove_prefix(1);
    std::uint32_t c = 0;
    const char* end = reference.data() + reference.size();
    const auto [parsed, error] = std::from_chars(reference.data(), end, c, hexadecimal ? 16 : 10);
    if (error != std::errc() || parsed != end || !isXmlCharacter(c)) return false;
    appendUtf8(out, c);
    return true;
}

char predefined(std::string_view name) {
    if (name == "amp") return '&';
    if (name == "lt") return '<';
    if (name == "gt") return '>';
    if (name == "quot") return '"';
    if (name == "apos") return '\'';
    return '\0';
}

/// Appends bytes as they stand in a file, with line ends as XML has them.
void appendPlain(std::string& out, std::string_view text) {
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (text[i] == '\r' && i + 1 < text.size() && text[i + 1] == '\n') continue;
        out += text[i] == '\r' ? '\n' : text[i];
    }
}

/// Decodes one run of bytes, entity by entity, into one text.
class Decoder {
  public:
    explicit Decoder(const XmlEntities& entities)
        : m_entities(entities) {}

    bool decode(std::string_view raw, int depth) {
        while (!raw.empty()) {
            const std::size_t special = raw.find_first_of("&<\r");
            m_text.append(raw.substr(0, special));
            if (m_text.size() > longestText) return false;
            if (special == std::string_view::npos) return true;
            raw.remove_prefix(special);
            if (!decodeSpecial(raw, depth)) return false;
        }
        return true;
    }

    std::string take() { return std::move(m_text); }

  private:
    bool decodeSpecial(std::string_view& raw, int depth) {
        if (raw.front() == '&') return decodeReference(raw, depth);
        if (raw.front() == '<') return decodeMarkup(raw);
        // An entity's line ends are what its references say.
        const bool isLineEnd = depth == 0;
        m_text += isLineEnd ? '\n' : '\r';
        raw.remove_prefix(isLineEnd && raw.starts_with("\r\n") ? 2 : 1);
        return true;
    }

    bool decodeReference(std::string_view& raw, int depth) {
        const std::size_t end = raw.find(';');
        if (end == std::string_view::npos || end < 2) return false;
        const std::string_view name = raw.substr(1, end - 1);
        raw.remove_prefix(end + 1);
        if (name.front() == '#') return appendCharacter(m_text, name);
        if (const char c = predefined(name)) {
            m_text += c;
            return true;
        }
        const auto entity = m_entities.find(name);
        if (entity == m_entities.end()) return true;
        return depth < deepestEntity && ++m_entityCount <= mostEntities && decode(entity->second, depth + 1);
    }

    bool decodeMarkup(std::string_view& raw) {
        if (raw.starts_with("<![CDATA[")) {
            const std::size_t end = raw.find("]]>");
            if (end == std::string_view::npos) return false;
            appendPlain(m_text, raw.substr(9, end - 9));
            raw.remove_prefix(end + 3);
            return true;
        }
        const std::string_view close = raw.starts_with("<!--") ? "-->" : "?>";
        const std::size_t end = raw.find(close);
        if (end == std::string_view::npos) return false;
        raw.remove_prefix(end + close.size());
        return true;
    }

    const XmlEntities& m_entities;
    std::string m_text;
    int m_entityCount = 0;
};

} // namespace

std::optional<std::string> entityReplacement(std::string_view literal) {
    std::string text;
    while (!literal.empty()) {
        const std::size_t reference = literal.find("&#");
        appendPlain(text, literal.substr(0, reference));
        if (reference == std::string_view::npos) break;
        literal.remove_prefix(reference);
        const std::size_t end = literal.find(';');
        if (end == std::string_view::npos || end < 3) return {};
        if (!appendCharacter(text, literal.substr(1, end - 1))) return {};
        literal.remove_prefix(end + 1);
    }
    return text;
}

std::optional<std::string> encodeXmlText(std::string_view text) {
    if (!isUtf8(text) || text.find("\xEF\xBF\xBE") != std::string_view::npos ||
        text.find("\xEF\xBF\xBF") != std::string_view::npos)
        return {};
    std::string raw;
    for (const char c : text) {
        const bool isControl = static_cast<unsigned char>(c) < 0x20;
        if (isControl && c != '\t' && c != '\n' && c != '\r') return {};
        if (c == '&' || c == '<' || c == '>' || c == '\r') {
            raw += "&#" + std::to_string(int(c)) + ";";
        } else {
            raw += c;
        }
    }
    return raw;
}

std::optional<std::string> decodeXmlText(std::string_view raw, const XmlEntities& entities) {
    if (isItsOwnText(raw)) return std::string(raw);
    Decoder decoder(entities);
    if (!decoder.decode(raw, 0)) return {};
    return decoder.take();
}

} // namespace songsweep
