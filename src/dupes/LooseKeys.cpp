// SPDX-License-Identifier: MIT
#include "dupes/LooseKeys.h"

#include "dupes/LooseText.h"
#include "library/CaseFolding.h"
#include "library/TrackRecord.h"

namespace songsweep {

namespace {

constexpr std::string_view leadingArticle = "the ";
constexpr std::string_view trailingArticle = " the";
constexpr std::size_t longestNumber = 4; ///< digits; beyond them it is the year of a song

bool isDigit(char c) { return c >= '0' && c <= '9'; }

} // namespace

LooseKeys::LooseKeys(const SearchParameters& parameters)
    : m_parameters(parameters)
    , m_featuring(parameters.issametime ? Featuring::ignored : Featuring::counts) {}

void LooseKeys::append(std::string& key, const TrackRecord& record) {
    if (m_parameters.issamename) {
        appendText(key, record.name);
        key += '\0';
    }
    if (m_parameters.issameartist)
        appendKnown(key, record.artist, m_artist,
                    [this](std::string& made, std::string_view text) { appendArtist(made, text); });
    if (m_parameters.issamealbum)
        appendKnown(key, record.album, m_album,
                    [this](std::string& made, std::string_view text) { appendText(made, text); });
}

std::size_t LooseKeys::leadingNumber(std::string_view key, int& number) const {
    std::size_t length = 0;
    number = 0;
    if (!m_parameters.issamename) return 0;
    for (; length < longestNumber && length < key.size() && isDigit(key[length]); ++length)
        number = number * 10 + (key[length] - '0');
    return length > 0 && length < key.size() && key[length] == ' ' ? length + 1 : 0;
}

void LooseKeys::appendText(std::string& key, std::string_view text) {
    const std::size_t start = key.size();
    m_letters.clear();
    appendLetters(m_letters, text);
    if (!mayHaveOtherParts(m_letters, m_featuring)) {
        appendWords(key, m_letters);
    } else {
        std::string essential;
        for (const std::string_view part : essentialParts(m_letters, m_featuring))
            (essential += part) += ' ';
        appendWords(key, essential);
    }
    if (key.size() == start) appendFoldedKey(key, text);
}

void LooseKeys::appendArtist(std::string& key, std::string_view text) {
    const std::size_t start = key.size();
    appendText(key, text);
    const std::string_view words = std::string_view(key).substr(start);
    if (words.starts_with(leadingArticle))
        key.erase(start, leadingArticle.size());
    else if (words.ends_with(trailingArticle))
        key.erase(key.size() - trailingArticle.size());
}

template <typename Append>
void LooseKeys::appendKnown(std::string& key, Text text, Known& known, Append append) {
    if (known.text != text.c_str()) {
        known.key.clear();
        append(known.key, text.view());
        known.key += '\0';
        known.text = text.c_str();
    }
    key += known.key;
}

} // namespace songsweep
