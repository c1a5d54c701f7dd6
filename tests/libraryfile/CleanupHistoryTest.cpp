// SPDX-License-Identifier: MIT
#include "libraryfile/CleanupHistory.h"

#include "libraryfile/CleanupRecord.h"
#include "libraryfile/LibraryFixture.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace songsweep {
namespace {

using test::Folder;

class CleanupHistoryTest : public testing::Test {
  protected:
    /// Records a clean-up of one track; the name of the record.
    std::string record(const std::string& moment, bool ends, const std::string& restores = {}) {
        RecordHeading heading;
        heading.kind = restores.empty() ? RecordHeading::Kind::cleanup : RecordHeading::Kind::restore;
        heading.library = m_path;
        heading.restores = restores;
        heading.backup = m_folder.write("library (" + moment + ").xml", "x");
        heading.tracks = 1;
        CleanupRecord record = std::move(CleanupRecord::create(heading)).value();
        record.plan({"A1", 7, "One", "", "", "", {}});
        EXPECT_TRUE(record.planned());
        record.outcome(0, {RecordedOutcome::Track::deleted, {}, ""});
        if (ends) {
            EXPECT_TRUE(record.end(RecordEnd::How::complete, ""));
        }
        return "library (" + moment + ")";
    }

    std::vector<CleanupSummary> history() const {
        auto read = cleanupsOf(m_path);
        EXPECT_TRUE(read) << read.error().message;
        return std::move(read).value();
    }

    /// Makes a record an older one.
    void setDate(const std::string& name, const std::string& date) const {
        std::string text = test::contentOf(m_folder.pathOf(name + ".jsonl"));
        const std::size_t at = text.find("\"date\":\"") + 8;
        m_folder.write(name + ".jsonl", text.replace(at, 20, date));
    }

    Folder m_folder;
    std::string m_path = m_folder.write("library.xml", "x");
};

TEST_F(CleanupHistoryTest, IsEmptyAtFirst) { EXPECT_TRUE(history().empty()); }

TEST_F(CleanupHistoryTest, ShowsTheNewestFirstAndWhichWereKilled) {
    setDate(record("one", true), "2026-01-01T00:00:00Z");
    setDate(record("two", false), "2026-01-02T00:00:00Z");
    const auto cleanups = history();
    ASSERT_EQ(cleanups.size(), 2U);
    EXPECT_EQ(cleanups[0].name(), "library (two)");
    EXPECT_FALSE(cleanups[0].end);
    EXPECT_EQ(cleanups[1].name(), "library (one)");
    ASSERT_TRUE(cleanups[1].end);
    EXPECT_EQ(cleanups[1].end->tracks, 1U);
    EXPECT_TRUE(cleanups[1].hasBackup);
    EXPECT_FALSE(cleanups[1].isRestored);
}

TEST_F(CleanupHistoryTest, SaysWhatARestoreHasBroughtBack) {
    const std::string name = record("one", true);
    record("two", false, name);
    EXPECT_FALSE(history()[1].isRestored && history()[0].isRestored);
    record("three", true, name);
    for (const CleanupSummary& cleanup : history())
        EXPECT_EQ(cleanup.isRestored, cleanup.name() == name) << cleanup.name();
}

TEST_F(CleanupHistoryTest, SaysThatABackupIsGone) {
    record("one", true);
    std::filesystem::remove(m_folder.pathOf("library (one).xml"));
    EXPECT_FALSE(history()[0].hasBackup);
}

TEST_F(CleanupHistoryTest, LeavesOutWhatIsNoRecordOrAnotherLibrarys) {
    m_folder.write("other.jsonl", "{\"step\":\"plan\"}\n");
    m_folder.write("empty.jsonl", "");
    m_folder.write("folder", "");
    RecordHeading heading;
    heading.library = m_folder.pathOf("another.xml");
    heading.backup = m_folder.write("another (one).xml", "x");
    ASSERT_TRUE(CleanupRecord::create(heading));
    EXPECT_TRUE(history().empty());
}

TEST_F(CleanupHistoryTest, OfALibraryThatMovedIsStillKnown) {
    record("one", true);
    const Folder other;
    for (const std::string& name : m_folder.names())
        std::filesystem::copy_file(m_folder.pathOf(name), other.pathOf(name));
    const auto moved = cleanupsOf(other.pathOf("library.xml"));
    ASSERT_TRUE(moved);
    ASSERT_EQ(moved.value().size(), 1U);
    EXPECT_EQ(moved.value()[0].heading.backup,
              std::filesystem::canonical(other.pathOf("library (one).xml")).string());
}

} // namespace
} // namespace songsweep
