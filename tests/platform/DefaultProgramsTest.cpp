// SPDX-License-Identifier: MIT
#include "UserFolders.h"
#include "platform/linux/Gio.h"
#include "platform/linux/LinuxDesktop.h"
#include "support/TemporaryFolder.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <poll.h>
#include <sys/stat.h>
#include <unistd.h>

#include <chrono>
#include <filesystem>
#include <fstream>
#include <thread>

namespace songsweep {
namespace {

namespace fs = std::filesystem;
using test::TemporaryFolder;

void writeProgram(const fs::path& path, const std::string& script) {
    fs::create_directories(path.parent_path());
    std::ofstream(path) << "#!/bin/sh\n" << script << '\n';
    fs::permissions(path, fs::perms::owner_all);
}

/// Programs of a desktop that tell what they were started with, through a pipe by name.
class DefaultPrograms : public ::testing::Test {
  protected:
    void SetUp() override {
        ASSERT_EQ(::mkfifo(m_pipePath.c_str(), 0600), 0);
        m_pipe = ::open(m_pipePath.c_str(), O_RDWR | O_CLOEXEC);
        m_formerPath = qgetenv("PATH");
    }
    void TearDown() override {
        ::close(m_pipe);
        qputenv("PATH", m_formerPath);
        if (!m_kind.empty()) forgetDefault();
    }

    std::string tellingScript(const std::string& name) const {
        return "printf '%s\\n' \"" + name + " $*\" > '" + m_pipePath + "'";
    }

    /// Makes a program the user's default for a kind of things; it takes URLs ("%u") or files ("%f").
    void setDefault(const std::string& kind, const std::string& name, const std::string& takes) {
        const std::string program = m_folder.path() + "/" + name;
        writeProgram(program, tellingScript(name));
        m_kind = kind;
        m_entry = test::userApplications() + "/" + name + ".desktop";
        std::ofstream(m_entry) << "[Desktop Entry]\nType=Application\nName=" << name << "\nExec=" << program
                               << " " << takes << "\nMimeType=" << kind << ";\n";
        std::ofstream(test::userConfiguration() + "/mimeapps.list") << "[Default Applications]\n"
                                                                    << kind << "=" << name << ".desktop\n";
        ASSERT_TRUE(becomesDefault(program));
    }

    /// The next line that a program tells; empty after ten seconds without one.
    std::string told() const {
        std::string line;
        pollfd pipe{m_pipe, POLLIN, 0};
        for (char next = 0; ::poll(&pipe, 1, 10'000) == 1 && ::read(m_pipe, &next, 1) == 1 && next != '\n';)
            line += next;
        return line;
    }

    TemporaryFolder m_folder;
    LinuxDesktop m_desktop;

  private:
    void forgetDefault() {
        fs::remove(m_entry);
        fs::remove(test::userConfiguration() + "/mimeapps.list");
        EXPECT_TRUE(becomesDefault(""));
    }

    /// GLib hears of changed programs through a thread of its own, some moments later. "" stands for none.
    bool becomesDefault(const std::string& program) const {
        const auto limit = std::chrono::steady_clock::now() + std::chrono::seconds(30);
        while (defaultProgram() != program) {
            if (std::chrono::steady_clock::now() > limit) return false;
            std::this_thread::sleep_for(std::chrono::milliseconds(1));
        }
        return true;
    }

    std::string defaultProgram() const {
        const gio::Owned<GAppInfo> info(g_app_info_get_default_for_type(m_kind.c_str(), FALSE));
        return info ? g_app_info_get_executable(info.get()) : "";
    }

    std::string m_kind;
    fs::path m_entry;
    std::string m_pipePath = m_folder.path() + "/pipe";
    int m_pipe = -1;
    QByteArray m_formerPath;
};

TEST_F(DefaultPrograms, OpenAWebAddress) {
    setDefault("x-scheme-handler/https", "browser", "%u");
    ASSERT_TRUE(m_desktop.openUrl("https://songsweep.example/faq.php#cant-access-itunes"));
    EXPECT_EQ(told(), "browser https://songsweep.example/faq.php#cant-access-itunes");
}

TEST_F(DefaultPrograms, OpenTheFolderWhereNoFileManagerAnswers) {
    setDefault("inode/directory", "files", "%f");
    m_folder.write("Abba/a b.mp3", "x");
    ASSERT_TRUE(m_desktop.showInFileManager(m_folder.path() + "/Abba/a b.mp3"));
    EXPECT_EQ(told(), "files " + m_folder.path() + "/Abba");
}

TEST_F(DefaultPrograms, PlayAFileWhereNoPlayerRuns) {
    setDefault("text/plain", "player", "%f");
    const std::string path = m_folder.write("a.txt", "x");
    ASSERT_TRUE(m_desktop.play(path));
    EXPECT_EQ(told(), "player " + path);
}

TEST_F(DefaultPrograms, GiveWayToXdgOpenWhereNoneIsKnown) {
    writeProgram(m_folder.path() + "/bin/xdg-open", tellingScript("xdg-open"));
    qputenv("PATH", QByteArray::fromStdString(m_folder.path() + "/bin:") + qgetenv("PATH"));
    ASSERT_TRUE(m_desktop.openUrl("https://songsweep.example/"));
    EXPECT_EQ(told(), "xdg-open https://songsweep.example/");
}

TEST_F(DefaultPrograms, ThatAreMissingAreAnError) {
    qputenv("PATH", "/nonexistent");
    const Result<void> result = m_desktop.openUrl("https://songsweep.example/");
    ASSERT_FALSE(result);
    EXPECT_FALSE(result.error().message.empty());
}

} // namespace
} // namespace songsweep
