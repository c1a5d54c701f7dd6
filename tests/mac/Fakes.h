// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

namespace songsweep::test {

/// What the fakes of macOS' own calls were told and shall answer.
struct FakeMac {
    std::vector<std::string> calls;
    bool succeeds = true;
    /// Entries of the domain "com.apple.iApps"; "(number)" stands for a number.
    std::vector<std::string> recentDatabases;
    bool hasDomain = true;
};

FakeMac& fakeMac();

} // namespace songsweep::test
