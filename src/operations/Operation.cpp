// SPDX-License-Identifier: MIT
#include "operations/Operation.h"

namespace songsweep {

namespace {

std::uint64_t nextSerial() {
    static std::atomic<std::uint64_t> last = 0;
    return ++last;
}

} // namespace

Operation::Operation()
    : m_serial(nextSerial()) {}
Operation::~Operation() = default;

} // namespace songsweep
