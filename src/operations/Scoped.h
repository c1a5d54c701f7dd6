// SPDX-License-Identifier: MIT
#pragma once

#include <utility>

namespace songsweep {

/// Sets a value, and puts the old one back at its own end.
template <typename Value>
class Scoped {
  public:
    Scoped(Value& place, Value value)
        : m_place(place)
        , m_old(std::exchange(place, value)) {}
    Scoped(const Scoped&) = delete;
    Scoped& operator=(const Scoped&) = delete;
    ~Scoped() { m_place = m_old; }

  private:
    Value& m_place;
    Value m_old;
};

} // namespace songsweep
