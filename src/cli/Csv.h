// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

namespace songsweep::cli {

/// A text as a field of a CSV row: quoted where it holds a comma, a quote or a line break (RFC 4180).
/// One that a spreadsheet would run as a formula gets an apostrophe in front, by which it is a text there.
std::string csvField(std::string_view text);

std::string csvTruth(bool value);

} // namespace songsweep::cli
