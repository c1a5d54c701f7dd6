// SPDX-License-Identifier: MIT
#include "platform/linux/LinuxDesktop.h"
#include "support/TemporaryFolder.h"

#include <gtest/gtest.h>
#include <unistd.h>

namespace songsweep {
namespace {

namespace fs = std::filesystem;
using test::TemporaryFolder;

/// Stand-ins for the sound server's tools, the only programs to be found; they note their arguments.
class SoundServer : public ::testing::Test {
  protected:
    void SetUp() override {
        m_formerPath = qgetenv("PATH");
        qputenv("PATH", QByteArray::fromStdString(m_folder.path()));
    }
    void TearDown() override { qputenv("PATH", m_formerPath); }

    void addTool(const std::string& name, const std::string& end = "exit 0") const {
        const std::string tool = m_folder.write(name, "#!/bin/sh\necho " + name + " \"$@\" >> '" +
                                                          m_folder.path() + "/calls'\n" + end + "\n");
        fs::permissions(tool, fs::perms::owner_all);
    }
    std::string calls() const { return m_folder.read("calls"); }

    TemporaryFolder m_folder;
    LinuxDesktop m_desktop;

  private:
    QByteArray m_formerPath;
};

TEST_F(SoundServer, MutesAndUnmutesByWpctl) {
    addTool("wpctl");
    addTool("pactl");
    ASSERT_TRUE(m_desktop.setOutputMuted(true));
    ASSERT_TRUE(m_desktop.setOutputMuted(false));
    EXPECT_EQ(calls(), "wpctl set-mute @DEFAULT_AUDIO_SINK@ 1\nwpctl set-mute @DEFAULT_AUDIO_SINK@ 0\n");
}

TEST_F(SoundServer, MutesByPactlWhereThereIsNoWpctl) {
    addTool("pactl");
    ASSERT_TRUE(m_desktop.setOutputMuted(true));
    EXPECT_EQ(calls(), "pactl set-sink-mute @DEFAULT_SINK@ 1\n");
}

TEST_F(SoundServer, TriesPactlWhereWpctlFails) {
    addTool("wpctl", "exit 1");
    addTool("pactl");
    ASSERT_TRUE(m_desktop.setOutputMuted(false));
    EXPECT_EQ(calls(), "wpctl set-mute @DEFAULT_AUDIO_SINK@ 0\npactl set-sink-mute @DEFAULT_SINK@ 0\n");
}

TEST_F(SoundServer, RunsItsToolOutOfTheReachOfCtrlC) {
    addTool("wpctl", "read -r stat < /proc/$$/stat; set -- $stat; echo $5 > '" + m_folder.path() + "/group'");
    ASSERT_TRUE(m_desktop.setOutputMuted(false));
    ASSERT_NE(m_folder.read("group"), "");
    EXPECT_NE(std::stoi(m_folder.read("group")), ::getpgrp());
}

TEST_F(SoundServer, SaysWhyItsToolFailed) {
    addTool("pactl", "echo 'Connection refused' >&2; exit 1");
    const Result<void> result = m_desktop.setOutputMuted(true);
    ASSERT_FALSE(result);
    EXPECT_EQ(result.error().message, "pactl: Connection refused");
}

TEST_F(SoundServer, NeverHoldsTheCallerUpForLong) {
    addTool("pactl", "exec /bin/sleep 1000");
    const Result<void> result = m_desktop.setOutputMuted(true);
    ASSERT_FALSE(result);
    EXPECT_NE(result.error().message.find("timed out"), std::string::npos) << result.error().message;
}

TEST_F(SoundServer, NeedNotBeThere) {
    EXPECT_TRUE(m_desktop.setOutputMuted(true));
    EXPECT_TRUE(m_desktop.setOutputMuted(false));
}

} // namespace
} // namespace songsweep
