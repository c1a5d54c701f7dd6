// SPDX-License-Identifier: MIT
#include "hosts/EmbeddedScriptingFixture.h"
#include "platform/HfsPath.h"
#include "support/SystemTexts.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>

namespace songsweep {
namespace {

using test::contentOf;
using test::manyTracks;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::Not;
using FinderApplicationTest = test::EmbeddedScriptingFixture;

TEST_F(FinderApplicationTest, FinderMovesAFileToTheTrash) {
    open(manyTracks(1));
    const std::string path = m_folder.write("a:b.mp3", "sound");
    run(test::deleteFileText(hfsPath(path).value()));
    EXPECT_THAT(m_desktop.calls, ElementsAre("trash " + path));
}

TEST_F(FinderApplicationTest, WhatTheTrashRefusesFailsTheScriptWithTheReason) {
    open(manyTracks(1));
    m_desktop.recordingTrash.refusal = "the disk has no Trash";
    const std::string path = m_folder.write("a.mp3", "sound");
    EXPECT_THAT(failure(test::deleteFileText(hfsPath(path).value())), HasSubstr("the disk has no Trash"));
    EXPECT_EQ(contentOf(path), "sound");
}

TEST_F(FinderApplicationTest, AFileThatIsNotThereFailsTheScript) {
    open(manyTracks(1));
    EXPECT_NE(failure(test::deleteFileText("Macintosh HD:none:a.mp3")), "(no failure)");
    EXPECT_THAT(m_desktop.calls, ElementsAre());
}

TEST_F(FinderApplicationTest, FilesHaveNoLock) {
    open(manyTracks(1));
    const std::string alias = "alias \"" + hfsPath(m_folder.write("a.mp3", "")).value() + "\"";
    EXPECT_EQ(run("tell application \"Finder\" to get locked of " + alias),
              Descriptor(Descriptor::Value(false)));
    EXPECT_THAT(failure("tell application \"Finder\" to set locked of " + alias + " to true"),
                HasSubstr("files cannot be locked here"));
}

TEST_F(FinderApplicationTest, AFileKeepsItsName) {
    open(manyTracks(1));
    const std::string alias = "alias \"" + hfsPath(m_folder.write("a.mp3", "")).value() + "\"";
    const std::string refused =
        failure("tell application \"Finder\" to set name of " + alias + " to \"b.mp3\"");
    EXPECT_NE(refused, "(no failure)");
    EXPECT_THAT(refused, Not(HasSubstr("locked")));
}

TEST_F(FinderApplicationTest, FinderKnowsItsName) {
    open(manyTracks(1));
    EXPECT_EQ(text("tell application \"Finder\" to get name"), "Finder");
}

TEST_F(FinderApplicationTest, AFileGoesAfterTheDeletionsThatWereToldBefore) {
    open(manyTracks(2));
    const std::string path = m_folder.write("a.mp3", "sound");
    run(test::deleteTrackText(test::persistentIdOf(0)));
    run(test::deleteFileText(hfsPath(path).value()));
    EXPECT_EQ(LibraryDocument::open(m_path).value()->trackCount(), 1);
    EXPECT_THAT(m_desktop.calls, ElementsAre("trash " + path));
}

TEST_F(FinderApplicationTest, AFileStaysWhereTheLibraryCannotBeWritten) {
    open(manyTracks(2));
    const std::string path = m_folder.write("a.mp3", "sound");
    run(test::deleteTrackText(test::persistentIdOf(0)));
    std::filesystem::remove(m_path);
    EXPECT_THAT(failure(test::deleteFileText(hfsPath(path).value())), HasSubstr("cannot find "));
    EXPECT_THAT(m_desktop.calls, ElementsAre());
}

TEST_F(FinderApplicationTest, WhatTheTrashRefusesAfterAWriteFailsTheScriptToo) {
    open(manyTracks(2));
    m_desktop.recordingTrash.refusal = "the disk has no Trash";
    const std::string path = m_folder.write("a.mp3", "sound");
    run(test::deleteTrackText(test::persistentIdOf(0)));
    EXPECT_THAT(failure(test::deleteFileText(hfsPath(path).value())), HasSubstr("the disk has no Trash"));
}

} // namespace
} // namespace songsweep
