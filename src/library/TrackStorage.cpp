// SPDX-License-Identifier: MIT
#include "library/TrackStorage.h"

#include "library/Arena.h"
#include "library/InternTable.h"

#include <cstring>
#include <new>
#include <type_traits>

namespace songsweep {

static_assert(std::is_trivially_destructible_v<TrackRecord>, "the arena destroys nothing");

class TrackStorage::Impl {
  public:
    Arena records;
    Arena texts;
    InternTable interned;
};

TrackStorage::TrackStorage()
    : m_impl(std::make_unique<Impl>()) {}
TrackStorage::~TrackStorage() = default;
TrackStorage& TrackStorage::operator=(TrackStorage&& other) noexcept = default;

TrackRecord& TrackStorage::makeRecord() {
    return *new (m_impl->records.allocate(sizeof(TrackRecord), alignof(TrackRecord))) TrackRecord;
}

Text TrackStorage::store(std::string_view text) {
    if (text.empty()) return {};
    return m_impl->texts.copy(text);
}

Text TrackStorage::intern(std::string_view text, Text likely) {
    text = text.substr(0, text.find('\0')); // as whoever reads it will
    const char* const bytes = likely.c_str();
    if (std::strncmp(bytes, text.data(), text.size()) == 0 && bytes[text.size()] == '\0') return likely;
    return m_impl->interned.intern(text, m_impl->texts);
}

std::span<char> TrackStorage::bytes(Text stored) {
    // Every text that store() made lies in the arena, which hands out writable memory.
    return {const_cast<char*>(stored.c_str()), stored.view().size()};
}

void TrackStorage::forgetInterned() { m_impl->interned.clear(); }

} // namespace songsweep
