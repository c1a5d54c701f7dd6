// SPDX-License-Identifier: MIT
#include "scripting/interpreter/Vocabulary.h"

#include "scripting/interpreter/Words.h"

#include <algorithm>

namespace songsweep::interpreter {
namespace {

std::vector<std::string> splitWords(std::string_view name) {
    std::vector<std::string> words;
    while (!name.empty()) {
        const std::size_t end = std::min(name.find(' '), name.size());
        words.push_back(loweredWord(name.substr(0, end)));
        name.remove_prefix(std::min(end + 1, name.size()));
    }
    return words;
}

bool standsAt(std::span<const Token> tokens, const std::vector<std::string>& words) {
    if (words.size() > tokens.size()) return false;
    if (words.size() == 1 && isReserved(tokens.front().keyword)) return false;
    return std::equal(words.begin(), words.end(), tokens.begin(),
                      [](const std::string& word, const Token& token) {
                          return token.kind == Token::Kind::word && isSameWord(word, token.text);
                      });
}

} // namespace

Vocabulary::Vocabulary(const Terminology& terminology)
    : m_terminology(terminology) {
    for (const PropertyTerm& term : terminology.properties)
        entryOf(term.name).property = &term;
    for (const ClassTerm& term : terminology.classes) {
        entryOf(term.singular).elementClass = &term;
        entryOf(term.plural).elementClass = &term;
    }
    for (const CommandTerm& term : terminology.commands)
        entryOf(term.name).command = &term;
    std::ranges::stable_sort(m_entries, [](const Entry& left, const Entry& right) {
        if (left.words.front() != right.words.front()) return left.words.front() < right.words.front();
        return left.words.size() > right.words.size();
    });
}

Vocabulary::Entry& Vocabulary::entryOf(const std::string& name) {
    std::vector<std::string> words = splitWords(name);
    const auto entry = std::ranges::find(m_entries, words, &Entry::words);
    if (entry != m_entries.end()) return *entry;
    m_entries.push_back({std::move(words), nullptr, nullptr, nullptr});
    return m_entries.back();
}

const Vocabulary::Entry* Vocabulary::longestAt(std::span<const Token> tokens) const {
    if (tokens.empty() || tokens.front().kind != Token::Kind::word) return nullptr;
    const std::string_view first = tokens.front().text;
    auto entry = std::lower_bound(
        m_entries.begin(), m_entries.end(), first,
        [](const Entry& left, std::string_view right) { return isWordLess(left.words.front(), right); });
    for (; entry != m_entries.end() && isSameWord(entry->words.front(), first); ++entry) {
        if (standsAt(tokens, entry->words)) return &*entry;
    }
    return nullptr;
}

std::size_t wordsAt(std::span<const Token> tokens, std::string_view name) {
    std::size_t count = 0;
    while (!name.empty()) {
        const std::size_t end = std::min(name.find(' '), name.size());
        if (count >= tokens.size() || tokens[count].kind != Token::Kind::word ||
            !isSameWord(tokens[count].text, name.substr(0, end))) {
            return 0;
        }
        ++count;
        name.remove_prefix(std::min(end + 1, name.size()));
    }
    return count;
}

} // namespace songsweep::interpreter
