// SPDX-License-Identifier: MIT
#pragma once

#include "platform/Result.h"
#include "sound/Fingerprint.h"

#include <cstddef>
#include <string>
#include <string_view>

namespace songsweep {

/// How a listening process answers for one file: "sound 1f3a…", eight hexadecimal digits an item, or "problem
/// WHY", and a line feed. The reader trusts no byte of it: the process reads hostile files.

inline constexpr std::size_t longestAnswer = std::size_t{64} * 1024;

std::string answerLine(const Result<Fingerprint>& heard);

/// What the line, without its end, says; an error for a problem and for anything that is no answer.
Result<Fingerprint> readAnswer(std::string_view line);

} // namespace songsweep
