// SPDX-License-Identifier: MIT
#pragma once

#include "support/PrivateBus.h"
#include "support/TemporaryFolder.h"
#include "window/InputDevices.h"
#include "window/ScreenReader.h"
#include "window/VirtualDisplay.h"

#include <QProcess>

#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <vector>

namespace songsweep::test {

/// A test that uses the real program as its user does: keys and clicks on a real display, and what the
/// screen, the files, the log and the other programs of the session tell.
///
/// Everything is the test's own: display, window manager, session bus with a file manager and a player, home
/// and Trash. Nothing waits for a time; what does not come within a minute fails. A test that fails leaves a
/// picture of the screen in the build folder.
class WindowTest : public ::testing::Test {
  protected:
    /// The main window's title, with the test's library.
    static constexpr const char* mainWindow = "Songsweep – library.xml";

    WindowTest();
    void SetUp() override;
    void TearDown() override;

    /// Starts the program with the test's library and waits until its window tells what the library holds.
    void start();
    /// Quits by the keyboard and waits for the end of the process.
    void quit();
    void waitForTheEnd();
    /// Ctrl+F, Return, and the groups are there.
    void search();
    /// Marks every copy but one in each group, by the rule that the dialog offers first.
    void markByRule();
    /// Opens the confirmation by the keyboard.
    void askToDelete();

    ::testing::AssertionResult becomesActive(const std::string& title) const;
    ::testing::AssertionResult appears(const std::string& text) const;
    ::testing::AssertionResult comes(const std::string& what, const std::function<bool()>& condition) const;

    std::vector<std::string> log() const;
    bool logHas(const std::string& line) const;
    std::string library() const { return m_folder.read("library.xml"); }
    /// A path in the folder that has the library, its "Music" and the user's "home".
    std::string path(const std::string& name) const { return m_folder.path() + "/" + name; }
    int countMarked() const;
    /// Whether the screen shows a text of which this is a part.
    bool hasText(const std::string& part) const;

    /// Whose customs the program follows: the name of one of Qt's platform themes, set before the start.
    QString m_desktop = QStringLiteral("generic");
    TemporaryFolder m_folder;
    VirtualDisplay m_display;
    InputDevices m_input;
    PrivateBus m_bus;
    BusService m_fileManager;
    BusService m_player;
    ScreenReader m_screen;
    QProcess m_program;

  private:
    QProcessEnvironment environment() const;
    void keepPicture() const;
};

} // namespace songsweep::test
