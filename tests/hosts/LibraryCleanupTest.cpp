// SPDX-License-Identifier: MIT
#include "EmbeddedScriptingFixture.h"
#include "platform/HfsPath.h"
#include "support/SystemTexts.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/resource.h>

#include <algorithm>
#include <csignal>
#include <filesystem>

namespace songsweep {
namespace {

using test::contentOf;
using test::manyTracks;
using testing::ElementsAre;
using testing::IsEmpty;

/// Until its end no file gets longer.
class FileSizeLimit {
  public:
    explicit FileSizeLimit(rlim_t bytes) {
        m_handlerBefore = std::signal(SIGXFSZ, SIG_IGN);
        ::getrlimit(RLIMIT_FSIZE, &m_before);
        const rlimit limit{bytes, m_before.rlim_max};
        ::setrlimit(RLIMIT_FSIZE, &limit);
    }
    FileSizeLimit(const FileSizeLimit&) = delete;
    FileSizeLimit& operator=(const FileSizeLimit&) = delete;
    ~FileSizeLimit() {
        ::setrlimit(RLIMIT_FSIZE, &m_before);
        std::signal(SIGXFSZ, m_handlerBefore);
    }

  private:
    rlimit m_before{};
    void (*m_handlerBefore)(int) = nullptr;
};

/// Four tracks with a file each.
class LibraryCleanupTest : public test::EmbeddedScriptingFixture {
  protected:
    LibraryCleanupTest() {
        for (int n = 0; n < 4; ++n)
            m_folder.write(nameOf(n), "sound");
        open(manyTracks(4));
    }

    static std::string nameOf(int track) { return std::to_string(track) + ".mp3"; }
    std::string pathOf(int track) const { return m_folder.pathOf(nameOf(track)); }

    void deleteTrack(int track) {
        ASSERT_TRUE(beginTrack(static_cast<std::size_t>(track)));
        run(test::deleteTrackText(test::persistentIdOf(track)));
    }
    void deleteFile(int track) { run(test::deleteFileText(hfsPath(pathOf(track)).value())); }
    std::string reasonOf(int track) {
        const auto fate = fateOfFile(static_cast<std::size_t>(track));
        if (!fate) return "(nothing was told)";
        return *fate ? "(in the Trash)" : fate->error().message;
    }
};

TEST_F(LibraryCleanupTest, HoldsFilesUntilTheirTracksAreWritten) {
    ASSERT_TRUE(beginCleanup());
    deleteTrack(0);
    deleteFile(0);
    ASSERT_TRUE(beginTrack(1));
    deleteFile(1); // of a track that stays
    EXPECT_THAT(m_desktop.calls, IsEmpty());
    ASSERT_TRUE(m_scripts->flush());
    EXPECT_THAT(m_desktop.calls, ElementsAre("trash " + pathOf(0)));
    ASSERT_TRUE(finishCleanup());
    EXPECT_THAT(m_desktop.calls, ElementsAre("trash " + pathOf(0)));
    EXPECT_EQ(reasonOf(0), "(in the Trash)");
    EXPECT_EQ(reasonOf(1), "its track is still in the library");
    EXPECT_EQ(reasonOf(2), "(nothing was told)");
}

TEST_F(LibraryCleanupTest, WritesNothingMoreAfterAFailedWrite) {
    ASSERT_TRUE(beginCleanup());
    deleteTrack(0);
    deleteFile(0);
    std::filesystem::rename(m_path, m_path + ".away");
    EXPECT_FALSE(m_scripts->flush());
    std::filesystem::rename(m_path + ".away", m_path);
    run(test::deleteTrackText(test::persistentIdOf(1)));
    EXPECT_FALSE(beginTrack(2));
    EXPECT_FALSE(finishCleanup());
    EXPECT_TRUE(hasTrack(1));
    ASSERT_TRUE(endCleanup(RecordEnd::How::failed));
    m_scripts.reset();
    EXPECT_EQ(contentOf(m_path), manyTracks(4));
    EXPECT_THAT(m_desktop.calls, IsEmpty());
}

TEST_F(LibraryCleanupTest, TellsOfTracksWhatTheLibraryOnTheDiskSays) {
    ASSERT_TRUE(beginCleanup());
    deleteTrack(0);
    std::filesystem::remove(m_path);
    EXPECT_FALSE(m_scripts->flush());
    m_folder.write("library.xml", test::withoutTracks(manyTracks(4), {1000})); // by whomever
    EXPECT_FALSE(finishCleanup());
    EXPECT_FALSE(hasTrack(0));
    EXPECT_TRUE(hasTrack(1));
}

TEST_F(LibraryCleanupTest, LeavesAFileThatIsNotThePlannedOneAnyMore) {
    ASSERT_TRUE(beginCleanup());
    for (int n = 0; n < 3; ++n) {
        deleteTrack(n);
        deleteFile(n);
    }
    m_folder.write(nameOf(0), "other sound");                           // written to
    std::filesystem::rename(m_folder.write("new", "sound"), pathOf(1)); // another file of that name
    std::filesystem::last_write_time(pathOf(2), std::filesystem::file_time_type()); // another time
    ASSERT_TRUE(finishCleanup());
    EXPECT_THAT(m_desktop.calls, IsEmpty());
    for (int n = 0; n < 3; ++n)
        EXPECT_EQ(reasonOf(n), "it is not the file any more that it was") << n;
}

TEST_F(LibraryCleanupTest, MovesALinkWhoseFileWentBefore) {
    std::filesystem::remove(pathOf(1));
    std::filesystem::create_symlink(pathOf(0), pathOf(1));
    m_desktop.recordingTrash.moves = true;
    ASSERT_TRUE(beginCleanup());
    for (int n = 0; n < 2; ++n) {
        deleteTrack(n);
        deleteFile(n);
    }
    ASSERT_TRUE(finishCleanup());
    EXPECT_THAT(m_desktop.calls, ElementsAre("trash " + pathOf(0), "trash " + pathOf(1)));
}

TEST_F(LibraryCleanupTest, RecordsWhatIsPlannedAndDone) {
    ASSERT_TRUE(beginCleanup());
    RecordedCleanup before = record();
    EXPECT_TRUE(before.isPlanned);
    EXPECT_EQ(before.heading.library, m_path);
    EXPECT_EQ(before.heading.backup, backup());
    EXPECT_EQ(before.heading.tracks, 4U);
    ASSERT_EQ(before.tracks.size(), 4U);
    EXPECT_EQ(before.tracks[3].plan.persistentId, test::persistentIdOf(3));
    deleteTrack(2);
    deleteFile(2);
    EXPECT_EQ(record().writesBegun, 0U);
    ASSERT_TRUE(m_scripts->flush());
    const RecordedCleanup written = record();
    EXPECT_EQ(written.writesBegun, 1U);
    EXPECT_EQ(written.writesDone, 1U);
    EXPECT_TRUE(written.tracks[2].begun);
    EXPECT_FALSE(written.tracks[1].begun);
    EXPECT_EQ(written.tracks[2].trash, (TrashedFile{"/Trash/files", "2.mp3"}));
    EXPECT_FALSE(written.end);
    ASSERT_TRUE(finishCleanup());
    ASSERT_TRUE(endCleanup());
    EXPECT_EQ(record().end->how, RecordEnd::How::complete);
}

TEST_F(LibraryCleanupTest, RecordsTheTrackIdOfThisVersionOfTheLibraryOrNone) {
    const auto document = LibraryDocument::open(m_path);
    const std::int64_t id =
        document.value()->trackId(document.value()->tracksWithPersistentId(test::persistentIdOf(1)).front());
    CleanupPlan some = plan();
    some.tracks[1].trackId = id;
    some.tracks[2].trackId = id; // that of another track by now
    ASSERT_TRUE(
        m_scripts->withCleanup([&](LibraryCleanup& cleanup) { return cleanup.begin({"a test"}, some); }));
    EXPECT_EQ(record().tracks[1].plan.trackId, id);
    EXPECT_EQ(record().tracks[2].plan.trackId, -1);
}

TEST_F(LibraryCleanupTest, LeavesNothingBehindWhereItsRecordCannotBeMade) {
    const auto names = [this] {
        std::vector<std::string> all;
        for (const auto& entry :
             std::filesystem::directory_iterator(std::filesystem::path(m_path).parent_path()))
            all.push_back(entry.path().filename().string());
        std::sort(all.begin(), all.end());
        return all;
    };
    const auto before = names();
    CleanupPlan tooLong = plan();
    tooLong.tracks[0].name.assign(1 << 20, 'n');
    const FileSizeLimit limit(1 << 19);
    EXPECT_FALSE(
        m_scripts->withCleanup([&](LibraryCleanup& cleanup) { return cleanup.begin({"a test"}, tooLong); }));
    EXPECT_EQ(names(), before);
}

TEST_F(LibraryCleanupTest, LeavesNothingBehindWhereItDidNothing) {
    const auto before = m_folder.names();
    ASSERT_TRUE(beginCleanup());
    EXPECT_NE(backup(), "");
    ASSERT_TRUE(finishCleanup() && endCleanup(RecordEnd::How::cancelled));
    EXPECT_EQ(m_folder.names(), before);
    EXPECT_EQ(backup(), "");
}

TEST_F(LibraryCleanupTest, EndsAtOnceAsAfterAKill) {
    const auto before = m_folder.names();
    ASSERT_TRUE(beginCleanup());
    EXPECT_TRUE(m_scripts->runLast(test::unmuteText));
    EXPECT_EQ(m_folder.names(), before) << "nothing was deleted";
    EXPECT_TRUE(endCleanup()) << "the worker is still there";
    open(manyTracks(4));
    ASSERT_TRUE(beginCleanup());
    deleteTrack(2);
    deleteFile(2);
    EXPECT_TRUE(m_scripts->runLast(test::unmuteText));
    EXPECT_FALSE(record().end);
    EXPECT_EQ(record().writesDone, 1U);
    EXPECT_TRUE(record().tracks[2].trash);
}

TEST_F(LibraryCleanupTest, RecordsThatItsBackupIsOfALaterVersion) {
    ASSERT_TRUE(beginCleanup());
    const FileStamp old = record().heading.version;
    std::string rewritten = manyTracks(4);
    rewritten.insert(rewritten.find("<dict>"), "<!-- another program -->");
    replaceLibrary(rewritten);
    const FileStamp version = LibraryFile::stampOf(m_path).value();
    ASSERT_NE(version, old);
    deleteTrack(1);
    ASSERT_TRUE(finishCleanup() && endCleanup());
    EXPECT_EQ(contentOf(backup()), rewritten);
    EXPECT_EQ(record().heading.version, version);
    EXPECT_EQ(record().tracks[1].plan.trackId, -1) << "it may be another one there";
}

TEST_F(LibraryCleanupTest, IsLockedBeforeItBeginsUntilItIsGivenUp) {
    const auto with = [this](auto act) { return m_scripts->withCleanup(act); };
    ASSERT_TRUE(with([](LibraryCleanup& cleanup) { return cleanup.lock({"a test"}); }));
    ASSERT_TRUE(with([](LibraryCleanup& cleanup) { return cleanup.lock({"a test"}); })) << "it is ours";
    EXPECT_FALSE(CleanupLock::acquire(m_path, {"another"}));
    m_scripts->withCleanup([](LibraryCleanup& cleanup) { cleanup.unlock(); });
    EXPECT_TRUE(CleanupLock::acquire(m_path, {"another"}));
    ASSERT_TRUE(beginCleanup());
    m_scripts->withCleanup([](LibraryCleanup& cleanup) { cleanup.unlock(); });
    EXPECT_FALSE(CleanupLock::acquire(m_path, {"another"})) << "it has begun";
}

TEST_F(LibraryCleanupTest, IsLockedUntilItsEnd) {
    ASSERT_TRUE(beginCleanup());
    EXPECT_FALSE(CleanupLock::acquire(m_path, {"another"}));
    ASSERT_TRUE(finishCleanup());
    EXPECT_FALSE(CleanupLock::acquire(m_path, {"another"}));
    ASSERT_TRUE(endCleanup());
    EXPECT_TRUE(CleanupLock::acquire(m_path, {"another"}));
}

TEST_F(LibraryCleanupTest, EveryOneKeepsABackup) {
    ASSERT_TRUE(beginCleanup());
    deleteTrack(0);
    ASSERT_TRUE(finishCleanup() && endCleanup());
    const std::string first = backup();
    EXPECT_EQ(contentOf(first), manyTracks(4));
    ASSERT_TRUE(beginCleanup());
    deleteTrack(1);
    ASSERT_TRUE(finishCleanup() && endCleanup());
    EXPECT_NE(backup(), first);
    EXPECT_EQ(LibraryDocument::open(backup()).value()->trackCount(), 3);
}

} // namespace
} // namespace songsweep
