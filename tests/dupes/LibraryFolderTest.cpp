// SPDX-License-Identifier: MIT
#include "dupes/LibraryFolder.h"

#include "dupes/MarkRows.h"
#include "platform/Files.h"
#include "support/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <filesystem>

namespace songsweep {
namespace {

constexpr const char* composed = "Bj\u00f6rk";
constexpr const char* decomposed = "Bjo\u0308rk";

class LibraryFolderTest : public ::testing::Test {
  protected:
    void addTrack(const std::string& location) { m_rows.add(1).location = m_rows.text(location); }
    std::string spelled(const std::string& folder) const {
        return folderInLibrary(m_rows.rows(), folder, Files(m_map));
    }

    test::TemporaryFolder m_folder;
    test::MarkRows m_rows;
    PathMap m_map;
};

TEST_F(LibraryFolderTest, LosesItsTrailingSlash) {
    addTrack("/m/Old/a.mp3");
    EXPECT_EQ(spelled("/m/Old//"), "/m/Old");
    EXPECT_EQ(spelled("/elsewhere/"), "/elsewhere");
    EXPECT_EQ(spelled("/"), "/");
    EXPECT_EQ(spelled(""), "");
}

TEST_F(LibraryFolderTest, OfAnotherMachineIsKnownByItsPlaceHere) {
    m_map.add("/C:/Music", "/media/music");
    addTrack("/C:/Music/Old/1/a.mp3");
    EXPECT_EQ(spelled("/media/music/Old/"), "/C:/Music/Old");
    EXPECT_EQ(spelled("/media/music"), "/C:/Music");
    EXPECT_EQ(spelled("/C:/Music/Old"), "/C:/Music/Old");
    EXPECT_EQ(spelled("/media/musical"), "/media/musical");
}

TEST_F(LibraryFolderTest, IsKnownInEitherUnicodeForm) {
    addTrack("/m/" + std::string(decomposed) + "/a.mp3");
    EXPECT_EQ(spelled("/m/" + std::string(composed)), "/m/" + std::string(decomposed));
    addTrack("/n/" + std::string(composed) + "/a.mp3");
    EXPECT_EQ(spelled("/n/" + std::string(decomposed)), "/n/" + std::string(composed));
}

TEST_F(LibraryFolderTest, IsKnownThroughALink) {
    m_folder.write("real/a.mp3", "music");
    std::filesystem::create_symlink(m_folder.path() + "/real", m_folder.path() + "/link");
    addTrack(m_folder.path() + "/link/a.mp3");
    EXPECT_EQ(spelled(m_folder.path() + "/real"), m_folder.path() + "/link");
    EXPECT_EQ(spelled(m_folder.path() + "/link/../real"), m_folder.path() + "/link");
}

} // namespace
} // namespace songsweep
