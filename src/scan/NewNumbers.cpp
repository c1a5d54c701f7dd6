// SPDX-License-Identifier: MIT
#include "scan/NewNumbers.h"

#include "scan/Hash64.h"

#include <algorithm>

namespace songsweep {

NewNumbers::NewNumbers(const std::vector<KnownFile>& known) {
    m_used.reserve(known.size());
    for (const KnownFile& track : known) {
        m_used.insert(track.persistentId);
        m_lastTrackId = std::max(m_lastTrackId, track.trackId);
    }
}

std::uint64_t NewNumbers::persistentId(const std::string& path) {
    std::uint64_t id = hash64(path);
    while (id == 0 || !m_used.insert(id).second)
        id = hash64(path + "\n" + std::to_string(id));
    return id;
}

} // namespace songsweep
