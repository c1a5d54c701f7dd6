// SPDX-License-Identifier: MIT
#include "scan/OrderedReading.h"

#include <algorithm>
#include <condition_variable>
#include <mutex>
#include <optional>
#include <thread>
#include <utility>
#include <vector>

namespace songsweep {

namespace {

constexpr std::size_t chunkSize = 32;
constexpr std::size_t chunksAhead = 4; // of each thread

using Chunk = std::vector<Result<SoundFacts>>;

/// What the threads share: which chunk is next, and those that are ready but not taken.
class Shelf {
  public:
    Shelf(std::size_t chunks, std::size_t places)
        : m_chunks(chunks)
        , m_places(places) {}

    /// The next chunk to read, once there is a place for it; nothing when none is left.
    std::optional<std::size_t> claim() {
        std::unique_lock lock(m_lock);
        m_changed.wait(lock, [this] {
            return m_ended || m_claimed == m_chunks || m_claimed < m_taken + m_places.size();
        });
        if (m_ended || m_claimed == m_chunks) return {};
        return m_claimed++;
    }

    void put(std::size_t number, Chunk chunk) {
        const std::lock_guard lock(m_lock);
        m_places[number % m_places.size()] = std::move(chunk);
        m_changed.notify_all();
    }

    Chunk take() {
        std::unique_lock lock(m_lock);
        std::optional<Chunk>& place = m_places[m_taken % m_places.size()];
        m_changed.wait(lock, [&] { return place.has_value(); });
        Chunk chunk = std::move(*place);
        place.reset();
        ++m_taken;
        m_changed.notify_all();
        return chunk;
    }

    void end() {
        const std::lock_guard lock(m_lock);
        m_ended = true;
        m_changed.notify_all();
    }

  private:
    std::mutex m_lock;
    std::condition_variable m_changed;
    std::size_t m_chunks;
    std::size_t m_claimed = 0;
    std::size_t m_taken = 0;
    std::vector<std::optional<Chunk>> m_places;
    bool m_ended = false;
};

Chunk readChunk(const OrderedReading& reading, std::size_t number) {
    Chunk chunk;
    const std::size_t end = std::min((number + 1) * chunkSize, reading.count);
    for (std::size_t i = number * chunkSize; i < end; ++i)
        chunk.push_back(reading.read(i));
    return chunk;
}

bool takeChunk(const OrderedReading& reading, std::size_t number, Chunk chunk) {
    for (std::size_t i = 0; i < chunk.size(); ++i)
        if (!reading.take(number * chunkSize + i, std::move(chunk[i]))) return false;
    return true;
}

} // namespace

void OrderedReading::run() const {
    const std::size_t chunks = (count + chunkSize - 1) / chunkSize;
    Shelf shelf(chunks, chunksAhead * threads);
    std::vector<std::jthread> readers;
    for (unsigned i = 0; i < std::min<std::size_t>(threads, chunks); ++i)
        readers.emplace_back([&] {
            while (const std::optional<std::size_t> number = shelf.claim())
                shelf.put(*number, readChunk(*this, *number));
        });
    for (std::size_t number = 0; number < chunks; ++number)
        if (!takeChunk(*this, number, shelf.take())) break;
    shelf.end();
}

} // namespace songsweep
