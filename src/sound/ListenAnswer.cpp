// SPDX-License-Identifier: MIT
#include "sound/ListenAnswer.h"

#include "platform/Ascii.h"

#include <algorithm>

namespace songsweep {

namespace {

constexpr std::string_view sound = "sound ";
constexpr std::string_view problem = "problem ";
constexpr std::size_t digitsOfItem = 8;

Error notAnAnswer() { return Error{.message = "an answer that is none"}; }

} // namespace

std::string answerLine(const Result<Fingerprint>& heard) {
    if (!heard) return std::string(problem) + heard.error().message + "\n";
    std::string line(sound);
    for (const std::uint32_t item : heard.value())
        for (int shift = 28; shift >= 0; shift -= 4)
            line += "0123456789abcdef"[item >> shift & 0xFU];
    return line + "\n";
}

Result<Fingerprint> readAnswer(std::string_view line) {
    if (line.starts_with(problem)) return Error{.message = std::string(line.substr(problem.size()))};
    if (!line.starts_with(sound)) return notAnAnswer();
    const std::string_view digits = line.substr(sound.size());
    const bool areDigits = std::all_of(digits.begin(), digits.end(), [](char c) { return hexDigit(c) >= 0; });
    if (digits.empty() || digits.size() % digitsOfItem != 0 || !areDigits) return notAnAnswer();
    Fingerprint fingerprint;
    for (std::size_t i = 0; i < digits.size(); ++i) {
        if (i % digitsOfItem == 0) fingerprint.push_back(0);
        fingerprint.back() = fingerprint.back() << 4 | static_cast<std::uint32_t>(hexDigit(digits[i]));
    }
    return fingerprint;
}

} // namespace songsweep
