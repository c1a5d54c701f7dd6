// SPDX-License-Identifier: MIT
// The search that follows a deletion and needs the library file that the embedded iTunes has yet to write.
#include "app/ControllerFixture.h"
#include "delete/Cleanup.h"
#include "hosts/EmbeddedScripting.h"
#include "libraryfile/LibraryFixture.h"
#include "platform/FileUrl.h"

#include <algorithm>
#include <filesystem>

namespace songsweep::test {
namespace {

/// Times that no test reaches: the library is written by a call.
constexpr WriteSchedule::Times never{std::chrono::hours(1), std::chrono::hours(1)};

/// Two songs, each there twice.
std::string twoPairs() {
    std::vector<FixtureTrack> tracks;
    for (const int id : {1, 2, 3, 4})
        tracks.push_back({id, persistentIdOf(id),
                          "<key>Name</key><string>Song " + std::to_string(id / 3) +
                              "</string><key>Track Type</key><string>File</string>"});
    return libraryXml(tracks, {{"Library", "<key>Master</key><true/>", {1, 2, 3, 4}}});
}

/// Does something in the time in which another would sleep.
class BusySleeper final : public Sleeper {
  public:
    std::function<void()> onSleep = [] {};
    void sleep(std::chrono::milliseconds) override { onSleep(); }
};

class SearchAfterDeletionTest : public ControllerFixture {
  protected:
    SearchAfterDeletionTest() {
        // So that no clock is too coarse to tell the rewritten file.
        namespace fs = std::filesystem;
        fs::last_write_time(m_library, fs::file_time_type::clock::now() - std::chrono::hours(1));
        preferences.libraryUrl = fileUrl(m_library);
        controller = std::make_unique<AppController>(ControllerServices{.scripts = m_scripts,
                                                                        .files = files,
                                                                        .preferences = preferences,
                                                                        .sleeper = m_sleeper,
                                                                        .log = log,
                                                                        .desktop = desktop,
                                                                        .cleanup = m_cleanup,
                                                                        .version = "1.0"},
                                                     view.views());
        controller->awakeFromNib();
        search();
    }
    ~SearchAfterDeletionTest() override { controller.reset(); }

    void search() {
        SearchParameters choices;
        choices.issamename = true;
        choices.playlist = "Library";
        controller->paramOkButtonClick(choices);
        runUntilIdle();
    }
    void deleteFirst(int count) {
        for (int row = 0; row < count; ++row)
            rows()[static_cast<std::size_t>(row)]->checkbox = true;
        controller->deleteButtonClick();
        controller->delConfOkButtonClick(false);
        controller->beginDelete();
        runUntilIdle();
    }
    const std::vector<TrackRecord*>& rows() const { return controller->tableDataSource().rows; }
    std::int64_t countLines(const std::string& line) const {
        const auto lines = log.lines();
        return std::count(lines.begin(), lines.end(), line);
    }

    Folder m_folder;
    std::string m_library = m_folder.write("library.xml", twoPairs());
    BusySleeper m_sleeper;
    EmbeddedScripting m_scripts{m_library, desktop, files, {.writes = never, .library = {}}};
    Cleanup m_cleanup; ///< of an iTunes that writes its file when it likes
};

TEST_F(SearchAfterDeletionTest, WaitsUntilTheFileIsWritten) {
    ASSERT_EQ(rows().size(), 4U);
    deleteFirst(1);
    ASSERT_EQ(contentOf(m_library), twoPairs());
    m_sleeper.onSleep = [this] { EXPECT_TRUE(m_scripts.flush()); };
    search();
    EXPECT_EQ(countLines("Xml enter sleep"), 1) << "the date that the first search told is the file's still";
    EXPECT_EQ(countLines("Xml enter sleep2"), 0);
    EXPECT_EQ(contentOf(m_library), withoutTracks(twoPairs(), {1}));
    EXPECT_EQ(rows().size(), 2U);

    search();
    EXPECT_EQ(countLines("Xml enter delay"), 1) << "the file that was read knows of the deletion";
}

TEST_F(SearchAfterDeletionTest, DoesNotSleepWhereTheFileIsWritten) {
    deleteFirst(1);
    ASSERT_TRUE(m_scripts.flush());
    m_sleeper.onSleep = [] { ADD_FAILURE() << "the file is new"; };
    search();
    EXPECT_EQ(countLines("Xml enter delay"), 1);
    EXPECT_EQ(countLines("Xml enter sleep"), 0);
    EXPECT_EQ(rows().size(), 2U);
}

TEST_F(SearchAfterDeletionTest, DoesNotWaitWhereNothingWasDeleted) {
    deleteFirst(0);
    search();
    EXPECT_EQ(countLines("Xml enter delay"), 0);
    EXPECT_EQ(rows().size(), 4U);
}

} // namespace
} // namespace songsweep::test
