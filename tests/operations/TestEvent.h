// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>

namespace songsweep {
class Operation;
}

namespace songsweep::test {

/// What the workers of these tests post.
enum class Kind : std::uint8_t { finish, end, cancel, step, units, count, otherCount, fromView };

struct TestEvent {
    Kind kind = Kind::finish;
    int units = 0;
    const Operation* sender = nullptr;
};

inline bool isCount(const TestEvent& event) {
    return event.kind == Kind::count || event.kind == Kind::otherCount;
}

} // namespace songsweep::test
