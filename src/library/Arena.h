// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <memory>
#include <string_view>
#include <vector>

namespace songsweep {

/// Memory that is handed out in small pieces and given back as a whole.
///
/// A search keeps millions of short texts; the allocator's own 16 to 24 bytes a piece, and the time to give
/// each back, would cost more than the texts. Addresses never change. Used by one thread at a time.
class Arena {
  public:
    Arena() = default;
    Arena(const Arena&) = delete;
    Arena& operator=(const Arena&) = delete;

    /// Uninitialised bytes; `alignment` is a power of two of at most 16.
    void* allocate(std::size_t size, std::size_t alignment) {
        const std::size_t padding = (0 - m_used) & (alignment - 1);
        if (padding + size > m_capacity - m_used) return allocateInNewChunk(size);
        std::byte* const place = m_chunk + m_used + padding;
        m_used += padding + size;
        return place;
    }

    /// A copy of the text, ended by a zero.
    char* copy(std::string_view text);

  private:
    void* allocateInNewChunk(std::size_t size);

    std::vector<std::unique_ptr<std::byte[]>> m_chunks;
    std::byte* m_chunk = nullptr; // the one being filled
    std::size_t m_used = 0;
    std::size_t m_capacity = 0;
};

} // namespace songsweep
