// SPDX-License-Identifier: MIT
#include "support/SampleCleanup.h"

#include "delete/FolderTrash.h"
#include "hosts/EmbeddedScripting.h"
#include "library/LocationUrl.h"
#include "libraryfile/LibraryDocument.h"
#include "platform/Files.h"
#include "platform/HfsPath.h"
#include "support/SystemTexts.h"

#include <gtest/gtest.h>

#include <chrono>
#include <fstream>
#include <sstream>

namespace songsweep::test {

namespace {

std::string contentOf(const std::string& path) {
    std::ostringstream content;
    content << std::ifstream(path, std::ios::binary).rdbuf();
    return content.str();
}

/// Moves one file, and keeps what the record says when the next one's turn comes, which does not move any
/// more: all that a program leaves that is killed there.
class KilledAtSecondFile final : public Trash {
  public:
    explicit KilledAtSecondFile(Trash& trash)
        : m_trash(trash) {}

    Result<TrashedFile> moveToTrash(const std::string& path) override {
        if (++m_moves == 1) return m_trash.moveToTrash(path);
        if (m_moves == 2) m_recordThen = contentOf(record);
        return Error{Error::Code::failed, "the program was killed"};
    }
    Result<RestoredFile> restoreFromTrash(const TrashedFile&, const std::string&) override {
        return Error{Error::Code::failed, "the program was killed"};
    }
    std::optional<TrashedFile> findInTrash(const std::string&,
                                           std::chrono::system_clock::time_point) override {
        return std::nullopt;
    }
    std::unique_ptr<TrashCheck> newCheck() override { return m_trash.newCheck(); }

    void cutRecord() const { std::ofstream(record, std::ios::binary | std::ios::trunc) << m_recordThen; }

    std::string record; ///< path

  private:
    Trash& m_trash;
    int m_moves = 0;
    std::string m_recordThen;
};

RecordedTrack recordedTrack(LibraryDocument& library, const std::string& persistentId) {
    const auto position = library.tracksWithPersistentId(persistentId).front();
    const TrackFields& fields = *library.fields(position).value();
    RecordedTrack track;
    track.persistentId = persistentId;
    track.trackId = library.trackId(position);
    track.name = fields.text(LibraryKey::name);
    track.artist = fields.text(LibraryKey::artist);
    track.path = pathOfUrl(std::string(fields.text(LibraryKey::location))).value_or("");
    if (const auto stamp = LibraryFile::stampOf(track.path); stamp)
        track.file = stamp.value();
    else
        track.path.clear();
    return track;
}

std::vector<RecordedTrack> plannedTracks(const SampleCleanup& cleanup) {
    const auto library = LibraryDocument::open(cleanup.library);
    std::vector<RecordedTrack> tracks;
    for (const std::string& id : cleanup.persistentIds)
        tracks.push_back(recordedTrack(*library.value(), id));
    return tracks;
}

/// What became of the tracks, whose texts were told.
std::vector<RecordedOutcome> outcomes(LibraryCleanup& frame, const std::vector<RecordedTrack>& tracks) {
    std::vector<RecordedOutcome> all;
    for (std::size_t track = 0; track < tracks.size(); ++track) {
        const auto fate = frame.fateOfFile(track);
        const auto file = fate && *fate ? RecordedOutcome::File::trashed : RecordedOutcome::File::missing;
        all.push_back({RecordedOutcome::Track::deleted, file, {}});
    }
    return all;
}

/// Tells the embedded iTunes and Finder what a deletion tells them, in its frame.
std::string runCleanup(const SampleCleanup& cleanup, Trash& trash,
                       const std::function<void(const std::string&)>& begun) {
    TrashOnlyDesktop desktop(trash);
    Files files;
    EmbeddedScripting::Options options;
    options.writes = {std::chrono::hours(1), std::chrono::hours(1)};
    EmbeddedScripting scripts(cleanup.library, desktop, files, options);
    const std::vector<RecordedTrack> tracks = plannedTracks(cleanup);
    const auto with = [&](auto act) { return scripts.withCleanup(act); };
    EXPECT_TRUE(with([&](LibraryCleanup& frame) {
        return frame.begin({"a test"}, {"a test", true, tracks});
    }));
    std::string record = with([](LibraryCleanup& frame) { return frame.record(); });
    begun(record);
    for (std::size_t track = 0; track < tracks.size(); ++track) {
        EXPECT_TRUE(with([&](LibraryCleanup& frame) { return frame.beginTrack(track); }));
        EXPECT_TRUE(scripts.executeAndReturnError(deleteTrackText(tracks[track].persistentId)));
        if (const std::string& path = tracks[track].path; !path.empty()) {
            EXPECT_TRUE(scripts.executeAndReturnError(deleteFileText(hfsPath(path).value())));
        }
    }
    EXPECT_TRUE(with([](LibraryCleanup& frame) { return frame.finish(); }));
    EXPECT_TRUE(with([&](LibraryCleanup& frame) {
        return frame.end(outcomes(frame, tracks), RecordEnd::How::complete, {});
    }));
    return record;
}

} // namespace

std::string carryOut(const SampleCleanup& cleanup) {
    if (cleanup.end == SampleCleanup::End::complete) return runCleanup(cleanup, cleanup.trash, [](auto&) {});
    KilledAtSecondFile trash(cleanup.trash);
    std::string record = runCleanup(cleanup, trash, [&](const std::string& path) { trash.record = path; });
    trash.cutRecord();
    return record;
}

} // namespace songsweep::test
