// SPDX-License-Identifier: MIT
#include "support/TestData.h"

namespace songsweep::test {

std::string testData(const std::string& name) { return SONGSWEEP_TEST_DATA "/" + name; }

} // namespace songsweep::test
