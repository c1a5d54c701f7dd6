// SPDX-License-Identifier: MIT
#include "hosts/EmbeddedScriptingFixture.h"
#include "support/SystemTexts.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <unistd.h>

#include <chrono>
#include <string>
#include <thread>
#include <vector>

namespace songsweep {
namespace {

using test::contentOf;
using test::libraryXml;
using test::manyTracks;
using test::persistentIdOf;
using testing::ElementsAre;
using testing::StartsWith;
using EmbeddedLibraryTest = test::EmbeddedScriptingFixture;

TEST_F(EmbeddedLibraryTest, WhatIsLeftIsWrittenAtTheEnd) {
    open(manyTracks(3));
    run(test::deleteTrackText(persistentIdOf(0)));
    m_scripts.reset();
    EXPECT_EQ(LibraryDocument::open(m_path).value()->trackCount(), 2);
}

TEST_F(EmbeddedLibraryTest, TheWriterWritesByItself) {
    using namespace std::chrono_literals;
    open(manyTracks(3), {1ms, 1ms});
    run(test::deleteTrackText(persistentIdOf(0)));
    // The writer has no other way to tell; a hang ends at the test's own limit.
    while (m_scripts->pendingDeletions() > 0)
        std::this_thread::sleep_for(1ms);
    EXPECT_EQ(LibraryDocument::open(m_path).value()->trackCount(), 2);
}

TEST_F(EmbeddedLibraryTest, AFailedWriteKeepsItsReasonAndForgetsItsDeletions) {
    open(manyTracks(3));
    run(test::deleteTrackText(persistentIdOf(0)));
    ASSERT_EQ(::unlink(m_path.c_str()), 0);
    EXPECT_FALSE(m_scripts->flush());
    ASSERT_TRUE(m_scripts->lastWriteError());
    EXPECT_EQ(m_scripts->lastWriteError()->code, Error::Code::notFound);
    EXPECT_EQ(m_scripts->pendingDeletions(), 0U);
    EXPECT_THAT(m_log.lines(), ElementsAre(StartsWith("Library not written : cannot find ")));
    m_folder.write("library.xml", manyTracks(4));
    EXPECT_TRUE(m_scripts->flush());
    EXPECT_EQ(LibraryDocument::open(m_path).value()->trackCount(), 4);
}

TEST_F(EmbeddedLibraryTest, NoDeletionBeginsWhereAnEarlierOneCannotBeWritten) {
    open(manyTracks(3));
    run(test::deleteTrackText(persistentIdOf(0)));
    ASSERT_EQ(::unlink(m_path.c_str()), 0);
    const auto begun = beginCleanup();
    ASSERT_FALSE(begun);
    EXPECT_EQ(begun.error().code, Error::Code::notFound);
    m_folder.write("library.xml", manyTracks(3));
    EXPECT_TRUE(beginCleanup());
    EXPECT_EQ(LibraryDocument::open(m_path).value()->trackCount(), 3);
}

TEST_F(EmbeddedLibraryTest, NoDeletionBeginsInALibraryThatIsRefused) {
    open("<plist>\n<dict>\n<key>Tracks</key>\n<dict>\n</array>");
    const auto begun = beginCleanup();
    ASSERT_FALSE(begun);
    EXPECT_EQ(begun.error().message, "line 5: </array> stands where </dict> is due");
}

/// A track that has a file of its ID's name.
test::FixtureTrack trackWithFile(int id, const std::string& persistentId) {
    return {id, persistentId, "<key>Location</key><string>file:///M/" + persistentId + ".mp3</string>"};
}

TEST_F(EmbeddedLibraryTest, NamesEveryFileOfTheLibrary) {
    open(libraryXml({trackWithFile(1, "A1")}, {}));
    std::vector<std::string> seen;
    ASSERT_TRUE(m_scripts->forEachLocation([&](std::string_view id, const std::string& path) {
        seen.push_back(std::string(id) + path);
        return true;
    }));
    EXPECT_THAT(seen, ElementsAre("A1/M/A1.mp3"));
    EXPECT_EQ(m_scripts->trackCount().value(), 1);
}

TEST_F(EmbeddedLibraryTest, NamesNoMoreFilesThanAreWanted) {
    open(libraryXml({trackWithFile(1, "A1"), trackWithFile(2, "A2")}, {}));
    int seen = 0;
    EXPECT_TRUE(m_scripts->forEachLocation([&](std::string_view, const std::string&) { return ++seen < 1; }));
    EXPECT_EQ(seen, 1);
}

TEST_F(EmbeddedLibraryTest, TextsRunWhileTheFilesAreNamed) {
    open(libraryXml({trackWithFile(1, "A1")}, {}));
    std::string count;
    ASSERT_TRUE(m_scripts->forEachLocation([&](std::string_view, const std::string&) {
        std::thread([&] { count = text(test::trackCountText); }).join();
        return true;
    }));
    EXPECT_EQ(count, "1");
}

TEST_F(EmbeddedLibraryTest, ALibraryThatIsReplacedMeanwhileHasItsNewFilesNamedToo) {
    open(libraryXml({trackWithFile(1, "A1"), trackWithFile(2, "A2")}, {}));
    std::vector<std::string> seen;
    ASSERT_TRUE(m_scripts->forEachLocation([&](std::string_view id, const std::string&) {
        if (seen.empty()) replaceLibrary(libraryXml({trackWithFile(1, "A1"), trackWithFile(3, "B3")}, {}));
        seen.emplace_back(id);
        return true;
    }));
    EXPECT_THAT(seen, ElementsAre("A1", "A2", "A1", "B3"));
}

TEST_F(EmbeddedLibraryTest, ALibraryThatIsReplacedAgainAndAgainCannotBeGoneThrough) {
    open(libraryXml({trackWithFile(1, "A1")}, {}));
    int passes = 0;
    const Result<void> done = m_scripts->forEachLocation([&](std::string_view, const std::string&) {
        replaceLibrary(libraryXml({trackWithFile(++passes, "A1")}, {}));
        return true;
    });
    ASSERT_FALSE(done);
    EXPECT_EQ(done.error().code, Error::Code::busy);
    EXPECT_EQ(passes, 3);
}

} // namespace
} // namespace songsweep
