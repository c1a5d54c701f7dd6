// SPDX-License-Identifier: MIT
//
// Any bytes as a library file: a search that goes on from the tracks that were read with the index, one by
// the scanner of plain files, and one by libxml2 have the same records, log lines, events and errors; and the
// index is the same in properties and tag by tag.
#include "libraryfile/ReadingRoads.h"

#include <unistd.h>

#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <string>

namespace {

using songsweep::test::RoadOutcome;

void expectSame(const RoadOutcome& found, const RoadOutcome& expected, const char* road) {
    if (found == expected) return;
    std::fprintf(stderr, "%s:\n%s\ninstead of\n%s\n", road, shown(found).c_str(), shown(expected).c_str());
    std::abort();
}

/// Where inputs are written, one after the other.
std::string inputFile() {
    const char* const folder = std::getenv("TMPDIR");
    return std::string(folder != nullptr ? folder : "/tmp") + "/songsweep-fuzz-" + std::to_string(getpid()) +
           ".xml";
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string file = inputFile();
    const std::string contents(reinterpret_cast<const char*>(data), size);
    std::ofstream(file, std::ios::binary) << contents;
    const auto outcomes = songsweep::test::readByAllRoads(file, "Library");
    if (!outcomes.isLibrary) return -1; // of no use to other inputs
    expectSame(outcomes.fromTracks, outcomes.parsed, "on from the tracks");
    expectSame(outcomes.scanned, outcomes.parsed, "by the scanner");
    const std::string difference = songsweep::test::differenceOfIndexes(file, contents);
    if (difference.empty()) return 0;
    std::fprintf(stderr, "indexes: %s\n", difference.c_str());
    std::abort();
}
