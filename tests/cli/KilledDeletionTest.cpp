// SPDX-License-Identifier: MIT
// A deletion with files that is killed at random moments of its whole run, from the start of the process on.
#include "ProgramRun.h"
#include "libraryfile/LibraryFile.h"
#include "libraryfile/LibraryFixture.h"
#include "libraryfile/RecordedCleanup.h"
#include "libraryfile/WellFormedness.h"
#include "platform/FileUrl.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <chrono>
#include <csignal>
#include <iostream>
#include <iterator>
#include <map>
#include <random>
#include <set>

namespace songsweep {
namespace {

namespace fs = std::filesystem;
using std::chrono::microseconds;
using test::RunResult;

constexpr int fewKills = 20;
constexpr int songs = 24;
constexpr int copies = 3;
constexpr int trackCount = songs * copies;

/// Three copies of each of 24 songs with a file each; the last copy of a song has the best bit rate, so
/// that the others go.
class KilledDeletion : public test::ProgramTest, public testing::WithParamInterface<unsigned> {
  protected:
    KilledDeletion() {
        std::vector<test::FixtureTrack> tracks;
        std::vector<int> all;
        for (int id = 1; id <= trackCount; ++id) {
            tracks.push_back({id, test::persistentIdOf(id), values(id)});
            all.push_back(id);
            if (id % copies != 0) m_marked.insert(id);
        }
        m_text = test::libraryXml(tracks, {{"Library", "<key>Master</key><true/>", all},
                                           {"Twice", "", {1, 2, 3, 1, 2, 3, trackCount}}});
    }

    static std::string nameOf(int id) { return std::to_string(id) + ".mp3"; }
    static std::string soundOf(int id) { return "the sound of " + std::to_string(id); }
    std::string values(int id) const {
        return "<key>Name</key><string>Song " + std::to_string((id - 1) / copies) +
               "</string>\n\t\t\t<key>Artist</key><string>X</string>\n\t\t\t<key>Total "
               "Time</key><integer>1000</integer>"
               "\n\t\t\t<key>Bit Rate</key><integer>" +
               std::to_string(128 + 64 * (id % copies == 0 ? 1 : 0)) +
               "</integer>\n\t\t\t<key>Track Type</key><string>File</string>\n\t\t\t<key>Location</key>"
               "<string>" +
               fileUrl(path("music/" + nameOf(id))) + "</string>";
    }

    /// Library, files and an empty Trash as they are before a deletion.
    void makeAnew() {
        for (const auto& entry : fs::directory_iterator(m_folder.path()))
            fs::remove_all(entry.path());
        fs::create_directories(path("home/data"));
        m_folder.write("Library.xml", m_text);
        for (int id = 1; id <= trackCount; ++id)
            m_folder.write("music/" + nameOf(id), soundOf(id));
    }

    std::vector<std::string> command() const {
        return {"delete",          "--library",    path("Library.xml"), "--rule",
                "highest-bitrate", "--except-one", "--files",           "--yes"};
    }

    microseconds durationOfARun() {
        makeAnew();
        const auto start = std::chrono::steady_clock::now();
        EXPECT_EQ(run(command()).exitCode, 0);
        return std::chrono::duration_cast<microseconds>(std::chrono::steady_clock::now() - start);
    }

    /// The library is well formed and has lost nothing but whole marked tracks with their items.
    void checkLibrary() {
        const auto file = LibraryFile::open(path("Library.xml"));
        ASSERT_TRUE(file) << file.error().message;
        EXPECT_TRUE(checkWellFormedness(file.value()));
        const std::string text = m_folder.read("Library.xml");
        m_gone.clear();
        for (const int id : m_marked)
            if (text.find("\t\t<key>" + std::to_string(id) + "</key>\n") == std::string::npos)
                m_gone.insert(id);
        ASSERT_TRUE(text == test::withoutTracks(m_text, m_gone)) << m_gone.size() << " tracks are gone";
        EXPECT_TRUE(m_gone.empty() || hasBackup()) << "the library as it was is kept";
    }

    bool hasBackup() const {
        return std::any_of(fs::directory_iterator(m_folder.path()), {}, [this](const auto& entry) {
            const std::string name = entry.path().filename().string();
            return name != "Library.xml" && entry.is_regular_file() && m_folder.read(name) == m_text;
        });
    }

    /// Each file is at its place, or, if its track is marked, in the Trash with what it takes to put it back.
    void checkFiles() {
        std::map<std::string, std::string> trashed; // place by sound
        const std::string trash = "home/data/Trash/";
        if (fs::exists(path(trash + "files")))
            for (const auto& entry : fs::directory_iterator(path(trash + "files"))) {
                const std::string name = entry.path().filename().string();
                trashed[m_folder.read(trash + "files/" + name)] =
                    m_folder.read(trash + "info/" + name + ".trashinfo");
            }
        m_trashed = static_cast<int>(trashed.size());
        for (int id = 1; id <= trackCount; ++id) {
            const bool isThere = m_folder.read("music/" + nameOf(id)) == soundOf(id);
            const auto found = trashed.find(soundOf(id));
            ASSERT_NE(isThere, found != trashed.end()) << "file of track " << id;
            if (isThere) continue;
            EXPECT_TRUE(m_gone.contains(id)) << id << ", whose track is in the library";
            EXPECT_THAT(found->second, testing::HasSubstr("Path=" + path("music/" + nameOf(id)) + "\n"));
        }
    }

    /// The record was ahead of everything that was done, and behind nothing that it calls done.
    void checkRecord() {
        const std::vector<RecordedCleanup> records = recordsThere();
        if (records.empty()) {
            EXPECT_TRUE(m_gone.empty());
            EXPECT_EQ(m_trashed, 0);
            return;
        }
        ASSERT_EQ(records.size(), 1U);
        const RecordedCleanup& record = records.front();
        if (!record.isPlanned) {
            EXPECT_EQ(record.writesBegun, 0U);
        }
        if (record.writesBegun == 0) {
            EXPECT_TRUE(m_gone.empty());
        }
        if (record.writesDone > 0) {
            EXPECT_EQ(m_gone, m_marked);
        }
        if (!record.isPlanned) return;
        ASSERT_EQ(record.tracks.size(), m_marked.size());
        for (const RecordedCleanup::Track& track : record.tracks)
            checkTrackOf(record, track);
    }

    void checkTrackOf(const RecordedCleanup& record, const RecordedCleanup::Track& track) {
        SCOPED_TRACE(track.plan.path);
        const bool isThere = fs::exists(track.plan.path);
        EXPECT_TRUE(isThere || track.begun);
        if (track.trash) {
            EXPECT_FALSE(isThere);
        }
        if (track.trash) {
            EXPECT_TRUE(fs::exists(track.trash->path()));
        }
        EXPECT_EQ(record.end.has_value() && !track.outcome, false);
        if (!track.outcome) return;
        EXPECT_EQ(track.outcome->track, RecordedOutcome::Track::deleted);
        EXPECT_EQ(track.outcome->file, RecordedOutcome::File::trashed);
        EXPECT_TRUE(track.trash);
    }

    std::vector<RecordedCleanup> recordsThere() const {
        std::vector<RecordedCleanup> records;
        for (const auto& entry : fs::directory_iterator(m_folder.path())) {
            if (entry.path().extension() != ".jsonl" || entry.file_size() == 0) continue;
            auto record = RecordedCleanup::read(entry.path().string());
            EXPECT_TRUE(record) << record.error().message;
            if (record) records.push_back(std::move(record).value());
        }
        return records;
    }

    /// All is as it was made, so that a second run would be a first one.
    bool isUntouched() const {
        const auto entries = std::distance(fs::directory_iterator(m_folder.path()), {});
        constexpr int madeEntries = 3; // library, music, home
        return m_gone.empty() && m_trashed == 0 && entries == madeEntries && fs::is_empty(path("home/data"));
    }

    void checkThatTheWorkCanBeCompleted() {
        if (isUntouched()) return;
        const RunResult again = run(command());
        EXPECT_EQ(again.exitCode, 0) << again.errors << again.output;
        ASSERT_NO_FATAL_FAILURE(checkLibrary());
        ASSERT_NO_FATAL_FAILURE(checkFiles());
        EXPECT_EQ(m_gone, m_marked);
        for (const auto& entry : fs::directory_iterator(m_folder.path()))
            EXPECT_NE(entry.path().extension(), ".tmp") << entry.path();
    }

    void checkThatAllComesBack() {
        const RunResult back = run({"restore", "--library", path("Library.xml"), "--yes"});
        if (!m_gone.empty()) {
            EXPECT_EQ(back.exitCode, 0) << back.errors << back.output;
        }
        ASSERT_NO_FATAL_FAILURE(checkLibrary());
        ASSERT_NO_FATAL_FAILURE(checkFiles());
        EXPECT_TRUE(m_gone.empty());
        EXPECT_EQ(m_trashed, 0);
    }

    std::string m_text; ///< of the library as it was
    std::set<int> m_marked;
    std::set<int> m_gone; ///< from the library, when it was last looked at
    int m_trashed = 0;    ///< files in the Trash, when it was last looked at
};

TEST_P(KilledDeletion, LosesNeitherTracksNorFilesAndCanBeCompletedOrTakenBack) {
    std::mt19937 random(GetParam());
    const microseconds duration = durationOfARun();
    std::uniform_int_distribution<int> moment(0, static_cast<int>(duration.count()));
    int filesLeft = 0;
    int ended = 0;
    const int kills = test::killsATest(fewKills);
    for (int kill = 0; kill < kills; ++kill) {
        const microseconds delay(moment(random));
        SCOPED_TRACE("seed " + std::to_string(GetParam()) + ", kill " + std::to_string(kill) + " after " +
                     std::to_string(delay.count()) + " of " + std::to_string(duration.count()) +
                     " microseconds");
        makeAnew();
        ASSERT_NO_FATAL_FAILURE(runAndKill(command(), delay));
        ASSERT_NO_FATAL_FAILURE(checkLibrary());
        ASSERT_NO_FATAL_FAILURE(checkFiles());
        ASSERT_NO_FATAL_FAILURE(checkRecord());
        filesLeft += m_trashed < static_cast<int>(m_gone.size()) ? 1 : 0;
        ended += m_gone == m_marked ? 1 : 0;
        if (kill % 2 == 0) {
            ASSERT_NO_FATAL_FAILURE(checkThatTheWorkCanBeCompleted());
        } else {
            ASSERT_NO_FATAL_FAILURE(checkThatAllComesBack());
        }
    }
    std::cout << "seed " << GetParam() << ": of " << kills << " kills within " << duration.count()
              << " microseconds " << filesLeft << " left files of deleted tracks, " << ended
              << " the new library\n";
}

INSTANTIATE_TEST_SUITE_P(Seeds, KilledDeletion, testing::Range(1U, 11U));

} // namespace
} // namespace songsweep
