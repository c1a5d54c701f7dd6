// SPDX-License-Identifier: MIT
// The chain of workers under cancels, failures and quits at random moments. Worth most under a sanitizer.
#include "app/ControllerFixture.h"

#include <QCoreApplication>
#include <QFile>
#include <QTemporaryDir>

#include <chrono>
#include <random>

namespace songsweep::test {
namespace {

constexpr int trackCount = 60;

/// How often the random tests go round; SONGSWEEP_STRESS_ROUNDS=1000 for a long run.
int rounds() {
    const int asked = qEnvironmentVariableIntValue("SONGSWEEP_STRESS_ROUNDS");
    return asked > 0 ? asked : 100;
}

/// A small library of pairs of equal songs, whose files do not exist.
QByteArray smallLibrary() {
    QByteArray tracks;
    QByteArray items;
    for (int i = 1; i <= trackCount; ++i) {
        const QByteArray id = QByteArray::number(i);
        tracks += "<key>" + id + "</key><dict><key>Track ID</key><integer>" + id +
                  "</integer><key>Name</key><string>Song " + QByteArray::number(i / 2) +
                  "</string><key>Persistent ID</key><string>" + id +
                  "</string><key>Track Type</key><string>File</string><key>Location</key>"
                  "<string>file://localhost/music/" +
                  id + ".mp3</string></dict>\n";
        items += "<dict><key>Track ID</key><integer>" + id + "</integer></dict>\n";
    }
    return "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<plist "
           "version=\"1.0\"><dict><key>Tracks</key><dict>" +
           tracks +
           "</dict><key>Playlists</key><array><dict><key>Name</key><string>Library</string>"
           "<key>Playlist Items</key><array>" +
           items + "</array></dict></array></dict></plist>\n";
}

class ChainStressTest : public ControllerFixture {
  protected:
    ChainStressTest() {
        QFile file(m_folder.filePath(QStringLiteral("Library.xml")));
        if (file.open(QIODevice::WriteOnly)) file.write(smallLibrary());
        file.close();
        preferences.libraryUrl = "file://localhost" + file.fileName().toStdString();
        for (int i = 1; i <= trackCount; ++i) {
            FakeTrack track;
            track.pid = std::to_string(i);
            track.name = "Song " + std::to_string(i / 2);
            iTunes.tracks.push_back(track);
        }
        choices.issamename = true;
        choices.playlist = "Library";
    }

    int upTo(int bound) { return std::uniform_int_distribution<int>(0, bound)(m_random); }
    bool oneIn(int count) { return upTo(count - 1) == 0; }

    /// Handles events for a random while of up to two milliseconds.
    void handleEventsForAWhile() {
        const auto end = std::chrono::steady_clock::now() + std::chrono::microseconds(upTo(2000));
        while (std::chrono::steady_clock::now() < end)
            QCoreApplication::processEvents();
    }

    void provokeFaults() {
        static const std::vector<std::string> parts = {"itunes_records", "get count of tracks of playlist",
                                                       "location of (tracks", "get version",
                                                       "count of playlist \n"};
        const std::string part = oneIn(3) ? parts[static_cast<std::size_t>(upTo(4))] : "no such text";
        iTunes.fails = [part](const std::string& text) { return text.find(part) != std::string::npos; };
    }

    /// What the last calls leave on screen.
    std::string page() const {
        bool table = false;
        bool perform = false;
        for (const std::string& call : view.calls) {
            if (call.starts_with("setTableVisible")) table = call.ends_with("on");
            if (call.starts_with("setPerformLabelVisible")) perform = call.ends_with("on");
        }
        return table ? "table" : perform ? "empty" : "blank";
    }

    QTemporaryDir m_folder;
    SearchParameters choices;
    std::mt19937 m_random{20261121};
};

TEST_F(ChainStressTest, RandomCancelsAlwaysEndInTheStateThatBelongsToThem) {
    for (int round = 0; round < rounds(); ++round) {
        view.calls.clear();
        iTunes.version = oneIn(3) ? "9.2.1" : "12.0";
        provokeFaults();
        controller->paramOkButtonClick(choices);
        if (!controller->isWorking()) continue; // iTunes did not answer: the alert, and no search
        handleEventsForAWhile();
        const bool cancelled = oneIn(2) && controller->isSearching();
        if (cancelled) controller->cancelformButtonClick();
        runUntilIdle();
        ASSERT_FALSE(controller->isSearching()) << "round " << round;
        ASSERT_EQ(page(), cancelled ? "empty" : "table") << "round " << round;
    }
}

TEST_F(ChainStressTest, ANewSearchAtOnceAfterACancelShowsOnlyItsOwnResults) {
    for (int round = 0; round < rounds(); ++round) {
        view.calls.clear();
        iTunes.version = oneIn(2) ? "9.2.1" : "12.0";
        controller->paramOkButtonClick(choices);
        handleEventsForAWhile();
        controller->cancelformButtonClick();
        controller->paramOkButtonClick(choices);
        runUntilIdle();
        ASSERT_EQ(page(), "table") << "round " << round;
        ASSERT_EQ(controller->tableDataSource().rows.size(), trackCount - 2U) << "round " << round;
    }
}

TEST_F(ChainStressTest, QuittingAtRandomMomentsLeavesNoWorkerWaiting) {
    for (int round = 0; round < rounds(); ++round) {
        RecordingView shown;
        AppController quitting({.scripts = iTunes,
                                .files = files,
                                .preferences = preferences,
                                .sleeper = sleeper,
                                .log = log,
                                .desktop = desktop,
                                .cleanup = cleanup,
                                .version = "1.0"},
                               shown.views());
        quitting.awakeFromNib();
        quitting.paramOkButtonClick(choices);
        handleEventsForAWhile();
        EXPECT_TRUE(quitting.applicationShouldTerminate());
    }
}

} // namespace
} // namespace songsweep::test
