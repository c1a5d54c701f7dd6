// SPDX-License-Identifier: MIT
#include "delete/StayingCopies.h"

#include "delete/DeleteFixture.h"

#include <gtest/gtest.h>

namespace songsweep {
namespace {

class CountingFiles final : public Files {
  public:
    std::optional<FileAttributes> attributes(const std::string& path) const override {
        ++looks;
        return Files::attributes(path);
    }
    mutable int looks = 0;
};

class StayingCopiesTest : public test::DeleteFixture {};

TEST_F(StayingCopiesTest, AreLookedAtAgainEachTime) {
    const TrackRecord& a = addFile("A", true, "a.mp3");
    addFile("B", false, "b.mp3");
    addFile("C", false, "c.mp3");
    StayingCopies copies(m_list.rows, {1}, m_files);
    EXPECT_TRUE(copies.isLeftOf(a));
    std::filesystem::remove(path("b.mp3"));
    EXPECT_TRUE(copies.isLeftOf(a));
    m_folder.write("c.mp3", "");
    EXPECT_FALSE(copies.isLeftOf(a));
}

TEST_F(StayingCopiesTest, OfSongsThatWereGivenUpAreNotMissed) {
    const TrackRecord& a = addFile("A", true, "a.mp3");
    StayingCopies copies(m_list.rows, {}, m_files);
    EXPECT_TRUE(copies.isLeftOf(a));
}

TEST_F(StayingCopiesTest, DoNotStandForAnotherSong) {
    const TrackRecord& a = addFile("A", true, "a.mp3");
    add(2, "B", true, path("b.mp3"));
    add(2, "C", false, m_folder.write("c.mp3", "c"));
    StayingCopies copies(m_list.rows, {1, 2}, m_files);
    EXPECT_FALSE(copies.isLeftOf(a));
    EXPECT_TRUE(copies.isLeftOf(*m_list.rows.at(1)));
}

TEST_F(StayingCopiesTest, AreAlsoMarkedTracksThatCannotBeDeleted) {
    const TrackRecord& a = addFile("A", true, "a.mp3");
    addFile("0", true, "b.mp3");
    StayingCopies copies(m_list.rows, {1}, m_files);
    EXPECT_TRUE(copies.isLeftOf(a));
}

TEST_F(StayingCopiesTest, CostLooksThatAreLinearInTheRows) {
    constexpr int count = 100;
    for (int copy = 0; copy < count; ++copy) {
        add(1, "A", true, path("a.mp3"));
        add(1, "B", false, path("gone.mp3"));
    }
    addFile("C", false, "c.mp3");
    const CountingFiles files;
    StayingCopies copies(m_list.rows, {1}, files);
    int left = 0;
    for (const TrackRecord* const row : m_list.rows)
        left += row->checkbox && copies.isLeftOf(*row) ? 1 : 0;
    EXPECT_EQ(left, count);
    EXPECT_EQ(files.looks, 2 * count);
}

} // namespace
} // namespace songsweep
