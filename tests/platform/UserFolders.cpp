// SPDX-License-Identifier: MIT
#include "UserFolders.h"

#include "support/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <memory>

namespace songsweep::test {

namespace {

class Folders : public ::testing::Environment {
  public:
    void SetUp() override {
        m_home = std::make_unique<TemporaryFolder>();
        const std::filesystem::path home = m_home->path();
        for (const auto& [variable, folder] :
             {std::pair{"HOME", ""}, {"XDG_DATA_HOME", "data"}, {"XDG_CONFIG_HOME", "config"}}) {
            std::filesystem::create_directories(home / folder);
            qputenv(variable, QByteArray::fromStdString((home / folder).string()));
        }
        // GLib watches a folder reliably only where it stands before the first question.
        std::filesystem::create_directories(userApplications());
        // Nothing of the machine's own programs and players may answer.
        qputenv("XDG_DATA_DIRS", "/nonexistent");
        qputenv("XDG_CONFIG_DIRS", "/nonexistent");
        qputenv("DBUS_SESSION_BUS_ADDRESS", "unix:path=/nonexistent");
    }
    void TearDown() override { m_home.reset(); }

    std::unique_ptr<TemporaryFolder> m_home;
};

const auto* const registered = ::testing::AddGlobalTestEnvironment(new Folders);

} // namespace

std::string userHome() { return qgetenv("HOME").toStdString(); }
std::string userData() { return qgetenv("XDG_DATA_HOME").toStdString(); }
std::string userApplications() { return userData() + "/applications"; }
std::string userConfiguration() { return qgetenv("XDG_CONFIG_HOME").toStdString(); }

} // namespace songsweep::test
