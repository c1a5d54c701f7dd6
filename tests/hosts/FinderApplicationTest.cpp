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

} // namespace
} // namespace songsweep
