// SPDX-License-Identifier: MIT
// From the confirmation to a library that has lost nothing else.
#include "libraryfile/LibraryFixture.h"
#include "window/DeletionFixture.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <csignal>

namespace songsweep::test {
namespace {

using ::testing::IsEmpty;
using ::testing::Not;

class DeletionInAWindow : public DeletionFixture {
  protected:
    void SetUp() override {
        ASSERT_NO_FATAL_FAILURE(DeletionFixture::SetUp());
        ASSERT_NO_FATAL_FAILURE(begin());
    }
};

TEST_F(DeletionInAWindow, TakesTheMarkedTracksAndTheirFilesAndNothingElse) {
    ASSERT_NO_FATAL_FAILURE(markByRule());
    const auto marked = shownMarks();
    auto files = musicFiles();
    ASSERT_NO_FATAL_FAILURE(askToDelete());
    ASSERT_TRUE(appears("Delete " + std::to_string(marked.size()) + " tracks from the library?"));

    m_input.press("alt+f");
    ASSERT_TRUE(comes("what goes to the Trash", [this] {
        const auto texts = m_screen.texts();
        return std::any_of(texts.begin(), texts.end(),
                           [](const std::string& text) { return text.ends_with("go to the Trash."); });
    }));
    keepNothing();
    m_input.press("alt+d");
    ASSERT_NO_FATAL_FAILURE(waitForOutcomes(marked.size()));
    const auto deleted = deletedTracks();
    EXPECT_EQ(asShown(deleted), marked);
    ASSERT_TRUE(comes("the written library", [this] { return library() != m_before; }));
    EXPECT_EQ(library(), libraryWithout(deleted));
    EXPECT_EQ(countBackups(), 1);

    const auto trashed = trashedFiles();
    EXPECT_THAT(trashed, Not(IsEmpty()));
    EXPECT_EQ(trashed, filesOfNobodyElse(deleted));
    for (const std::string& file : trashed)
        EXPECT_EQ(files.erase(file), 1U) << file;
    EXPECT_EQ(musicFiles(), files);
    EXPECT_EQ(m_player.callsOf(QStringLiteral("Stop")).size(), 1U);
    ASSERT_NO_FATAL_FAILURE(quit());
}

TEST_F(DeletionInAWindow, LeavesTheFilesUnlessTheirBoxIsTicked) {
    ASSERT_NO_FATAL_FAILURE(markByRule());
    const auto files = musicFiles();
    ASSERT_NO_FATAL_FAILURE(deleteMarked());
    ASSERT_NO_FATAL_FAILURE(quit());
    EXPECT_EQ(library(), libraryWithout(deletedTracks()));
    EXPECT_EQ(musicFiles(), files);
    EXPECT_THAT(trashedFiles(), IsEmpty());
}

TEST_F(DeletionInAWindow, IsNotBegunByReturn) {
    ASSERT_NO_FATAL_FAILURE(markByRule());
    const int marked = countMarked();
    ASSERT_NO_FATAL_FAILURE(askToDelete());
    m_input.press("Return");
    ASSERT_TRUE(becomesActive(mainWindow));
    EXPECT_EQ(countMarked(), marked);
    ASSERT_NO_FATAL_FAILURE(quit());
    EXPECT_EQ(library(), m_before);
}

TEST_F(DeletionInAWindow, IsWrittenByItsEndAndASearchFindsNothingMore) {
    ASSERT_NO_FATAL_FAILURE(markByRule());
    ASSERT_NO_FATAL_FAILURE(deleteMarked());
    EXPECT_EQ(library(), libraryWithout(deletedTracks()));
    ASSERT_NO_FATAL_FAILURE(searchAgain());
    ASSERT_TRUE(appears("No duplicates found."));
    m_input.press("Return");
    ASSERT_TRUE(comes("the end of the alert", [this] { return !m_screen.shows("No duplicates found."); }));
    ASSERT_NO_FATAL_FAILURE(quit());
}

/// Every song twice, thousands of them, so that there is time to do something while they are deleted.
std::string pairsOfTracks(int pairs) {
    std::vector<FixtureTrack> tracks;
    std::vector<int> ids;
    for (int n = 0; n < 2 * pairs; ++n) {
        const int id = 1000 + n;
        tracks.push_back({id, persistentIdOf(n),
                          "<key>Name</key><string>Song " + std::to_string(n / 2) +
                              "</string><key>Total Time</key><integer>180000</integer>"
                              "<key>Track Type</key><string>File</string>"});
        ids.push_back(id);
    }
    return libraryXml(tracks, {{"Library", "<key>Master</key><true/>", ids}});
}

class LongDeletionInAWindow : public DeletionFixture {
  protected:
    void SetUp() override {
        ASSERT_NO_FATAL_FAILURE(DeletionFixture::SetUp());
        m_folder.write("library.xml", pairsOfTracks(pairs));
        ASSERT_NO_FATAL_FAILURE(begin());
        ASSERT_NO_FATAL_FAILURE(markByRule());
        ASSERT_NO_FATAL_FAILURE(askToDelete());
        m_input.press("alt+d");
        ASSERT_TRUE(appears("Deleting..."));
        ASSERT_TRUE(becomesActive("Songsweep")); // the sheet, which is not named after the library
        ASSERT_TRUE(comes("the first track's end", [this] { return m_screen.valueOf("Progress") > 0; }));
    }
    /// What was deleted by the time the program ended was written, and nothing else is gone.
    void expectTheDeletedWritten() const {
        const auto deleted = deletedTracks();
        EXPECT_GT(deleted.size(), 0U);
        EXPECT_GT(countNotAttempted(), 0);
        EXPECT_EQ(static_cast<int>(deleted.size()) + countNotAttempted(), pairs);
        EXPECT_EQ(library(), libraryWithout(deleted));
        EXPECT_EQ(countBackups(), 1);
    }
    int countNotAttempted() const {
        int count = 0;
        for (const std::string& line : log())
            count += line.find(") not attempted") != std::string::npos ? 1 : 0;
        return count;
    }

    static constexpr int pairs = 15000;
};

TEST_F(LongDeletionInAWindow, EndsWithTheProgramAndWhatIsDeletedByThenIsWritten) {
    ASSERT_NO_FATAL_FAILURE(quit());
    expectTheDeletedWritten();
}

TEST_F(LongDeletionInAWindow, EndsWithARequestToTerminateAsWithQuit) {
    ASSERT_EQ(::kill(static_cast<pid_t>(m_program.processId()), SIGTERM), 0);
    ASSERT_NO_FATAL_FAILURE(waitForTheEnd());
    expectTheDeletedWritten();
}

TEST_F(LongDeletionInAWindow, StopsOnEscapeAndTheRestStays) {
    m_input.press("Escape");
    ASSERT_TRUE(comes("the last outcome", [this] {
        return static_cast<int>(deletedTracks().size()) + countNotAttempted() == pairs;
    }));
    const auto deleted = deletedTracks();
    EXPECT_GT(countNotAttempted(), 0);
    ASSERT_TRUE(appears(std::to_string(countNotAttempted()) + " of " +
                        std::to_string(2 * countNotAttempted()) + " marked"));
    ASSERT_NO_FATAL_FAILURE(quit());
    EXPECT_EQ(library(), libraryWithout(deleted));
}

} // namespace
} // namespace songsweep::test
