// SPDX-License-Identifier: MIT
#include "library/PlaylistItems.h"

#include <algorithm>
#include <charconv>
#include <optional>

namespace songsweep {

namespace {

/// The number that has exactly this text.
std::optional<std::uint32_t> plainNumber(std::string_view text) {
    std::uint32_t number = 0;
    const char* const end = text.data() + text.size();
    const auto [stop, error] = std::from_chars(text.data(), end, number);
    if (error != std::errc() || stop != end || (text.front() == '0' && text.size() > 1)) return {};
    return number;
}

} // namespace

void PlaylistItems::add(std::string_view trackId) {
    ++m_count;
    if (const auto number = plainNumber(trackId))
        m_numbers.push_back(*number);
    else
        ++m_texts[std::string(trackId)];
}

void PlaylistItems::sort() {
    if (!std::is_sorted(m_numbers.begin(), m_numbers.end())) std::sort(m_numbers.begin(), m_numbers.end());
}

bool PlaylistItems::take(std::string_view trackId) {
    bool found = false;
    if (const auto number = plainNumber(trackId)) {
        found = takeNumber(*number);
    } else if (const auto text = m_texts.find(std::string(trackId));
               text != m_texts.end() && text->second > 0) {
        --text->second;
        found = true;
    }
    if (found) --m_count;
    return found;
}

bool PlaylistItems::takeNumber(std::uint32_t number) {
    if (m_hashed || number > m_lastAsked) return takeFromHash(number);
    m_lastAsked = number;
    while (!m_numbers.empty() && m_numbers.back() > number) {
        m_skipped.push_back(m_numbers.back());
        m_numbers.pop_back();
    }
    if (m_numbers.empty() || m_numbers.back() != number) return false;
    m_numbers.pop_back();
    return true;
}

bool PlaylistItems::takeFromHash(std::uint32_t number) {
    if (!m_hashed) {
        m_counted.reserve(m_numbers.size() + m_skipped.size());
        for (const auto* items : {&m_numbers, &m_skipped})
            for (const std::uint32_t item : *items)
                ++m_counted[item];
        m_numbers = {};
        m_skipped = {};
        m_hashed = true;
    }
    const auto item = m_counted.find(number);
    if (item == m_counted.end()) return false;
    if (--item->second == 0) m_counted.erase(item);
    return true;
}

std::vector<std::string> PlaylistItems::left() const {
    std::vector<std::uint32_t> numbers = m_numbers;
    numbers.insert(numbers.end(), m_skipped.rbegin(), m_skipped.rend());
    for (const auto& [number, count] : m_counted)
        numbers.insert(numbers.end(), count, number);
    if (m_hashed) std::sort(numbers.begin(), numbers.end());

    std::vector<std::string> texts;
    texts.reserve(m_count);
    for (const std::uint32_t number : numbers)
        texts.push_back(std::to_string(number));
    for (const auto& [text, count] : m_texts)
        texts.insert(texts.end(), count, text);
    return texts;
}

void PlaylistItems::clear() { *this = PlaylistItems(); }

} // namespace songsweep
