// SPDX-License-Identifier: MIT
// A restore with files in which one system call fails, or before one of which the program is killed: each of
// them in turn.
#include "FolderTrash.h"
#include "libraryfile/LibraryFixture.h"
#include "libraryfile/SystemCalls.h"
#include "platform/FileUrl.h"
#include "restore/CleanupRestore.h"
#include "support/SampleCleanup.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>
#include <filesystem>
#include <set>
#include <string>
#include <vector>

namespace songsweep {
namespace {

namespace fs = std::filesystem;
using test::contentOf;
using test::SystemCalls;

constexpr int trackCount = 8;

/// Eight tracks with a file each, of which those of even number were deleted.
class Scene {
  public:
    Scene() {
        std::vector<test::FixtureTrack> tracks;
        std::vector<int> all;
        std::vector<std::string> marked;
        for (int id = 1; id <= trackCount; ++id) {
            tracks.push_back({id, test::persistentIdOf(id),
                              "<key>Location</key><string>" +
                                  fileUrl(m_folder.write(nameOf(id), soundOf(id))) + "</string>"});
            all.push_back(id);
            if (isMarked(id)) marked.push_back(test::persistentIdOf(id));
        }
        m_whole =
            test::libraryXml(tracks, {{"Library", "<key>Master</key><true/>", all}, {"Party", "", all}});
        m_folder.write("library.xml", m_whole);
        test::FolderTrash trash(m_folder.pathOf("Trash"));
        m_record = test::carryOut({m_folder.pathOf("library.xml"), marked, trash});
        m_deleted = text();
    }

    /// `begins` is called before it.
    template <class Begins>
    Result<RestoreReport> restore(Begins begins) {
        test::FolderTrash trash(m_folder.pathOf("Trash"));
        const CleanupRestore restore(m_folder.pathOf("library.xml"), RecordedCleanup::read(m_record).value(),
                                     trash);
        begins();
        return restore.carryOut({.program = "a test", .purpose = "a test"});
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
        std::multiset<std::string> sounds;
        for (const auto& file : fs::directory_iterator(m_folder.pathOf("Trash")))
            sounds.insert(contentOf(file.path()));
        for (int id = 1; id <= trackCount; ++id) {
            const std::string path = m_folder.pathOf(nameOf(id));
            const bool isThere = fs::exists(path) && contentOf(path) == soundOf(id);
            EXPECT_NE(isThere, sounds.contains(soundOf(id))) << id;
            EXPECT_TRUE(isThere ? isWritten || !isMarked(id) : isMarked(id)) << id;
        }
    }

    void expectNoRubbish() const {
        for (const std::string& name : m_folder.names())
            EXPECT_FALSE(name.starts_with(".")) << name;
    }

    void expectAllIsBack() const {
        EXPECT_EQ(text(), m_whole);
        for (int id = 1; id <= trackCount; ++id)
            EXPECT_EQ(contentOf(m_folder.pathOf(nameOf(id))), soundOf(id));
        EXPECT_TRUE(fs::is_empty(m_folder.pathOf("Trash")));
    }

  private:
    static std::string nameOf(int id) { return std::to_string(id) + ".mp3"; }
    static std::string soundOf(int id) { return "sound " + std::to_string(id); }
    static bool isMarked(int id) { return id % 2 == 0; }
    std::string text() const { return contentOf(m_folder.pathOf("library.xml")); }

    void expectNothingBegun() const {
        for (const std::string& name : m_folder.names())
            EXPECT_FALSE(name.starts_with("library (before restoring")) << name;
    }

    test::Folder m_folder;
    std::string m_whole;
    std::string m_deleted;
    std::string m_record;
};

class FailingRestore : public testing::TestWithParam<int> {};

TEST_P(FailingRestore, LosesNothingAndTellsTheTruth) {
    int failures = 0;
    for (int call = 1;; ++call) {
        Scene scene;
        const auto report = scene.restore([&] { SystemCalls::failAt(call, GetParam()); });
        SystemCalls::stop();
        const std::string failed = SystemCalls::failed();
        if (failed.empty()) break;
        ++failures;
        SCOPED_TRACE(failed + ", call " + std::to_string(call));
        scene.expectTruth(report);
        scene.expectNothingLost();
        scene.expectNoRubbish();
        EXPECT_TRUE(scene.restore([] {})); // What failed once need not fail for ever.
        scene.expectAllIsBack();
        if (HasFailure()) break;
    }
    EXPECT_GT(failures, 40); // The calls are seen, or the test would show nothing.
    RecordProperty("failures", failures);
}

INSTANTIATE_TEST_SUITE_P(Errors, FailingRestore, testing::Values(EIO, ENOSPC, EACCES));

TEST(KilledRestoreAtEachCall, LosesNothingAndIsBroughtToItsEndByTheNext) {
    int kills = 0;
    for (int call = 1;; ++call) {
        Scene scene;
        const pid_t child = ::fork();
        if (child == 0) {
            const auto report = scene.restore([&] { SystemCalls::killAt(call); });
            ::_exit(report && report.value().allDealtWith() ? 0 : 1);
        }
        int status = 0;
        ASSERT_EQ(::waitpid(child, &status, 0), child);
        if (!WIFSIGNALED(status)) {
            EXPECT_EQ(WEXITSTATUS(status), 0);
            break;
        }
        ++kills;
        SCOPED_TRACE("call " + std::to_string(call));
        scene.expectNothingLost();
        EXPECT_TRUE(scene.restore([] {}));
        scene.expectAllIsBack();
        scene.expectNoRubbish();
        if (testing::Test::HasFailure()) break;
    }
    EXPECT_GT(kills, 40);
    RecordProperty("kills", kills);
}

} // namespace
} // namespace songsweep
