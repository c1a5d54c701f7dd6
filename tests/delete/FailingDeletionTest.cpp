// SPDX-License-Identifier: MIT
// A deletion with files in which one system call fails, or before one of which the program is killed: each of
// them in turn.
#include "FaultScene.h"
#include "FolderTrash.h"
#include "app/EmbeddedCleanup.h"
#include "delete/DeleteConfirmationFacts.h"
#include "delete/DeletePlan.h"
#include "delete/DeleteProc.h"
#include "hosts/EmbeddedScripting.h"
#include "library/WorkerEvent.h"
#include "libraryfile/RecordedCleanup.h"
#include "operations/NotificationCenter.h"
#include "platform/Files.h"
#include "support/RecordingLog.h"

#include <gmock/gmock.h>

#include <cerrno>
#include <memory>
#include <utility>

namespace songsweep {
namespace {

namespace fs = std::filesystem;
using test::contentOf;
using test::SystemCalls;
using testing::ElementsAre;
using testing::HasSubstr;

constexpr int tracksAWrite = 3;

/// Twelve tracks, of which six go in two writes.
class DeletionScene : public test::FaultScene {
  public:
    DeletionScene()
        : FaultScene(12) {}

    /// The report of a deletion of the marked tracks that are left. `begins` is called before it.
    template <class Begins>
    DeleteReport run(Begins begins) {
        test::FolderTrash trash(trashPath());
        trash.trashed = static_cast<int>(trashed().size());
        test::TrashOnlyDesktop desktop(trash);
        const Files files;
        Files scriptFiles;
        EmbeddedScripting::Options options;
        options.writes = {std::chrono::hours(1), std::chrono::hours(1)};
        EmbeddedScripting scripts(libraryPath(), desktop, scriptFiles, options);
        DisplayedList list = rows();
        DeleteConfirmationFacts facts;
        const SurveySources sources = {
            files, [&](const LocationVisitor& visit) { return scripts.forEachLocation(visit).hasValue(); }};
        auto plan = surveyFiles(SurveyedRows(list.rows), sources, facts, [] { return false; });
        EmbeddedCleanup cleanup(scripts, [] { return true; }, {{"a test", {}}, "Songsweep test"});
        NotificationCenter<WorkerEvent> center;
        DeleteReport report;
        int steps = 0;
        center.setObserver([&](const WorkerEvent& event) {
            if (event.name == EventName::deleteAddCount && ++steps % tracksAWrite == 0)
                static_cast<void>(scripts.flush());
            if (const auto* told = std::get_if<std::shared_ptr<DeleteReport>>(&event.payload))
                report = **told;
        });
        begins();
        DeleteProc(list, true, {center, scripts, scriptFiles, m_log, cleanup}, std::move(*plan)).main();
        return report;
    }
    static bool isDone(const DeleteReport& report) { return report.allDealtWith(); }

    void lock() const {
        const auto library = LibraryDocument::open(libraryPath());
        EXPECT_TRUE(library && library.value()->lockForCleanup({"a test", {}}));
    }

    /// What the disk has of each track is what the report says.
    void expectTruth(const DeleteReport& report) const {
        std::set<int> gone;
        for (const DeleteOutcome& outcome : report.outcomes) {
            const int id = std::stoi(fs::path(outcome.location).stem().string());
            SCOPED_TRACE(outcomeLine(outcome));
            if (outcome.track == DeleteOutcome::Track::deleted) gone.insert(id);
            EXPECT_TRUE(gone.contains(id) || !(outcome.reason + report.notBegun + report.notWritten).empty());
            const bool isThere = fs::exists(pathOf(id));
            EXPECT_EQ(isThere, outcome.file != DeleteOutcome::File::trashed);
            EXPECT_TRUE(isThere || outcome.track == DeleteOutcome::Track::deleted);
            if (!isThere) {
                EXPECT_EQ(contentOf(outcome.trash.value().path()), soundOf(id));
            }
        }
        EXPECT_EQ(text(), test::withoutTracks(m_whole, gone));
    }

    /// The record is ahead of the disk, and behind nothing that it calls done.
    void expectRecordIsTrue() const {
        for (const std::string& name : m_folder.names()) {
            if (!name.ends_with(".jsonl") || fs::file_size(m_folder.pathOf(name)) == 0) continue;
            const auto record = RecordedCleanup::read(m_folder.pathOf(name));
            ASSERT_TRUE(record) << record.error().message;
            for (const RecordedCleanup::Track& track : record.value().tracks) {
                SCOPED_TRACE(track.plan.path);
                const bool isThere = fs::exists(track.plan.path);
                EXPECT_TRUE(isThere || track.begun);
                if (track.trash) {
                    EXPECT_TRUE(!isThere && fs::exists(track.trash->path()));
                }
            }
            if (record.value().writesBegun == 0) {
                EXPECT_EQ(text(), m_whole);
            }
        }
    }

    /// Every file is in its place or in the Trash, and no track that is left has lost its own.
    void expectNothingLost() const {
        const auto sounds = trashed();
        for (int id = 1; id <= m_trackCount; ++id) {
            const bool isThere = fs::exists(pathOf(id));
            EXPECT_NE(isThere, sounds.contains(soundOf(id))) << id;
            EXPECT_TRUE(isThere || !hasTrack(id)) << id;
            EXPECT_TRUE(isMarked(id) || (isThere && hasTrack(id))) << id;
        }
    }

    /// Of what never began, nothing is left at all.
    void expectNoTraceUnlessBegun(const DeleteReport& report) const {
        for (const std::string& name : m_folder.names())
            EXPECT_TRUE(report.notBegun.empty() || !name.starts_with("library (")) << name;
    }

    void expectAllIsGone() const { EXPECT_EQ(text(), test::withoutTracks(m_whole, m_marked)); }

  private:
    DisplayedList rows() const {
        DisplayedList list = {{}, std::make_shared<TrackStorage>()};
        for (int id = 1; id <= m_trackCount; ++id) {
            if (!hasTrack(id)) continue;
            TrackRecord& record = list.storage->makeRecord();
            record.gid = (id + 1) / 2;
            record.pid = list.storage->store(test::persistentIdOf(id));
            record.trackid = list.storage->store(std::to_string(id));
            record.location = list.storage->store(pathOf(id));
            record.checkbox = isMarked(id);
            list.rows.push_back(&record);
        }
        return list;
    }

    test::RecordingLog m_log;
};

class FailingDeletion : public testing::TestWithParam<int> {};

TEST_P(FailingDeletion, LosesNothingAndTellsTheTruth) {
    const int failures = test::failEachCall<DeletionScene>(GetParam(), [](auto& scene, const auto& report) {
        scene.expectTruth(report);
        scene.expectRecordIsTrue();
        scene.expectNothingLost();
        scene.expectNoRubbish();
        scene.expectNoTraceUnlessBegun(report);
        const DeleteReport again = scene.run([] {}); // What failed once need not fail for ever.
        EXPECT_EQ(again.notBegun + again.notWritten, "");
        scene.expectAllIsGone();
    });
    EXPECT_GT(failures, 60); // The calls are seen, or the test would show nothing.
    RecordProperty("failures", failures);
}

INSTANTIATE_TEST_SUITE_P(Errors, FailingDeletion, testing::Values(EIO, ENOSPC, EACCES));

TEST(DeletionWithoutAnExchange, IsDoneAndSaysWhatItCouldNotGuard) {
    DeletionScene scene;
    const DeleteReport report = scene.run([] { SystemCalls::failAll("renameat2", EINVAL); });
    SystemCalls::stop();
    scene.expectTruth(report);
    scene.expectAllIsGone();
    EXPECT_THAT(report.notes, ElementsAre(HasSubstr("library.xml cannot let two files change places")));
}

TEST(KilledDeletionAtEachCall, LosesNothingAndHasItsRecord) {
    const int kills = test::killAtEachCall<DeletionScene>([](auto& scene) {
        scene.expectRecordIsTrue();
        scene.expectNothingLost();
        EXPECT_EQ(scene.run([] {}).notBegun, "");
        scene.expectAllIsGone();
        scene.lock(); // as a command does that finds nothing left to delete
        scene.expectNoRubbish();
    });
    EXPECT_GT(kills, 60);
    RecordProperty("kills", kills);
}

} // namespace
} // namespace songsweep
