// SPDX-License-Identifier: MIT
#pragma once

#include <string>

namespace songsweep::test {

/// A text that tells no application, and its outcome.
struct TextCase {
    const char* source;
    const char* result;
};

/// What a text gives, in source notation; "" for no result, "error: …" for a text that fails.
std::string outcomeOf(const std::string& source);

} // namespace songsweep::test
