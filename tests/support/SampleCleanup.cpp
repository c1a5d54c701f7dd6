// SPDX-License-Identifier: MIT
#include "support/SampleCleanup.h"

#include "library/LocationUrl.h"
#include "libraryfile/CleanupRecord.h"
#include "libraryfile/LibraryDocument.h"
#include "platform/Trash.h"

#include <gtest/gtest.h>

#include <numeric>

namespace songsweep::test {

namespace {

RecordedTrack recordedTrack(LibraryDocument& library, const std::string& persistentId) {
    const auto position = library.tracksWithPersistentId(persistentId).front();
    const TrackFields& fields = *library.fields(position).value();
    RecordedTrack track;
    track.persistentId = persistentId;
    track.trackId = std::stoll(std::string(fields.text(LibraryKey::trackId)));
    track.name = fields.text(LibraryKey::name);
    track.artist = fields.text(LibraryKey::artist);
    track.path = pathOfUrl(std::string(fields.text(LibraryKey::location))).value_or("");
    if (const auto stamp = LibraryFile::stampOf(track.path); stamp)
        track.file = stamp.value();
    else
        track.path.clear();
    return track;
}

Result<CleanupRecord> recordOf(const LibraryDocument& library, std::size_t tracks) {
    RecordHeading heading;
    heading.program = "a test";
    heading.library = library.path();
    heading.backup = library.backup();
    heading.tracks = tracks;
    heading.withFiles = true;
    return CleanupRecord::create(heading);
}

void trashFiles(CleanupRecord& record, const std::vector<RecordedTrack>& tracks,
                const SampleCleanup& cleanup) {
    for (std::size_t i = 0; i < tracks.size(); ++i) {
        auto file = RecordedOutcome::File::missing;
        if (!tracks[i].path.empty()) {
            const auto trashed = cleanup.trash.moveToTrash(tracks[i].path);
            ASSERT_TRUE(trashed) << trashed.error().message;
            if (cleanup.end == SampleCleanup::End::killed) return;
            record.trashed(i, {trashed.value().trashFolder, trashed.value().name});
            file = RecordedOutcome::File::trashed;
        }
        record.outcome(i, {RecordedOutcome::Track::deleted, file, ""});
    }
    ASSERT_TRUE(record.end(RecordEnd::How::complete, ""));
}

} // namespace

std::string carryOut(const SampleCleanup& cleanup) {
    auto opened = LibraryDocument::open(cleanup.library);
    EXPECT_TRUE(opened && opened.value()->beginCleanup({"a test"}));
    LibraryDocument& library = *opened.value();
    std::vector<RecordedTrack> tracks;
    for (const std::string& id : cleanup.persistentIds)
        tracks.push_back(recordedTrack(library, id));
    auto record = recordOf(library, tracks.size());
    EXPECT_TRUE(record);
    for (const RecordedTrack& track : tracks)
        record.value().plan(track);
    EXPECT_TRUE(record.value().planned() && record.value().writing(tracks.size()));
    for (const std::string& id : cleanup.persistentIds)
        for (const auto position : library.tracksWithPersistentId(id))
            EXPECT_TRUE(library.remove(position));
    EXPECT_TRUE(library.flush());
    record.value().written();
    std::vector<std::size_t> all(tracks.size());
    std::iota(all.begin(), all.end(), std::size_t{0});
    EXPECT_TRUE(record.value().trashing(all));
    trashFiles(record.value(), tracks, cleanup);
    return record.value().path();
}

} // namespace songsweep::test
