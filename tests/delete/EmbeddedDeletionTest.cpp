// SPDX-License-Identifier: MIT
// The road from a library file to a smaller one, with the program's own iTunes and Finder.
#include "FolderTrash.h"
#include "app/EmbeddedCleanup.h"
#include "delete/DeleteFixture.h"
#include "delete/DeletePlan.h"
#include "delete/DeleteProc.h"
#include "delete/TrackFacts.h"
#include "dupes/BuildResultProc.h"
#include "dupes/MarkingRules.h"
#include "hosts/EmbeddedScripting.h"
#include "library/SWXMLParser.h"
#include "library/WorkerEvent.h"
#include "libraryfile/LibraryFixture.h"
#include "operations/NotificationCenter.h"
#include "platform/FileUrl.h"
#include "platform/Files.h"
#include "platform/Preferences.h"
#include "platform/Sleeper.h"
#include "support/RecordingLog.h"

#include <QUrl>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <set>

namespace songsweep {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

class OneLibrary final : public Preferences {
  public:
    explicit OneLibrary(const std::string& path)
        : m_domain{{QUrl::fromLocalFile(QString::fromStdString(path)).toEncoded().toStdString()}} {}
    std::optional<IAppsDomain> iAppsDomain() const override { return m_domain; }
    std::optional<IAppsDomain> iAppsPropertyList(const std::string&) const override { return m_domain; }
    std::string homeFolder() const override { return "/"; }

  private:
    IAppsDomain m_domain;
};

class NoSleep final : public Sleeper {
  public:
    void sleep(std::chrono::milliseconds) override {}
};

/// Pairs of copies, a song a name; of each pair the second has the higher bit rate.
class EmbeddedDeletionTest : public testing::Test {
  protected:
    void writeLibrary(const std::vector<std::string>& fileNames) {
        std::vector<test::FixtureTrack> tracks;
        std::vector<int> all;
        for (std::size_t n = 0; n < fileNames.size(); ++n) {
            const int id = 100 + static_cast<int>(n);
            tracks.push_back(
                {id, test::persistentIdOf(id), values(n, m_folder.write(fileNames[n], "sound"))});
            all.push_back(id);
        }
        m_text = test::libraryXml(tracks, {{"Library", "<key>Master</key><true/>", all}, {"Party", "", all}});
        m_folder.write("library.xml", m_text);
        m_scripts = std::make_unique<EmbeddedScripting>(m_folder.pathOf("library.xml"), m_desktop, m_files);
    }

    /// Replaces a text of the library, everywhere or at its last place alone.
    void replaceAll(const std::string& text, const std::string& by) {
        for (std::size_t at = m_text.find(text); at != std::string::npos; at = m_text.find(text, at))
            m_text.replace(at, text.size(), by);
        m_folder.write("library.xml", m_text);
    }
    void replaceLast(const std::string& text, const std::string& by) {
        m_text.replace(m_text.rfind(text), text.size(), by);
        m_folder.write("library.xml", m_text);
    }

    /// A search by name, as its two workers make it, on this thread.
    DisplayedList search(int trackCount) {
        const SearchParameters parameters = {.issamename = true, .playlist = "Library"};
        const auto list = std::make_shared<TrackList>();
        DisplayedList found = {{}, list->storage};
        m_center.setObserver([&](const WorkerEvent& event) {
            EXPECT_NE(event.name, EventName::xmlErrorParsing);
            if (event.name == EventName::step2) found.rows.push_back(std::get<TrackRecord*>(event.payload));
        });
        OneLibrary preferences(m_folder.pathOf("library.xml"));
        SWXMLParser(list, parameters, trackCount, 0, false, 5, 10,
                    {m_center, *m_scripts, m_files, preferences, m_sleeper, m_log})
            .main();
        BuildResultProc(list, parameters, m_center).main();
        return found;
    }

    DeleteReport deleteMarked(DisplayedList& list, bool leaveSharedFiles = true) {
        const LibraryLocations locations = [this](const LocationVisitor& visit) {
            return m_scripts->forEachLocation(visit).hasValue();
        };
        DeleteReport report;
        m_events.clear();
        m_center.setObserver([&, this](const WorkerEvent& event) {
            m_events.emplace_back(text(event.name));
            if (m_onEvent) m_onEvent(event.name);
            if (const auto* told = std::get_if<std::shared_ptr<DeleteReport>>(&event.payload))
                report = **told;
        });
        EmbeddedCleanup cleanup(*m_scripts, [] { return true; }, {{"a test", {}}, "Songsweep test"});
        const TracksOfId tracksOfId = [this](std::string_view pid) { return m_scripts->tracksOfId(pid); };
        DeletePlan plan = test::makeDeletePlan(list.rows, m_files, locations);
        if (!leaveSharedFiles) plan.giveUpSharedFiles();
        DeleteProc operation(list, true, {m_center, *m_scripts, m_files, m_log, cleanup, tracksOfId},
                             std::move(plan));
        m_operation = &operation;
        operation.main();
        m_operation = nullptr;
        return report;
    }

    std::string libraryText() const { return test::contentOf(m_folder.pathOf("library.xml")); }

    test::Folder m_folder;
    std::string m_text; ///< of the library as it was
    test::FolderTrash m_trash{m_folder.pathOf("Trash")};
    test::TrashOnlyDesktop m_desktop{m_trash};
    Files m_files;
    test::RecordingLog m_log;
    NoSleep m_sleeper;
    NotificationCenter<WorkerEvent> m_center;
    std::unique_ptr<EmbeddedScripting> m_scripts;
    std::vector<std::string> m_events; ///< of the deletion
    DeleteProc* m_operation = nullptr; ///< while it runs
    std::function<void(EventName)> m_onEvent;

  private:
    static std::string values(std::size_t n, const std::string& path) {
        return "<key>Name</key><string>Song " + std::to_string(n / 2) +
               "</string>\n\t\t\t<key>Track Type</key><string>File</string>\n\t\t\t<key>Bit "
               "Rate</key><integer>" +
               std::to_string(128 + 64 * (n % 2)) + "</integer>\n\t\t\t<key>Location</key><string>" +
               fileUrl(path) + "</string>";
    }
};

TEST_F(EmbeddedDeletionTest, TheLosingCopiesLeaveTheLibraryAndAllElseStays) {
    writeLibrary({"a.mp3", "a2.mp3", "b.mp3", "b2.mp3"});
    DisplayedList list = search(4);
    ASSERT_THAT(list.rows, SizeIs(4));
    markItems(list.rows, MarkType::highestBitrate, true);
    const DeleteReport report = deleteMarked(list);

    EXPECT_TRUE(report.allDealtWith());
    EXPECT_EQ(m_trash.trashed, 2);
    EXPECT_FALSE(m_desktop.muted);
    EXPECT_FALSE(m_files.exists(m_folder.pathOf("a.mp3")));
    EXPECT_TRUE(m_files.exists(m_folder.pathOf("a2.mp3")));
    EXPECT_EQ(libraryText(), test::withoutTracks(m_text, {100, 102}));
    EXPECT_EQ(test::contentOf(report.backup), m_text);
    EXPECT_THAT(search(2).rows, IsEmpty());
}

TEST_F(EmbeddedDeletionTest, AnEntryOfTheSameIdThatIsNotMarkedIsNotTakenAlong) {
    writeLibrary({"a.mp3", "a2.mp3", "b.mp3", "b2.mp3"});
    replaceAll(test::persistentIdOf(101), test::persistentIdOf(100));
    DisplayedList list = search(4);
    markItems(list.rows, MarkType::highestBitrate, true);
    EXPECT_EQ(groupsLosingEveryCopy(list.rows), 0);
    const DeleteReport report = deleteMarked(list);
    ASSERT_THAT(report.outcomes, SizeIs(2));
    EXPECT_EQ(outcomeText(report.outcomes[0]),
              "failed, file kept: “Song 0”, which is not marked, has its persistent ID, too");
    EXPECT_TRUE(report.outcomes[1].dealtWith);
    EXPECT_TRUE(m_files.exists(m_folder.pathOf("a.mp3")));
    EXPECT_EQ(libraryText(), test::withoutTracks(m_text, {102}));
}

TEST_F(EmbeddedDeletionTest, AnEntryOfTheSameIdThatWasNotFoundIsNotTakenAlong) {
    writeLibrary({"a.mp3", "a2.mp3", "b.mp3"});
    replaceAll(test::persistentIdOf(102), test::persistentIdOf(100));
    DisplayedList list = search(3);
    ASSERT_THAT(list.rows, SizeIs(2));
    markItems(list.rows, MarkType::highestBitrate, true);
    const DeleteReport report = deleteMarked(list);
    ASSERT_THAT(report.outcomes, SizeIs(1));
    EXPECT_EQ(outcomeText(report.outcomes[0]),
              "failed, file kept: 2 tracks of the library have its persistent ID (“Song 0”, “Song 1”), of "
              "which 1 is marked");
    EXPECT_TRUE(m_files.exists(m_folder.pathOf("a.mp3")));
    EXPECT_EQ(libraryText(), m_text);
}

TEST_F(EmbeddedDeletionTest, AFileOfTwoTracksIsToldOfBothAndNamesTheOther) {
    writeLibrary({"a.mp3", "a2.mp3", "a.mp3", "b2.mp3"});
    DisplayedList list = search(4);
    markItems(list.rows, MarkType::highestBitrate, true);
    const DeleteReport report = deleteMarked(list);
    ASSERT_THAT(report.outcomes, SizeIs(2));
    EXPECT_EQ(outcomeText(report.outcomes[0]), "deleted, file trashed");
    EXPECT_EQ(outcomeText(report.outcomes[1]), "deleted, file trashed: it is the file of “Song 0”, too");
    EXPECT_EQ(report.outcomes[1].trash, report.outcomes[0].trash);
    EXPECT_TRUE(report.allDealtWith());
    EXPECT_EQ(m_trash.trashed, 1);
}

TEST_F(EmbeddedDeletionTest, AFileStaysWithATrackThatIsKeptForItsId) {
    writeLibrary({"a.mp3", "a2.mp3", "a.mp3", "b2.mp3", "c.mp3"});
    replaceAll(test::persistentIdOf(104), test::persistentIdOf(102));
    for (const bool leaveSharedFiles : {true, false}) {
        m_folder.write("library.xml", m_text);
        DisplayedList list = search(5);
        ASSERT_THAT(list.rows, SizeIs(4));
        markItems(list.rows, MarkType::highestBitrate, true);
        const DeleteReport report = deleteMarked(list, leaveSharedFiles);
        ASSERT_THAT(report.outcomes, SizeIs(2));
        EXPECT_EQ(outcomeText(report.outcomes[0]), "deleted, file kept: “Song 1”, which stays, uses it too");
        EXPECT_THAT(outcomeText(report.outcomes[1]), testing::StartsWith("failed, file kept: 2 tracks of"));
        EXPECT_TRUE(m_files.exists(m_folder.pathOf("a.mp3")));
        EXPECT_EQ(m_trash.trashed, 0);
    }
}

TEST_F(EmbeddedDeletionTest, AFileStaysWithATrackWhoseTurnDidNotCome) {
    writeLibrary({"a.mp3", "a2.mp3", "a.mp3", "b2.mp3"});
    DisplayedList list = search(4);
    markItems(list.rows, MarkType::highestBitrate, true);
    m_onEvent = [&](EventName name) {
        if (name != EventName::deleteAddCount) return;
        EXPECT_TRUE(m_scripts->flush());
        m_operation->cancel();
    };
    const DeleteReport report = deleteMarked(list);
    ASSERT_THAT(report.outcomes, SizeIs(2));
    EXPECT_EQ(outcomeText(report.outcomes[0]),
              "deleted, file kept: another track that uses it is still in the library");
    EXPECT_EQ(outcomeText(report.outcomes[1]), "not attempted");
    EXPECT_TRUE(m_files.exists(m_folder.pathOf("a.mp3")));
    EXPECT_EQ(libraryText(), test::withoutTracks(m_text, {100}));
}

TEST_F(EmbeddedDeletionTest, ALinkGoesWithItsTargetAlsoInALongRun) {
    std::filesystem::create_symlink("a.mp3", m_folder.pathOf("link.mp3"));
    writeLibrary({"a.mp3", "a2.mp3", "b.mp3", "b2.mp3"});
    std::filesystem::remove(m_folder.pathOf("b.mp3"));
    replaceAll("/b.mp3", "/link.mp3");
    DisplayedList list = search(4);
    markItems(list.rows, MarkType::highestBitrate, true);
    int tracks = 0;
    m_onEvent = [&](EventName name) {
        if (name == EventName::deleteAddCount && ++tracks == 1) {
            EXPECT_TRUE(m_scripts->flush()); // as in a long run
        }
    };
    const DeleteReport report = deleteMarked(list);
    ASSERT_THAT(report.outcomes, SizeIs(2));
    EXPECT_FALSE(m_files.exists(m_folder.pathOf("a.mp3")));
    EXPECT_FALSE(std::filesystem::is_symlink(m_folder.pathOf("link.mp3")));
    EXPECT_EQ(outcomeText(report.outcomes[1]), "deleted, file trashed");
    EXPECT_EQ(m_trash.trashed, 2);
}

TEST_F(EmbeddedDeletionTest, WhiteSpaceAroundALocationHidesNoSharedFile) {
    writeLibrary({"a.mp3", "a2.mp3", "a.mp3"});
    replaceLast("<string>file://", "<string>\n\tfile://");
    DisplayedList list = search(3);
    markItems(list.rows, MarkType::highestBitrate, true);
    deleteMarked(list);
    EXPECT_TRUE(m_files.exists(m_folder.pathOf("a.mp3")));
    EXPECT_EQ(m_trash.trashed, 0);
}

TEST_F(EmbeddedDeletionTest, AwkwardNamesGoToTheTrash) {
    const std::string longName(255, 'n');
    writeLibrary({"colon : slash.mp3", "kept", "line\nbreak.mp3", "kept2", "été – 歌.mp3", "kept3", longName,
                  "kept4", "say \"hi\".mp3", "kept5", "back\\nslash.mp3", "kept6", "no text \xff.mp3",
                  "kept7"});
    DisplayedList list = search(14);
    ASSERT_THAT(list.rows, SizeIs(14));
    markItems(list.rows, MarkType::highestBitrate, true);
    const DeleteReport report = deleteMarked(list);

    ASSERT_THAT(report.outcomes, SizeIs(7));
    for (const DeleteOutcome& outcome : report.outcomes)
        EXPECT_EQ(m_files.exists(outcome.location), outcome.file == DeleteOutcome::File::kept)
            << outcomeLine(outcome);
    EXPECT_EQ(m_trash.trashed, 7);
    EXPECT_FALSE(m_files.exists(m_folder.pathOf("say \"hi\".mp3")));
    EXPECT_FALSE(m_files.exists(m_folder.pathOf("back\\nslash.mp3")));
    EXPECT_EQ(libraryText(), test::withoutTracks(m_text, {100, 102, 104, 106, 108, 110, 112}));
}

TEST_F(EmbeddedDeletionTest, ATrashThatRefusesLeavesTheFileAndSaysWhy) {
    writeLibrary({"a.mp3", "a2.mp3"});
    m_trash.refuses = true;
    DisplayedList list = search(2);
    markItems(list.rows, MarkType::highestBitrate, true);
    const DeleteReport report = deleteMarked(list);
    ASSERT_THAT(report.outcomes, SizeIs(1));
    EXPECT_THAT(outcomeText(report.outcomes[0]), testing::HasSubstr("deleted, file kept: "));
    EXPECT_THAT(outcomeText(report.outcomes[0]), testing::HasSubstr("the Trash is full"));
    EXPECT_TRUE(m_files.exists(m_folder.pathOf("a.mp3")));
    EXPECT_FALSE(m_desktop.muted);
}

TEST_F(EmbeddedDeletionTest, AFileGoesOnlyWhenTheLibraryOnTheDiskDoesNotNameItsTrack) {
    writeLibrary({"a.mp3", "a2.mp3", "b.mp3", "b2.mp3"});
    int moves = 0;
    m_trash.beforeMove = [&] {
        ++moves;
        EXPECT_EQ(libraryText(), test::withoutTracks(m_text, {100, 102}));
    };
    DisplayedList list = search(4);
    markItems(list.rows, MarkType::highestBitrate, true);
    EXPECT_TRUE(deleteMarked(list).allDealtWith());
    EXPECT_EQ(moves, 2);
    EXPECT_THAT(m_events, ElementsAre("deleteAddCount", "deleteAddCount", "deleteValidity", "deleteFinish"));
}

TEST_F(EmbeddedDeletionTest, AFailedWriteEndsTheDeletionWithNothingDone) {
    writeLibrary({"a.mp3", "a2.mp3", "b.mp3", "b2.mp3", "c.mp3", "c2.mp3"});
    DisplayedList list = search(6);
    markItems(list.rows, MarkType::highestBitrate, true);
    int tracks = 0;
    m_onEvent = [&](EventName name) {
        if (name != EventName::deleteAddCount || ++tracks != 2) return;
        replaceLast("</plist>", ""); // by another program
        EXPECT_FALSE(m_scripts->flush());
        replaceLast("</dict>\n", "</dict>\n</plist>\n");
    };
    const DeleteReport report = deleteMarked(list);

    EXPECT_NE(report.notWritten, "");
    ASSERT_THAT(report.outcomes, SizeIs(3));
    EXPECT_EQ(outcomeText(report.outcomes[0]), "failed, file kept: the library was not written");
    EXPECT_EQ(outcomeText(report.outcomes[1]), "failed, file kept: the library was not written");
    EXPECT_EQ(outcomeText(report.outcomes[2]), "not attempted");
    EXPECT_THAT(m_events, ElementsAre("deleteAddCount", "deleteAddCount", "deleteCancel"));
    EXPECT_FALSE(m_desktop.muted);
    EXPECT_EQ(m_trash.trashed, 0);
    m_scripts.reset(); // nobody writes it later
    EXPECT_EQ(libraryText(), m_text);
}

TEST_F(EmbeddedDeletionTest, AFailedLastWriteKeepsItsFilesAndTellsWhatWasWrittenBefore) {
    writeLibrary({"a.mp3", "a2.mp3", "b.mp3", "b2.mp3"});
    DisplayedList list = search(4);
    markItems(list.rows, MarkType::highestBitrate, true);
    int tracks = 0;
    m_onEvent = [&](EventName name) {
        if (name != EventName::deleteAddCount) return;
        if (++tracks == 1) {
            EXPECT_TRUE(m_scripts->flush());
        } else {
            std::filesystem::rename(m_folder.pathOf("library.xml"), m_folder.pathOf("away.xml"));
        }
    };
    const DeleteReport report = deleteMarked(list);

    ASSERT_THAT(report.outcomes, SizeIs(2));
    EXPECT_EQ(outcomeText(report.outcomes[0]), "deleted, file trashed");
    EXPECT_EQ(outcomeText(report.outcomes[1]), "failed, file kept: the library was not written");
    EXPECT_THAT(m_events, ElementsAre("deleteAddCount", "deleteAddCount", "deleteCancel"));
    EXPECT_FALSE(m_files.exists(m_folder.pathOf("a.mp3")));
    EXPECT_TRUE(m_files.exists(m_folder.pathOf("b.mp3")));
    EXPECT_EQ(test::contentOf(m_folder.pathOf("away.xml")), test::withoutTracks(m_text, {100}));
}

TEST_F(EmbeddedDeletionTest, ADeletionThatCannotBeginTouchesNothing) {
    writeLibrary({"a.mp3", "a2.mp3"});
    DisplayedList list = search(2);
    markItems(list.rows, MarkType::highestBitrate, true);
    const auto other = CleanupLock::acquire(m_folder.pathOf("library.xml"), {"delete", {}});
    ASSERT_TRUE(other);
    EmbeddedScripting::Options options;
    options.library.lockTimeout = {};
    m_scripts =
        std::make_unique<EmbeddedScripting>(m_folder.pathOf("library.xml"), m_desktop, m_files, options);
    const DeleteReport report = deleteMarked(list);
    EXPECT_THAT(report.notBegun, testing::HasSubstr("another Songsweep"));
    ASSERT_THAT(report.outcomes, SizeIs(1));
    EXPECT_EQ(outcomeText(report.outcomes[0]), "not attempted");
    EXPECT_THAT(m_events, ElementsAre("deleteCancel"));
    EXPECT_THAT(list.rows, SizeIs(2));
    EXPECT_EQ(m_trash.trashed, 0);
    EXPECT_EQ(libraryText(), m_text);
}

TEST_F(EmbeddedDeletionTest, TheLibraryIsLockedUntilTheLastFileHasGone) {
    writeLibrary({"a.mp3", "a2.mp3"});
    DisplayedList list = search(2);
    markItems(list.rows, MarkType::highestBitrate, true);
    const auto isLocked = [this] {
        return !CleanupLock::acquire(m_folder.pathOf("library.xml"), {"delete", {}});
    };
    bool wasLocked = false;
    m_trash.beforeMove = [&] { wasLocked = isLocked(); };
    EXPECT_TRUE(deleteMarked(list).allDealtWith());
    EXPECT_TRUE(wasLocked);
    EXPECT_FALSE(isLocked());
}

TEST_F(EmbeddedDeletionTest, AFileThatWasWrittenMeanwhileStays) {
    writeLibrary({"a.mp3", "a2.mp3"});
    DisplayedList list = search(2);
    markItems(list.rows, MarkType::highestBitrate, true);
    m_onEvent = [&](EventName name) {
        if (name == EventName::deleteAddCount) m_folder.write("a.mp3", "another sound");
    };
    const DeleteReport report = deleteMarked(list);
    ASSERT_THAT(report.outcomes, SizeIs(1));
    EXPECT_EQ(outcomeText(report.outcomes[0]), "deleted, file kept: it is not the file any more that it was");
    EXPECT_EQ(test::contentOf(m_folder.pathOf("a.mp3")), "another sound");
}

} // namespace
} // namespace songsweep
