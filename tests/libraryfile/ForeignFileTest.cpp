// SPDX-License-Identifier: MIT
#include "libraryfile/ForeignFile.h"

#include "support/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <filesystem>

namespace songsweep {
namespace {

using test::TemporaryFolder;

class ForeignFile : public ::testing::Test {
  protected:
    std::string told(const std::string& name, const std::string& bytes) const {
        return foreignFile(m_folder.write(name, bytes)).value_or("");
    }

    TemporaryFolder m_folder;
};

TEST_F(ForeignFile, IsTheDatabaseOfITunesOrMusic) {
    EXPECT_EQ(
        told("iTunes Library.itl", "hdfm\1\2\3"),
        "“iTunes Library.itl” is the database of iTunes, which only iTunes itself can read. In iTunes or "
        "Music, choose File > Library > Export Library..., and open the XML file that it saves.");
    EXPECT_TRUE(
        told("Library.musicdb", "hfma1234").starts_with("“Library.musicdb” is the database of Music"));
}

TEST_F(ForeignFile, IsTheBundleOfMusic) {
    const std::string bundle = m_folder.path() + "/Music Library.musiclibrary";
    std::filesystem::create_directory(bundle);
    EXPECT_TRUE(foreignFile(bundle).value_or("").starts_with("“Music Library.musiclibrary” is the database"));
}

TEST_F(ForeignFile, IsAnArchiveWhateverItsName) {
    const std::string sentence = " is an archive. Unpack it, and open the library's XML file from it.";
    EXPECT_EQ(told("Library.zip", "PK\x03\x04..."), "“Library.zip”" + sentence);
    EXPECT_EQ(told("Library.xml", "\x1f\x8b\b..."), "“Library.xml”" + sentence);
}

TEST_F(ForeignFile, IsABinaryPropertyListOrAnEmptyFile) {
    EXPECT_TRUE(
        told("Library.xml", "bplist00").starts_with("“Library.xml” is a property list in its binary"));
    EXPECT_TRUE(told("Library.xml", "").starts_with("“Library.xml” is empty."));
}

TEST_F(ForeignFile, IsNoLibraryFileNorWhatCannotBeLookedAt) {
    EXPECT_EQ(told("Library.xml", "<?xml version=\"1.0\"?>"), "");
    EXPECT_EQ(told("Short.xml", "hd"), "");
    EXPECT_FALSE(foreignFile(m_folder.path() + "/nowhere.xml"));
    EXPECT_FALSE(foreignFile(m_folder.path()));
}

} // namespace
} // namespace songsweep
