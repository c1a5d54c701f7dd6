// SPDX-License-Identifier: MIT
#include "scan/LinePlaces.h"

#include <algorithm>
#include <string>

namespace songsweep {

LinePlaces::LinePlaces(std::string_view bytes)
    : m_bytes(bytes) {
    std::size_t lineBefore = 0;
    for (std::size_t begin = 0; begin < bytes.size();) {
        const std::size_t end = std::min(bytes.find('\n', begin), bytes.size() - 1) + 1;
        note(m_places, bytes.substr(begin, end - begin), begin);
        if (begin > 0) note(m_places, bytes.substr(lineBefore, end - lineBefore), lineBefore);
        lineBefore = begin;
        begin = end;
    }
}

void LinePlaces::note(Places& places, std::string_view text, std::size_t at) {
    const auto [place, isNew] = places.try_emplace(text, Place{at, true});
    if (!isNew) place->second.isOnly = false;
}

std::optional<std::size_t> LinePlaces::onlyPlaceOf(std::string_view text) const {
    if (text.empty()) return {};
    if (const auto found = m_places.find(text); found != m_places.end())
        return found->second.isOnly ? std::optional(found->second.at) : std::nullopt;
    if (text.ends_with('\n')) return {};
    const std::size_t at = m_bytes.find(text);
    if (at == std::string_view::npos || m_bytes.find(text, at + 1) != std::string_view::npos) return {};
    return at;
}

std::optional<std::size_t> LinePlaces::placeFor(const RecordedPlaylist::Cut& cut) const {
    if (const auto both = onlyPlaceOf(cut.before + cut.after)) return *both + cut.before.size();
    if (const auto before = onlyPlaceOf(cut.before)) return *before + cut.before.size();
    return onlyPlaceOf(cut.after);
}

} // namespace songsweep
