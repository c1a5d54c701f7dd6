// SPDX-License-Identifier: MIT
#include "library/Arena.h"

#include <cstring>

namespace songsweep {

namespace {

/// Large enough to come straight from the system, which gives pages only when they are written to.
constexpr std::size_t chunkSize = std::size_t{1} << 20;

} // namespace

void* Arena::allocateInNewChunk(std::size_t size) {
    if (size > chunkSize / 4) {
        // A piece of its own leaves the chunk being filled as it is.
        m_chunks.push_back(std::make_unique_for_overwrite<std::byte[]>(size));
        return m_chunks.back().get();
    }
    m_chunks.push_back(std::make_unique_for_overwrite<std::byte[]>(chunkSize));
    m_chunk = m_chunks.back().get();
    m_capacity = chunkSize;
    m_used = size;
    return m_chunk;
}

char* Arena::copy(std::string_view text) {
    char* const bytes = static_cast<char*>(allocate(text.size() + 1, 1));
    if (!text.empty()) std::memcpy(bytes, text.data(), text.size());
    bytes[text.size()] = '\0';
    return bytes;
}

} // namespace songsweep
