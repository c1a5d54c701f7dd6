// SPDX-License-Identifier: MIT
// Both readers over one library: the same groups with the same values, but for the differences named here.
#include "app/AppController.h"
#include "app/Program.h"
#include "app/RecordingView.h"
#include "library/Trim.h"
#include "sample-library/BulkLibrary.h"
#include "sample-library/DesktopLibrary.h"
#include "support/EventLoop.h"
#include "support/RecordingLog.h"
#include "tools/ParsedLibrary.h"

#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <cmath>
#include <map>
#include <set>

namespace songsweep::test {
namespace {

/// Persistent IDs of the tracks of each group.
using Groups = std::set<std::set<std::string>>;

/// A finished search: its records by persistent ID, and its groups.
struct Found {
    std::unique_ptr<Program> program;
    std::unique_ptr<RecordingView> view = std::make_unique<RecordingView>();
    std::unique_ptr<AppController> controller;
    std::map<std::string, const TrackRecord*> records;
    Groups groups;
};

Found search(const std::string& library, const std::string& iTunesVersion, Log& log) {
    Found found;
    found.program = std::make_unique<Program>(
        ProgramOptions{.library = library, .map = {}, .iTunesVersion = iTunesVersion, .version = "1.0"}, log);
    found.controller =
        std::make_unique<AppController>(found.program->controllerServices(), found.view->views());
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
        EXPECT_EQ(groupsWithout(tracksOfOneReader(library), asked.groups), file.groups);
    }

    /// Tracks that are no files, or stand outside the playlist's items: only one reader lists them.
    static std::set<std::string> tracksOfOneReader(const std::string& library) {
        const ParsedLibrary parsed = ParsedLibrary::read(library);
        const std::set<int>& items = parsed.playlists().at(0).trackIds;
        std::set<std::string> pids;
        for (const ParsedLibrary::Track& track : parsed.tracks())
            if (track.type != "File" || !items.contains(track.id)) pids.insert(track.persistentId);
        return pids;
    }
    static Groups groupsWithout(const std::set<std::string>& pids, const Groups& groups) {
        Groups left;
        for (std::set<std::string> group : groups) {
            std::erase_if(group, [&](const std::string& pid) { return pids.contains(pid); });
            if (group.size() > 1) left.insert(group);
        }
        return left;
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
