// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

namespace songsweep {
class Trash;
}

namespace songsweep::test {

/// A clean-up that a test has the program's own iTunes and Finder carry out.
struct SampleCleanup {
    enum class End { complete, killed };

    std::string library;
    std::vector<std::string> persistentIds;
    Trash& trash; ///< where the files go
    End end = End::complete;
};

/// Deletes the tracks and moves their files to the Trash, with a backup and a record, whose path it gives.
/// One that is killed has moved the first file and no other.
std::string carryOut(const SampleCleanup& cleanup);

} // namespace songsweep::test
