// SPDX-License-Identifier: MIT
// Both readers over one library: the same groups with the same values, but for the differences named here.
#include "app/Program.h"
#include "library/Trim.h"
#include "sample-library/BulkLibrary.h"
#include "sample-library/DesktopLibrary.h"
#include "support/EventLoop.h"
#include "support/RecordingLog.h"

#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <map>
#include <set>

namespace songsweep::test {
namespace {

/// A finished search: its records by persistent ID, and the IDs of each group.
struct Found {
    std::unique_ptr<Program> program;
    std::unique_ptr<ControllerView> view = std::make_unique<ControllerView>();
    std::unique_ptr<AppController> controller;
    std::map<std::string, const TrackRecord*> records;
    std::set<std::set<std::string>> groups;
};

Found search(const std::string& library, const std::string& iTunesVersion, Log& log) {
    Found found;
    found.program = std::make_unique<Program>(
        ProgramOptions{.library = library, .map = {}, .iTunesVersion = iTunesVersion, .version = "1.0"}, log);
    found.controller = std::make_unique<AppController>(found.program->controllerServices(), *found.view);
    found.controller->awakeFromNib();
    SearchParameters choices;
    choices.issamename = true;
    choices.issameartist = true;
    const auto playlists = found.program->scripting().playlists();
    if (playlists && !playlists.value().empty()) choices.playlist = playlists.value().front().name;
    found.controller->paramOkButtonClick(choices);
    EXPECT_TRUE(runEventLoopUntil([&] { return !found.controller->isWorking(); }));
    std::map<int, std::set<std::string>> groups;
    for (const TrackRecord* const record : found.controller->tableDataSource().rows) {
        found.records[record->pid.string()] = record;
        groups[record->gid].insert(record->pid.string());
    }
    for (const auto& [gid, pids] : groups)
        found.groups.insert(pids);
    return found;
}

/// Dates are kept to the minute by one reader.
std::int64_t toTheMinute(std::int64_t seconds) {
    return std::llround(static_cast<double>(seconds) / 60.0) * 60;
}

void expectSameValues(const TrackRecord& file, const TrackRecord& asked) {
    SCOPED_TRACE(file.pid.string());
    EXPECT_EQ(file.name.view(), trimmed(asked.name.view())) << "blanks are trimmed by one of them";
    EXPECT_EQ(file.artist.view(), trimmed(asked.artist.view()));
    EXPECT_EQ(file.album.view(), trimmed(asked.album.view()));
    EXPECT_EQ(file.time, asked.time);
    EXPECT_EQ(file.timev, asked.timev);
    EXPECT_EQ(file.bitrate, asked.bitrate);
    EXPECT_EQ(file.size, asked.size);
    EXPECT_EQ(file.rating, asked.rating);
    EXPECT_EQ(file.playcount, asked.playcount);
    EXPECT_EQ(file.hasdate ? toTheMinute(file.dateaddedv) : 0, asked.dateaddedv);
    EXPECT_EQ(file.hasartwork, asked.hasartwork);
    EXPECT_EQ(file.isdead, asked.isdead);
    EXPECT_TRUE(file.fromlibraryfile);
    EXPECT_FALSE(asked.fromlibraryfile) << "keys that only one reader makes";
    if (asked.isdead) {
        EXPECT_EQ(asked.location, "msng") << "a missing location";
    } else {
        EXPECT_EQ(file.location, asked.location);
    }
}

class ReadersAgreeTest : public ::testing::Test {
  protected:
    void expectAgreement(const std::string& library) {
        const Found file = search(library, "12.0", m_log);
        const Found asked = search(library, "9.2.1", m_log);
        ASSERT_FALSE(file.records.empty());
        for (const auto& [pid, record] : file.records) {
            ASSERT_TRUE(asked.records.contains(pid)) << pid;
            expectSameValues(*record, *asked.records.at(pid));
        }
        for (const std::set<std::string>& group : file.groups)
            EXPECT_TRUE(isInOneGroup(group, asked)) << "the group of " << *group.begin();
    }

    /// Whether the other reader has the tracks in one group; tracks that are no files, or stand outside the
    /// playlist's items, may have joined it there.
    static bool isInOneGroup(const std::set<std::string>& group, const Found& found) {
        return std::any_of(found.groups.begin(), found.groups.end(), [&](const std::set<std::string>& other) {
            return std::includes(other.begin(), other.end(), group.begin(), group.end());
        });
    }

    QTemporaryDir m_folder;
    RecordingLog m_log;
};

TEST_F(ReadersAgreeTest, AboutTheSampleLibrary) {
    const std::string folder = m_folder.path().toStdString() + "/sample";
    ASSERT_TRUE(sample::makeDesktopLibrary(folder));
    expectAgreement(folder + "/library.xml");
}

TEST_F(ReadersAgreeTest, AboutABulkLibrary) {
    const std::string folder = m_folder.path().toStdString();
    ASSERT_TRUE(sample::makeBulkLibrary(
        {.tracks = 2000, .file = folder + "/bulk.xml", .musicFolder = folder + "/m"}));
    expectAgreement(folder + "/bulk.xml");
}

} // namespace
} // namespace songsweep::test
