// SPDX-License-Identifier: MIT
#include "hosts/EmbeddedScriptingFixture.h"
#include "support/SystemTexts.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <unistd.h>

#include <string>
#include <thread>

namespace songsweep {
namespace {

using test::manyTracks;
using test::persistentIdOf;
using testing::ElementsAre;
using testing::HasSubstr;
using EmbeddedScriptingTest = test::EmbeddedScriptingFixture;

TEST_F(EmbeddedScriptingTest, TheVersionCanBeAnother) {
    EmbeddedScripting::Options options;
    options.iTunesVersion = "9.2.1";
    const std::string path = m_folder.write("library.xml", manyTracks(1));
    EmbeddedScripting scripts(path, m_desktop, m_files, options);
    EXPECT_EQ(scripts.executeAndReturnError(test::versionText).value().stringValue(), "9.2.1");
}

TEST_F(EmbeddedScriptingTest, AfterTheLastTextAllIsWrittenAndNoneIsRun) {
    open(manyTracks(3));
    run(test::deleteTrackText(persistentIdOf(0)));
    EXPECT_TRUE(m_scripts->runLast("tell application \"Finder\" to set volume with output muted"));
    EXPECT_THAT(m_desktop.calls, ElementsAre("mute"));
    EXPECT_EQ(LibraryDocument::open(m_path).value()->trackCount(), 2);
    EXPECT_EQ(failure(test::deleteTrackText(persistentIdOf(1))), "the program ends");
    EXPECT_EQ(m_scripts->pendingDeletions(), 0U);
}

TEST_F(EmbeddedScriptingTest, ALibraryThatIsRefusedFailsItsScriptsAndSaysWhy) {
    open("<plist>\n<dict>\n<key>Tracks</key>\n<dict>\n</array>");
    EXPECT_FALSE(m_scripts->libraryError()); // Nobody has asked for it yet.
    EXPECT_THAT(failure(test::trackCountText), HasSubstr("line 5: </array> stands where </dict> is due"));
    EXPECT_NE(failure(test::versionText), "(no failure)");
    EXPECT_EQ(m_scripts->libraryError()->message, "line 5: </array> stands where </dict> is due");
    run(test::unmuteText);

    m_folder.write("library.xml", manyTracks(2));
    EXPECT_EQ(text(test::trackCountText), "2");
    EXPECT_FALSE(m_scripts->libraryError());
}

TEST_F(EmbeddedScriptingTest, ALibraryThatIsMissingFailsItsScripts) {
    open(manyTracks(1));
    ASSERT_EQ(::unlink(m_path.c_str()), 0);
    EXPECT_NE(failure(test::trackCountText), "(no failure)");
    EXPECT_EQ(m_scripts->libraryError()->code, Error::Code::notFound);
}

TEST_F(EmbeddedScriptingTest, TurnsToAnotherLibraryAfterWritingTheFirst) {
    open(manyTracks(3));
    run(test::deleteTrackText(persistentIdOf(0)));
    const std::string other = m_folder.write("other.xml", manyTracks(7));
    ASSERT_TRUE(m_scripts->openLibrary(other));
    EXPECT_EQ(text(test::trackCountText), "7");
    EXPECT_EQ(m_scripts->libraryPath(), other);
    EXPECT_EQ(LibraryDocument::open(m_path).value()->trackCount(), 2);
}

TEST_F(EmbeddedScriptingTest, TwoThreadsMaySendScripts) {
    open(manyTracks(200));
    const auto deleteFrom = [&](int first) {
        for (int n = first; n < 200; n += 2)
            EXPECT_TRUE(m_scripts->executeAndReturnError(test::deleteTrackText(persistentIdOf(n))));
    };
    std::thread other(deleteFrom, 0);
    deleteFrom(1);
    other.join();
    EXPECT_EQ(text(test::trackCountText), "0");
}

} // namespace
} // namespace songsweep
