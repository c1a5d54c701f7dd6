// SPDX-License-Identifier: MIT
#include "WindowsFixture.h"
#include "libraryfile/LibraryFixture.h"
#include "support/EventLoop.h"

#include <QApplication>
#include <QTimer>

#include <gmock/gmock.h>

#include <algorithm>
#include <map>
#include <set>
#include <thread>

namespace songsweep::test {
namespace {

using ::testing::EndsWith;

constexpr int trackCount = 3000;

/// Pairs of copies.
std::string pairs() {
    std::vector<FixtureTrack> tracks;
    std::vector<int> all;
    for (int n = 0; n < trackCount; ++n) {
        const std::string name = "Song " + std::to_string(n / 2);
        tracks.push_back({n + 1, persistentIdOf(n),
                          "<key>Name</key><string>" + name +
                              "</string>\n\t\t\t<key>Artist</key><string>X</string>"
                              "\n\t\t\t<key>Total Time</key><integer>200000</integer>"
                              "\n\t\t\t<key>Track Type</key><string>File</string>"});
        all.push_back(n + 1);
    }
    return libraryXml(tracks, {{"Library", "<key>Master</key><true/>", all}, {"Party", "", all}});
}

/// A stand-in for the sound server's tool that notes what it is asked.
class SoundTool {
  public:
    SoundTool() {
        const std::string tool =
            m_folder.write("wpctl", "#!/bin/sh\necho \"$@\" >> '" + m_folder.path() + "/calls'\n");
        std::filesystem::permissions(tool, std::filesystem::perms::owner_all);
        qputenv("PATH", QByteArray::fromStdString(m_folder.path()));
    }
    SoundTool(const SoundTool&) = delete;
    SoundTool& operator=(const SoundTool&) = delete;
    ~SoundTool() { qputenv("PATH", m_formerPath); }

    std::string calls() const { return m_folder.read("calls"); }

  private:
    TemporaryFolder m_folder;
    QByteArray m_formerPath = qgetenv("PATH");
};

class QuitDuringDeletion : public WindowsFixture {
  protected:
    QuitDuringDeletion()
        : WindowsFixture(pairs()) {}

    /// Marks one of each pair and deletes them; comes back with the worker at work.
    void beginDeletion() {
        search();
        press("autoMarkButton");
        press("markMarkButton");
        windows.markWindow().close();
        marked = checkedRows();
        press("deleteButton");
        press("delConfOkButton");
        ASSERT_TRUE(runEventLoopUntil([this] { return windows.progressWindow().isVisible(); }));
        ASSERT_TRUE(runEventLoopUntil([this] { return program->scripting().pendingDeletions() > 0; }));
    }
    /// The end of the program, in the order in which it goes.
    void endProgram() {
        actions.reset();
        controller->applicationShouldTerminate();
        controller.reset();
        program.reset();
    }
    /// The IDs of the tracks of which the log says so.
    std::set<int> tracksThatAre(const std::string& outcome) const {
        std::map<std::string, int> idOf;
        for (int n = 0; n < trackCount; ++n)
            idOf[" (" + persistentIdOf(n) + ") " + outcome] = n + 1;
        std::set<int> ids;
        for (const std::string& line : log.lines()) {
            const auto found = idOf.find(line.substr(std::min(line.size(), line.rfind(" ("))));
            if (found != idOf.end()) ids.insert(found->second);
        }
        return ids;
    }

    SoundTool sound;
    int marked = 0;
};

TEST_F(QuitDuringDeletion, EndsAtOnceWithTheSoundOnAndTheLibraryWritten) {
    ASSERT_NO_FATAL_FAILURE(beginDeletion());
    QTimer::singleShot(0, &window(), [this] { window().close(); });
    EXPECT_EQ(QApplication::exec(), 0);
    for (const QWidget* each : QApplication::topLevelWidgets())
        EXPECT_FALSE(each->isVisible()) << each->objectName().toStdString();
    endProgram();

    EXPECT_THAT(sound.calls(), EndsWith("set-mute @DEFAULT_AUDIO_SINK@ 0\n"));
    const std::set<int> deleted = tracksThatAre("deleted");
    EXPECT_FALSE(deleted.empty());
    EXPECT_EQ(deleted.size() + tracksThatAre("not attempted").size(), static_cast<std::size_t>(marked));
    EXPECT_TRUE(folder.read("library.xml") == withoutTracks(pairs(), deleted)) << deleted.size();
}

} // namespace
} // namespace songsweep::test
