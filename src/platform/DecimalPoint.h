// SPDX-License-Identifier: MIT
#pragma once

#include <string>

namespace songsweep {

/// A figure for people with the decimal point of their locale: "5,1 MB" of "5.1 MB" in German.
std::string withDecimalPoint(std::string figure);

} // namespace songsweep
