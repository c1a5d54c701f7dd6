// SPDX-License-Identifier: MIT
#include "sample-library/BulkLibrary.h"

#include "tools/ParsedLibrary.h"

#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <set>

namespace songsweep::sample {
namespace {

class BulkLibraryTest : public ::testing::Test {
  protected:
    BulkOptions options(int tracks, const char* name = "library.xml") const {
        const auto folder = m_folder.path().toStdString();
        return {tracks, folder + '/' + name, folder + "/Music", 7, BulkFiles::nineOfTen};
    }
    static QByteArray bytes(const std::string& path) {
        QFile file(QString::fromStdString(path));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }

    QTemporaryDir m_folder;
};

TEST_F(BulkLibraryTest, AnIndependentParserReadsEveryTrack) {
    ASSERT_TRUE(makeBulkLibrary(options(2000)));
    const auto library = test::ParsedLibrary::read(options(0).file);
    EXPECT_EQ(library.tracks().size(), 2000U);
    ASSERT_EQ(library.playlists().size(), 4U);
    EXPECT_EQ(library.playlists()[0].name, "Library");
    EXPECT_EQ(library.playlists()[0].items, 2000U);
    EXPECT_EQ(library.playlists()[3].items, 40U);
}

TEST_F(BulkLibraryTest, OneTrackOfTenIsADuplicate) {
    ASSERT_TRUE(makeBulkLibrary(options(2000)));
    const auto library = test::ParsedLibrary::read(options(0).file);
    std::set<std::pair<std::string, std::string>> different;
    for (const auto& track : library.tracks())
        different.emplace(track.artist, track.name);
    EXPECT_EQ(different.size(), 1800U);
}

TEST_F(BulkLibraryTest, NineFilesOfTenExistBehindAHandfulOfRealOnes) {
    ASSERT_TRUE(makeBulkLibrary(options(2000)));
    const auto library = test::ParsedLibrary::read(options(0).file);
    const auto exists = [](const auto& track) { return std::filesystem::exists(track.path); };
    EXPECT_EQ(std::count_if(library.tracks().begin(), library.tracks().end(), exists), 1800);
    std::size_t realFiles = 0;
    for (const auto& entry : std::filesystem::recursive_directory_iterator(options(0).musicFolder)) {
        realFiles += entry.is_regular_file() ? 1 : 0;
    }
    EXPECT_EQ(realFiles, 90U);
}

TEST_F(BulkLibraryTest, AllFilesExistWhereAllAreAskedFor) {
    BulkOptions whole = options(2000);
    whole.files = BulkFiles::all;
    ASSERT_TRUE(makeBulkLibrary(whole));
    const auto library = test::ParsedLibrary::read(whole.file);
    const auto exists = [](const auto& track) { return std::filesystem::exists(track.path); };
    EXPECT_TRUE(std::all_of(library.tracks().begin(), library.tracks().end(), exists));
}

TEST_F(BulkLibraryTest, EveryTrackHasAnIdAndAPathOfItsOwn) {
    ASSERT_TRUE(makeBulkLibrary(options(2000)));
    const auto library = test::ParsedLibrary::read(options(0).file);
    std::set<std::string> ids;
    std::set<std::string> paths;
    for (const auto& track : library.tracks()) {
        ids.insert(track.persistentId);
        paths.insert(track.path);
    }
    EXPECT_EQ(ids.size(), 2000U);
    EXPECT_EQ(paths.size(), 2000U);
}

TEST_F(BulkLibraryTest, OneSeedMakesOneLibrary) {
    auto other = options(500, "other.xml");
    other.seed = 8;
    ASSERT_TRUE(makeBulkLibrary(options(500, "first.xml")));
    ASSERT_TRUE(makeBulkLibrary(options(500, "second.xml")));
    ASSERT_TRUE(makeBulkLibrary(other));
    const auto first = bytes(options(0, "first.xml").file);
    EXPECT_FALSE(first.isEmpty());
    EXPECT_EQ(first, bytes(options(0, "second.xml").file));
    EXPECT_NE(first, bytes(other.file));
}

TEST_F(BulkLibraryTest, WithoutFilesNothingButTheLibraryIsMade) {
    auto bare = options(100);
    bare.files = BulkFiles::none;
    ASSERT_TRUE(makeBulkLibrary(bare));
    EXPECT_FALSE(std::filesystem::exists(bare.musicFolder));
}

TEST_F(BulkLibraryTest, SaysWhatCannotBeWritten) {
    auto nowhere = options(10, "no/such/folder/library.xml");
    const auto made = makeBulkLibrary(nowhere);
    ASSERT_FALSE(made);
    EXPECT_NE(made.error().message.find(nowhere.file), std::string::npos);
}

} // namespace
} // namespace songsweep::sample
