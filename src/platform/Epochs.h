// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>
#include <cstdint>

namespace songsweep {

/// The days from whose midnight others than Unix count seconds.

/// Of a LongDateTime, which counts seconds of local time.
inline constexpr std::chrono::sys_days longDateTimeEpoch = std::chrono::year{1904} / std::chrono::January / 1;
/// Of the reference date, which counts seconds of UTC.
inline constexpr std::chrono::sys_days referenceDateEpoch =
    std::chrono::year{2001} / std::chrono::January / 1;

/// What the epoch's midnight is in seconds since 1970-01-01 00:00:00; negative before that.
constexpr std::int64_t secondsSince1970(std::chrono::sys_days epoch) {
    return std::chrono::seconds(epoch.time_since_epoch()).count();
}

} // namespace songsweep
