// SPDX-License-Identifier: MIT
// A restore with files in which one system call fails, or before one of which the program is killed: each of
// them in turn.
#include "FaultScene.h"
#include "FolderTrash.h"
#include "restore/CleanupRestore.h"
#include "support/SampleCleanup.h"

#include <gmock/gmock.h>

#include <cerrno>

namespace songsweep {
namespace {

namespace fs = std::filesystem;
using test::contentOf;
using test::SystemCalls;
using testing::ElementsAre;
using testing::HasSubstr;

/// Eight tracks, of which four were deleted.
class RestoreScene : public test::FaultScene {
  public:
    RestoreScene()
        : FaultScene(8) {
        std::vector<std::string> ids;
        for (const int id : m_marked)
            ids.push_back(test::persistentIdOf(id));
        test::FolderTrash trash(trashPath());
        m_record = test::carryOut({libraryPath(), ids, trash});
        m_deleted = text();
    }

    /// `begins` is called before it.
    template <class Begins>
    Result<RestoreReport> run(Begins begins) {
        test::FolderTrash trash(trashPath());
        const CleanupRestore restore(libraryPath(), RecordedCleanup::read(m_record).value(), trash);
        begins();
        return restore.carryOut({.program = "a test", .purpose = "a test"});
    }
    static bool isDone(const Result<RestoreReport>& report) {
        return report && report.value().allDealtWith();
    }

    /// What the disk has of each track is what the report says.
    void expectTruth(const Result<RestoreReport>& report) const {
        const bool isWritten = text() == m_whole;
        EXPECT_TRUE(isWritten || text() == m_deleted);
        if (!report) {
            EXPECT_FALSE(isWritten);
            return expectNothingBegun();
        }
        const RestoreReport& told = report.value();
        EXPECT_EQ(told.end == RestoreReport::End::failed, !told.problem.empty());
        for (const RestoredTrack& track : told.tracks) {
            SCOPED_TRACE(track.plan.path + ": " + track.reason);
            EXPECT_EQ(track.entry == RestoredTrack::Entry::restored, isWritten);
            EXPECT_EQ(track.file == RestoredTrack::File::putBack, fs::exists(track.plan.path));
            EXPECT_TRUE(track.dealtWith() || !(track.reason + told.problem).empty());
        }
    }

    /// Every file is in its place or in the Trash, and none is in its place whose track is not.
    void expectNothingLost() const {
        const bool isWritten = text() == m_whole;
        EXPECT_TRUE(isWritten || text() == m_deleted);
        const auto sounds = trashed();
        for (int id = 1; id <= m_trackCount; ++id) {
            const bool isThere = fs::exists(pathOf(id)) && contentOf(pathOf(id)) == soundOf(id);
            EXPECT_NE(isThere, sounds.contains(soundOf(id))) << id;
            EXPECT_TRUE(isThere ? isWritten || !isMarked(id) : isMarked(id)) << id;
        }
    }

    void expectAllIsBack() const {
        EXPECT_EQ(text(), m_whole);
        for (int id = 1; id <= m_trackCount; ++id)
            EXPECT_EQ(contentOf(pathOf(id)), soundOf(id));
        EXPECT_TRUE(fs::is_empty(trashPath()));
    }

  private:
    void expectNothingBegun() const {
        for (const std::string& name : m_folder.names())
            EXPECT_FALSE(name.starts_with("library (before restoring")) << name;
    }

    std::string m_deleted;
    std::string m_record;
};

class FailingRestore : public testing::TestWithParam<int> {};

TEST_P(FailingRestore, LosesNothingAndTellsTheTruth) {
    const int failures = test::failEachCall<RestoreScene>(GetParam(), [](auto& scene, const auto& report) {
        scene.expectTruth(report);
        scene.expectNothingLost();
        scene.expectNoRubbish();
        EXPECT_TRUE(scene.run([] {})); // What failed once need not fail for ever.
        scene.expectAllIsBack();
    });
    EXPECT_GT(failures, 40); // The calls are seen, or the test would show nothing.
    RecordProperty("failures", failures);
}

INSTANTIATE_TEST_SUITE_P(Errors, FailingRestore, testing::Values(EIO, ENOSPC, EACCES));

TEST(RestoreWithoutAnExchange, IsDoneAndSaysWhatItCouldNotGuard) {
    RestoreScene scene;
    const auto report = scene.run([] { SystemCalls::failAll("renameat2", EINVAL); });
    SystemCalls::stop();
    scene.expectTruth(report);
    scene.expectAllIsBack();
    EXPECT_THAT(report.value().notes,
                ElementsAre(HasSubstr("library.xml cannot let two files change places")));
}

TEST(KilledRestoreAtEachCall, LosesNothingAndIsBroughtToItsEndByTheNext) {
    const int kills = test::killAtEachCall<RestoreScene>([](auto& scene) {
        scene.expectNothingLost();
        EXPECT_TRUE(scene.run([] {}));
        scene.expectAllIsBack();
        scene.expectNoRubbish();
    });
    EXPECT_GT(kills, 40);
    RecordProperty("kills", kills);
}

} // namespace
} // namespace songsweep
