// SPDX-License-Identifier: MIT
#include "scripting/interpreter/ProgramCache.h"

#include "scripting/interpreter/Lexer.h"
#include "scripting/interpreter/Try.h"

#include <algorithm>
#include <optional>
#include <utility>

namespace songsweep::interpreter {
namespace {

/// The length of what stands before the closing quote; nothing where none comes, or the escapes are unknown.
std::optional<std::size_t> quotedLength(std::string_view text) {
    for (std::size_t at = 0; at < text.size(); ++at) {
        if (text[at] == '"') return at;
        if (text[at] != '\\') continue;
        if (++at == text.size() || !isEscape(text[at])) return {};
    }
    return {};
}

/// What a source has in the place of the values of another one; nothing where they differ in more.
std::optional<std::vector<std::string>> boundTexts(std::string_view source, std::string_view known,
                                                   const std::vector<std::string_view>& knownTexts) {
    std::vector<std::string> texts;
    texts.reserve(knownTexts.size());
    for (const std::string_view knownText : knownTexts) {
        const auto before = static_cast<std::size_t>(knownText.data() - known.data());
        if (!source.starts_with(known.substr(0, before))) return {};
        source.remove_prefix(before);
        const std::optional<std::size_t> length = quotedLength(source);
        if (!length) return {};
        texts.push_back(unescapedText(source.substr(0, *length)));
        source.remove_prefix(*length);
        known.remove_prefix(before + knownText.size());
    }
    if (source != known) return {};
    return texts;
}

} // namespace

std::vector<std::string> unescapedTexts(const std::vector<std::string_view>& texts) {
    std::vector<std::string> unescaped;
    unescaped.reserve(texts.size());
    for (const std::string_view text : texts)
        unescaped.push_back(unescapedText(text));
    return unescaped;
}

Result<BoundProgram> ProgramCache::program(std::string_view source) {
    if (source.size() > longestSource) return read(source);
    for (auto entry = m_entries.begin(); entry != m_entries.end(); ++entry) {
        auto texts = boundTexts(source, (*entry)->source, (*entry)->program.texts);
        if (!texts) continue;
        std::rotate(m_entries.begin(), entry, entry + 1);
        return BoundProgram{&m_entries.front()->program, std::move(*texts)};
    }
    return read(source);
}

Result<BoundProgram> ProgramCache::read(std::string_view source) {
    auto entry = std::make_unique<Entry>(Entry{std::string(source), {}});
    TRY(Program && program, parsedProgram(entry->source, m_applications));
    entry->program = std::move(program);
    BoundProgram bound{&entry->program, unescapedTexts(entry->program.texts)};
    if (m_entries.size() == mostPrograms) m_entries.pop_back();
    m_entries.insert(m_entries.begin(), std::move(entry));
    return bound;
}

} // namespace songsweep::interpreter
