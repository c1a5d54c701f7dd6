// SPDX-License-Identifier: MIT
#include "libraryfile/CleanupRecord.h"

#include "libraryfile/JsonLine.h"
#include "libraryfile/LibraryFixture.h"
#include "platform/Utf8.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <nlohmann/json.hpp>
#include <sys/stat.h>

#include <sstream>

namespace songsweep {
namespace {

using test::contentOf;
using test::Folder;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::StartsWith;

using Track = RecordedOutcome::Track;
using File = RecordedOutcome::File;

class CleanupRecordTest : public testing::Test {
  protected:
    RecordHeading heading() const {
        RecordHeading heading;
        heading.program = "songsweep 1.0";
        heading.library = m_folder.pathOf("library.xml");
        heading.backup = m_backup;
        heading.version = {1, 2, 3, 4};
        heading.tracks = m_planned.size();
        heading.withFiles = true;
        return heading;
    }

    CleanupRecord create() {
        auto created = CleanupRecord::create(heading());
        EXPECT_TRUE(created) << created.error().message;
        return std::move(created).value();
    }

    /// A whole clean-up: one file in the Trash, one that stays, one track that nobody got to.
    CleanupRecord writeWhole() {
        CleanupRecord record = create();
        for (const RecordedTrack& track : m_planned)
            record.plan(track);
        EXPECT_TRUE(record.planned());
        EXPECT_TRUE(record.writing(2));
        record.written();
        EXPECT_TRUE(record.trashing(std::vector<std::size_t>{0}));
        record.trashed(0, m_place);
        record.outcome(0, {Track::deleted, File::trashed, ""});
        record.outcome(1, {Track::deleted, File::kept, "the Trash refuses it"});
        record.outcome(2, {Track::notAttempted, File::notAsked, ""});
        EXPECT_TRUE(record.end(RecordEnd::How::cancelled, "enough"));
        return record;
    }

    Folder m_folder;
    std::string m_backup = m_folder.write("library (before deletions of 2026-01-31 12.00.00).xml", "x");
    std::vector<RecordedTrack> m_planned = {
        {"A1", 7, "One \"two\"\n\xC3\xA4", "Some\\body", "/music/\xFF a%20b.mp3", "", {5, 6, 700, 8}},
        {"A2", 9, "Two", "", "", "a track that stays uses it", {}},
        {"A3", -1, "", "", "", "", {}}};
    TrashedFile m_place{"/home/\xFE/Trash/files", "one.2.mp3"};
};

TEST_F(CleanupRecordTest, TellsAWholeCleanUp) {
    const std::string path = writeWhole().path();
    EXPECT_EQ(path, m_folder.pathOf("library (before deletions of 2026-01-31 12.00.00).jsonl"));
    const auto read = RecordedCleanup::read(path);
    ASSERT_TRUE(read) << read.error().message;
    const RecordedCleanup& cleanup = read.value();
    RecordHeading expected = heading();
    expected.date = cleanup.heading.date;
    EXPECT_EQ(cleanup.heading, expected);
    EXPECT_THAT(cleanup.heading.date, testing::MatchesRegex("[0-9]{4}-[0-9]{2}-[0-9]{2}T[0-9:]{8}Z"));
    ASSERT_EQ(cleanup.tracks.size(), 3U);
    for (std::size_t i = 0; i < 3; ++i)
        EXPECT_EQ(cleanup.tracks[i].plan, m_planned[i]);
    EXPECT_TRUE(cleanup.isPlanned);
    EXPECT_EQ(cleanup.writesBegun, 1U);
    EXPECT_EQ(cleanup.writesDone, 1U);
    EXPECT_TRUE(cleanup.tracks[0].begun);
    EXPECT_FALSE(cleanup.tracks[1].begun);
    EXPECT_EQ(cleanup.tracks[0].trash, m_place);
    EXPECT_FALSE(cleanup.tracks[1].trash);
    EXPECT_EQ(cleanup.tracks[1].outcome,
              (RecordedOutcome{Track::deleted, File::kept, "the Trash refuses it"}));
    EXPECT_EQ(cleanup.end, (RecordEnd{RecordEnd::How::cancelled, "enough", 2, 1, 700}));
}

TEST_F(CleanupRecordTest, IsLinesOfJson) {
    std::istringstream lines(contentOf(writeWhole().path()));
    std::vector<std::string> steps;
    for (std::string line; std::getline(lines, line);)
        steps.push_back(nlohmann::json::parse(line).at("step"));
    EXPECT_THAT(steps, ElementsAre("begin", "plan", "plan", "plan", "planned", "writing", "written",
                                   "trashing", "trashed", "outcome", "outcome", "outcome", "end"));
}

TEST_F(CleanupRecordTest, OfAKilledProgramTellsHowFarItCame) {
    const std::string path = writeWhole().path();
    const std::string whole = contentOf(path);
    const std::size_t first = whole.find('\n') + 1;
    std::size_t known = 0;
    for (std::size_t length = first; length < whole.size(); ++length) {
        m_folder.write("library (before deletions of 2026-01-31 12.00.00).jsonl", whole.substr(0, length));
        const auto read = RecordedCleanup::read(path);
        ASSERT_TRUE(read) << length << ": " << read.error().message;
        EXPECT_FALSE(read.value().end);
        EXPECT_GE(read.value().tracks.size(), known);
        known = read.value().tracks.size();
    }
    EXPECT_EQ(known, 3U);
}

TEST_F(CleanupRecordTest, IsWrittenBeforeItsEnd) {
    CleanupRecord record = create();
    for (const RecordedTrack& track : m_planned)
        record.plan(track);
    ASSERT_TRUE(record.planned());
    EXPECT_TRUE(RecordedCleanup::read(record.path()).value().isPlanned);
    ASSERT_TRUE(record.writing(1));
    EXPECT_EQ(RecordedCleanup::read(record.path()).value().writesBegun, 1U);
    ASSERT_TRUE(record.trashing(std::vector<std::size_t>{0}));
    EXPECT_TRUE(RecordedCleanup::read(record.path()).value().tracks[0].begun);
    record.trashed(0, m_place);
    EXPECT_EQ(RecordedCleanup::read(record.path()).value().tracks[0].trash, m_place);
}

TEST_F(CleanupRecordTest, NeverTakesThePlaceOfAnother) {
    const std::string path = writeWhole().path();
    const std::string whole = contentOf(path);
    EXPECT_FALSE(CleanupRecord::create(heading()));
    EXPECT_EQ(contentOf(path), whole);
}

TEST_F(CleanupRecordTest, IsReadByThoseWhoReadTheBackup) {
    ASSERT_EQ(::chmod(m_backup.c_str(), 0640), 0);
    const CleanupRecord record = create();
    struct stat status {};
    ASSERT_EQ(::stat(record.path().c_str(), &status), 0);
    EXPECT_EQ(status.st_mode & 07777, 0640U);
}

TEST_F(CleanupRecordTest, WhatIsNoRecordIsRefusedWithItsLine) {
    const std::string path = writeWhole().path();
    const std::string whole = contentOf(path);
    const auto errorOf = [&](const std::string& text) {
        const auto read = RecordedCleanup::read(m_folder.write("other.jsonl", text));
        return read ? std::string("(none)") : read.error().message;
    };
    EXPECT_THAT(errorOf(""), StartsWith("line 1 of "));
    EXPECT_THAT(errorOf("{\"step\":\"plan\"}\n"), StartsWith("line 1 of "));
    EXPECT_THAT(errorOf(whole + "nothing\n{}\n"), StartsWith("line 14 of "));
    EXPECT_THAT(errorOf(whole + "{\"step\":\"trashed\",\"track\":3}\n{}\n"), StartsWith("line 14 of "));
    EXPECT_THAT(errorOf(whole + "{\"step\":\"outcome\",\"track\":0,\"outcome\":\"x\"}\n{}\n"),
                StartsWith("line 14 of "));
    EXPECT_EQ(errorOf(whole + "{\"step\":\"of a later version\"}\n"), "(none)");
    EXPECT_EQ(RecordedCleanup::read(m_folder.pathOf("missing.jsonl")).error().code, Error::Code::notFound);
}

TEST(JsonLine, KeepsEveryTextAsItIs) {
    for (const std::string text :
         {"", "\"\\/\b\f\n\r\t\x01\x1F\x7F", "\xC3\xA4\xE2\x82\xAC\xF0\x9F\x8E\xB5"}) {
        JsonLine line;
        EXPECT_EQ(nlohmann::json::parse(line.text("a", text).number("b", -5).finished()).at("a"), text);
    }
}

TEST(Utf8, IsKnownByItsCharacters) {
    for (const char* valid : {"", "a", "\xC2\x80", "\xED\x9F\xBF", "\xEE\x80\x80", "\xF4\x8F\xBF\xBF"})
        EXPECT_TRUE(isUtf8(valid));
    for (const char* invalid : {"\x80", "\xC3", "\xC1\x81", "\xE0\x9F\xBF", "\xED\xA0\x80",
                                "\xF0\x8F\xBF\xBF", "\xF4\x90\x80\x80", "\xF5\x80\x80\x80", "\xE2\x82"})
        EXPECT_FALSE(isUtf8(invalid));
}

} // namespace
} // namespace songsweep
