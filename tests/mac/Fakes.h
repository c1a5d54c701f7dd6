// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

namespace songsweep::test {

/// A result of a script as an Apple event carries it.
struct FakeDescriptor {
    std::string type;                  ///< its four-letter code
    std::string data;                  ///< its bytes
    std::vector<FakeDescriptor> items; ///< of a list
};

/// What the fakes of macOS' own calls were told and shall answer.
struct FakeMac {
    std::vector<std::string> calls;
    bool succeeds = true;
    bool tellsWhere = true; ///< where a trashed file lies
    /// Entries of the domain "com.apple.iApps"; "(number)" stands for a number.
    std::vector<std::string> recentDatabases;
    bool hasDomain = true;
    FakeDescriptor scriptResult = {"null", "", {}};
    std::vector<std::string> applications = {"com.apple.iTunes"}; ///< that are installed
    std::string scriptError;                                      ///< empty: none told
};

FakeMac& fakeMac();

} // namespace songsweep::test
