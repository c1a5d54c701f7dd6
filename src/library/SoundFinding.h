// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>

namespace songsweep {

/// What the comparison of a copy with those of its group came to; `none` before anybody listened.
enum class SoundVerdict : std::uint8_t { none, same, differs, unsure, notReadable };

/// What was found of a copy's sound among those of its group. A value, of the record.
struct SoundFinding {
    /// Of the copies that are one recording, from 1 in their order; 0 where it could not be compared.
    std::int32_t set = 0;
    SoundVerdict verdict = SoundVerdict::none;
    /// Of the bits how many agree: with its set where it has others, else with the sound most like it. 0
    /// where there is nothing to compare it with.
    std::uint8_t percent = 0;

    bool operator==(const SoundFinding&) const = default;
};

/// "same", "differs", "unsure", "not readable", and "" before anybody listened.
constexpr std::string_view soundWord(SoundVerdict verdict) {
    constexpr std::string_view words[] = {"", "same", "differs", "unsure", "not readable"};
    return words[static_cast<std::size_t>(verdict)];
}

/// Whether both copies, of one group, are the same recording by what was found; true where nobody listened.
constexpr bool isOneRecording(const SoundFinding& one, const SoundFinding& other) {
    const bool isUnknown = one.verdict == SoundVerdict::none && other.verdict == SoundVerdict::none;
    return isUnknown || (one.set != 0 && one.set == other.set);
}

} // namespace songsweep
