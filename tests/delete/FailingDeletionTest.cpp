// SPDX-License-Identifier: MIT
// A deletion with files in which one system call fails, or before one of which the program is killed: each of
// them in turn.
#include "FolderTrash.h"
#include "app/EmbeddedCleanup.h"
#include "delete/DeleteConfirmationFacts.h"
#include "delete/DeletePlan.h"
#include "delete/DeleteProc.h"
#include "hosts/EmbeddedScripting.h"
#include "library/WorkerEvent.h"
#include "libraryfile/LibraryFixture.h"
#include "libraryfile/RecordedCleanup.h"
#include "libraryfile/SystemCalls.h"
#include "operations/NotificationCenter.h"
#include "platform/FileUrl.h"
#include "platform/Files.h"
#include "support/RecordingLog.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <filesystem>
#include <memory>
#include <set>
#include <string>
#include <utility>
#include <vector>

namespace songsweep {
namespace {

namespace fs = std::filesystem;
using test::contentOf;
using test::SystemCalls;

constexpr int trackCount = 12;
constexpr int tracksAWrite = 3;

/// Twelve tracks with a file each; those of even number are to go, in two writes.
class Scene {
  public:
    Scene() {
        std::vector<test::FixtureTrack> tracks;
        std::vector<int> all;
        for (int id = 1; id <= trackCount; ++id) {
            tracks.push_back(
                {id, test::persistentIdOf(id),
                 "<key>Location</key><string>" + fileUrl(m_folder.write(nameOf(id), "sound")) + "</string>"});
            all.push_back(id);
        }
        m_text = test::libraryXml(tracks, {{"Library", "<key>Master</key><true/>", all}, {"Party", "", all}});
        m_folder.write("library.xml", m_text);
        fs::create_directory(m_folder.pathOf("Trash"));
    }

    static std::string nameOf(int id) { return std::to_string(id) + ".mp3"; }

    /// The report of a deletion of the marked tracks that are left. `begins` is called before it.
    template <class Begins>
    DeleteReport run(Begins begins) {
        test::FolderTrash trash(m_folder.pathOf("Trash"));
        trash.trashed = trashedCount();
        test::TrashOnlyDesktop desktop(trash);
        const Files files;
        Files scriptFiles;
        EmbeddedScripting::Options options;
        options.writes = {std::chrono::hours(1), std::chrono::hours(1)};
        EmbeddedScripting scripts(m_folder.pathOf("library.xml"), desktop, scriptFiles, options);
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

    void lock() const {
        const auto library = LibraryDocument::open(m_folder.pathOf("library.xml"));
        EXPECT_TRUE(library && library.value()->lockForCleanup({"a test", {}}));
    }

    /// What the disk has of each track is what the report says.
    void expectTruth(const DeleteReport& report) {
        std::set<int> gone;
        for (const DeleteOutcome& outcome : report.outcomes) {
            const int id = idOf(outcome);
            SCOPED_TRACE(outcomeLine(outcome));
            if (outcome.track == DeleteOutcome::Track::deleted) gone.insert(id);
            EXPECT_TRUE(gone.contains(id) || !(outcome.reason + report.notBegun + report.notWritten).empty());
            const bool isThere = fs::exists(m_folder.pathOf(nameOf(id)));
            EXPECT_EQ(isThere, outcome.file != DeleteOutcome::File::trashed);
            EXPECT_TRUE(isThere || outcome.track == DeleteOutcome::Track::deleted);
            if (!isThere) {
                EXPECT_EQ(contentOf(outcome.trash.value().path()), "sound");
            }
        }
        EXPECT_EQ(text(), test::withoutTracks(m_text, gone));
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
                EXPECT_EQ(text(), m_text);
            }
        }
    }

    /// Every file is in its place or in the Trash, and no track that is left has lost its own.
    void expectNothingLost() const {
        int there = 0;
        for (int id = 1; id <= trackCount; ++id) {
            const bool isThere = fs::exists(m_folder.pathOf(nameOf(id)));
            there += isThere ? 1 : 0;
            EXPECT_TRUE(isThere || !hasTrack(id)) << id;
            EXPECT_TRUE(isMarked(id) || (isThere && hasTrack(id))) << id;
        }
        EXPECT_EQ(there + trashedCount(), trackCount);
    }

    /// Nothing hidden is left; of what never began, nothing at all.
    void expectNoRubbish(const DeleteReport& report) const {
        for (const std::string& name : m_folder.names()) {
            EXPECT_FALSE(name.starts_with(".")) << name;
            if (!report.notBegun.empty()) {
                EXPECT_FALSE(name.starts_with("library (")) << name;
            }
        }
    }

    void expectAllIsGone() const {
        std::set<int> marked;
        for (int id = 1; id <= trackCount; ++id)
            if (isMarked(id)) marked.insert(id);
        EXPECT_EQ(text(), test::withoutTracks(m_text, marked));
    }

    std::string text() const { return contentOf(m_folder.pathOf("library.xml")); }

  private:
    static bool isMarked(int id) { return id % 2 == 0; }
    static int idOf(const DeleteOutcome& outcome) {
        return std::stoi(fs::path(outcome.location).stem().string());
    }
    bool hasTrack(int id) const {
        return text().find("<key>" + std::to_string(id) + "</key>") != std::string::npos;
    }
    int trashedCount() const {
        return static_cast<int>(std::distance(fs::directory_iterator(m_folder.pathOf("Trash")), {}));
    }

    DisplayedList rows() const {
        DisplayedList list = {{}, std::make_shared<TrackStorage>()};
        for (int id = 1; id <= trackCount; ++id) {
            if (!hasTrack(id)) continue;
            TrackRecord& record = list.storage->makeRecord();
            record.gid = (id + 1) / 2;
            record.pid = list.storage->store(test::persistentIdOf(id));
            record.trackid = list.storage->store(std::to_string(id));
            record.location = list.storage->store(m_folder.pathOf(nameOf(id)));
            record.checkbox = isMarked(id);
            list.rows.push_back(&record);
        }
        return list;
    }

    test::Folder m_folder;
    std::string m_text;
    test::RecordingLog m_log;
};

class FailingDeletion : public testing::TestWithParam<int> {};

TEST_P(FailingDeletion, LosesNothingAndTellsTheTruth) {
    int failures = 0;
    for (int call = 1;; ++call) {
        Scene scene;
        const DeleteReport report = scene.run([&] { SystemCalls::failAt(call, GetParam()); });
        SystemCalls::stop();
        const std::string failed = SystemCalls::failed();
        if (failed.empty()) break;
        ++failures;
        SCOPED_TRACE(failed + ", call " + std::to_string(call));
        ASSERT_NO_FATAL_FAILURE(scene.expectTruth(report));
        scene.expectRecordIsTrue();
        scene.expectNothingLost();
        scene.expectNoRubbish(report);
        const DeleteReport again = scene.run([] {}); // What failed once need not fail for ever.
        EXPECT_EQ(again.notBegun + again.notWritten, "");
        scene.expectAllIsGone();
    }
    EXPECT_GT(failures, 60); // The calls are seen, or the test would show nothing.
    RecordProperty("failures", failures);
}

INSTANTIATE_TEST_SUITE_P(Errors, FailingDeletion, testing::Values(EIO, ENOSPC, EACCES));

TEST(KilledDeletionAtEachCall, LosesNothingAndHasItsRecord) {
    int kills = 0;
    for (int call = 1;; ++call) {
        Scene scene;
        const pid_t child = ::fork();
        if (child == 0) {
            const DeleteReport report = scene.run([&] { SystemCalls::killAt(call); });
            ::_exit(report.allDealtWith() ? 0 : 1);
        }
        int status = 0;
        ASSERT_EQ(::waitpid(child, &status, 0), child);
        if (!WIFSIGNALED(status)) {
            EXPECT_EQ(WEXITSTATUS(status), 0);
            break;
        }
        ++kills;
        SCOPED_TRACE("call " + std::to_string(call));
        scene.expectRecordIsTrue();
        scene.expectNothingLost();
        EXPECT_EQ(scene.run([] {}).notBegun, "");
        scene.expectAllIsGone();
        scene.lock(); // as a command does that finds nothing left to delete
        scene.expectNoRubbish({});
    }
    EXPECT_GT(kills, 60);
    RecordProperty("kills", kills);
}

} // namespace
} // namespace songsweep
