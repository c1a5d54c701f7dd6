// SPDX-License-Identifier: MIT
//
// Any bytes as the record of a clean-up: it is read as one or refused, and a list of clean-ups that shows it
// reads its ends alike.
#include "Check.h"
#include "libraryfile/CleanupHistory.h"
#include "libraryfile/RecordedCleanup.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace songsweep;
    const std::string path = fuzz::scratchFile("record.jsonl", fuzz::textOf(data, size));
    const Result<RecordedCleanup> whole = RecordedCleanup::read(path);
    const auto summary = cleanupOfRecord(path);
    if (!whole) {
        fuzz::check(!whole.error().message.empty(), "an error without a reason");
        return 0;
    }
    fuzz::check(summary.has_value(), "a record is none by its ends");
    fuzz::check(summary->heading == whole.value().heading, "a record has another heading by its ends");
    fuzz::check(summary->end == whole.value().end, "a record ends otherwise by its ends");
    return 0;
}
