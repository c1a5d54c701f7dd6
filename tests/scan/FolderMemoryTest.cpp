// SPDX-License-Identifier: MIT
#include "scan/FolderMemory.h"

#include "support/TemporaryFolder.h"

#include <gtest/gtest.h>

namespace songsweep::test {

namespace {

FolderMemory sampleMemory() {
    FolderMemory memory;
    memory.library = {.device = 1, .inode = 2, .size = 3, .modificationNanoseconds = 4};
    memory.tracks.push_back({.path = "a\nb.mp3",
                             .size = 5,
                             .modificationNanoseconds = -6,
                             .persistentId = ~0ULL,
                             .trackId = 7,
                             .dateAdded = 8,
                             .duration = 9,
                             .soundHash = 10,
                             .entry = {11, 12}});
    memory.playlists.push_back({.path = "x.m3u", .size = 1, .modificationNanoseconds = 2});
    memory.mounted.push_back({.path = "disk", .device = 13, .isLink = true});
    return memory;
}

} // namespace

TEST(FolderMemory, ComesBackAsItWas) {
    const TemporaryFolder folder;
    const std::string path = folder.path() + "/a.memory";
    ASSERT_TRUE(sampleMemory().write(path));
    const std::optional<FolderMemory> memory = FolderMemory::read(path);
    ASSERT_TRUE(memory);
    EXPECT_EQ(memory->library, sampleMemory().library);
    EXPECT_EQ(memory->tracks, sampleMemory().tracks);
    ASSERT_EQ(memory->playlists.size(), 1U);
    EXPECT_EQ(memory->playlists[0].path, "x.m3u");
    EXPECT_EQ(memory->mounted, sampleMemory().mounted);
}

TEST(FolderMemory, IsForgottenWhereItIsDamaged) {
    const TemporaryFolder folder;
    const std::string path = folder.path() + "/a.memory";
    ASSERT_TRUE(sampleMemory().write(path));
    const std::string good = folder.read("a.memory");
    for (std::size_t size = 0; size < good.size(); ++size)
        EXPECT_FALSE(FolderMemory::read(folder.write("a.memory", good.substr(0, size)))) << size;
    for (std::size_t place = 0; place < good.size(); ++place) {
        std::string bytes = good;
        bytes[place] = static_cast<char>(bytes[place] ^ 1);
        EXPECT_FALSE(FolderMemory::read(folder.write("a.memory", bytes))) << place;
    }
    EXPECT_FALSE(FolderMemory::read(folder.path() + "/none"));
}

} // namespace songsweep::test
