// SPDX-License-Identifier: MIT
#pragma once

#include <string>

namespace songsweep::test {

/// The path of a file in tests/data, named from there: testData("library/five-tracks.xml"). One source alone
/// knows the folder, so that the objects of all others are the same in every checkout, for a compiler cache.
std::string testData(const std::string& name);

} // namespace songsweep::test
