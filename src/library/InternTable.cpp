// SPDX-License-Identifier: MIT
#include "library/InternTable.h"

#include <cstring>
#include <functional>

namespace songsweep {

namespace {

constexpr std::size_t firstSlotCount = 1024;

bool equal(const char* zeroTerminated, std::string_view text) {
    return std::strncmp(zeroTerminated, text.data(), text.size()) == 0 && zeroTerminated[text.size()] == '\0';
}

} // namespace

Text InternTable::intern(std::string_view text, Arena& arena) {
    if (text.empty()) return {};
    if (m_count * 3 >= m_slots.size() * 2) grow();
    const char*& slot = m_slots[slotOf(text)];
    if (!slot) {
        slot = arena.copy(text);
        ++m_count;
    }
    return slot;
}

void InternTable::clear() {
    m_slots = {};
    m_count = 0;
}

std::size_t InternTable::slotOf(std::string_view text) const {
    const std::size_t mask = m_slots.size() - 1;
    std::size_t slot = std::hash<std::string_view>()(text) & mask;
    while (m_slots[slot] && !equal(m_slots[slot], text))
        slot = (slot + 1) & mask;
    return slot;
}

void InternTable::grow() {
    std::vector<const char*> old(m_slots.empty() ? firstSlotCount : m_slots.size() * 2);
    old.swap(m_slots);
    for (const char* text : old)
        if (text) m_slots[slotOf(text)] = text;
}

} // namespace songsweep
