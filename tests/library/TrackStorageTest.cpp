// SPDX-License-Identifier: MIT
#include "library/TrackStorage.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace songsweep {
namespace {

TEST(TrackRecord, BeginsWithTheInitialValues) {
    TrackStorage storage;
    const TrackRecord& record = storage.makeRecord();
    EXPECT_EQ(record.name, "");
    EXPECT_EQ(record.pid, "0");
    EXPECT_EQ(record.playcount, "0");
    EXPECT_EQ(record.rating, 0);
    EXPECT_EQ(record.gid, 0);
    EXPECT_EQ(record.dateaddedv, 0);
    EXPECT_FALSE(record.checkbox || record.showid || record.hasartwork || record.isfile || record.isdead);
}

TEST(TrackStorage, KeepsRecordsAtTheirAddresses) {
    TrackStorage storage;
    std::vector<TrackRecord*> records;
    for (int i = 0; i < 50'000; ++i) {
        records.push_back(&storage.makeRecord());
        records.back()->gid = i;
    }
    for (int i = 0; i < 50'000; ++i)
        ASSERT_EQ(records[static_cast<std::size_t>(i)]->gid, i);
}

TEST(TrackStorage, CopiesTexts) {
    TrackStorage storage;
    std::string source = "Song";
    const Text text = storage.store(source);
    source = "gone";
    EXPECT_EQ(text, "Song");
    EXPECT_NE(storage.store("x").c_str(), storage.store("x").c_str());
    EXPECT_EQ(storage.store(""), "");
}

TEST(TrackStorage, KeepsTextsLargerThanAnyChunk) {
    TrackStorage storage;
    const std::string large(5'000'000, 'l');
    const Text before = storage.store("before");
    const Text text = storage.store(large);
    const Text after = storage.store("after");
    EXPECT_EQ(text, large);
    EXPECT_EQ(before, "before");
    EXPECT_EQ(after, "after");
}

TEST(TrackStorage, InternsEqualTextsOnce) {
    TrackStorage storage;
    std::vector<Text> first;
    for (int i = 0; i < 20'000; ++i)
        first.push_back(storage.intern("Album " + std::to_string(i)));
    for (int i = 0; i < 20'000; ++i) {
        const std::string text = "Album " + std::to_string(i);
        const Text again = storage.intern(text);
        ASSERT_EQ(again.c_str(), first[static_cast<std::size_t>(i)].c_str());
        ASSERT_EQ(again, text);
    }
}

TEST(TrackStorage, LooksAtTheLikelyTextFirst) {
    TrackStorage storage;
    const Text stored = storage.store("Artist");
    EXPECT_EQ(storage.intern("Artist", stored).c_str(), stored.c_str());
    EXPECT_EQ(storage.intern("Artists", stored), "Artists");
    EXPECT_EQ(storage.intern("Artis", stored), "Artis");
    EXPECT_EQ(storage.intern("", stored), "");
}

TEST(TrackStorage, EndsATextAtItsFirstZero) {
    TrackStorage storage;
    const Text a = storage.intern("a");
    const std::string_view zeros("a\0\0\0\0\0\0\0", 8);
    EXPECT_EQ(storage.intern(zeros, a).c_str(), a.c_str());
    EXPECT_EQ(storage.intern(zeros).c_str(), a.c_str());
    EXPECT_EQ(storage.intern(std::string_view("\0\0", 2), a), "");
}

TEST(TrackStorage, KeepsTheTextsWhenItForgetsTheirIndex) {
    TrackStorage storage;
    const Text text = storage.intern("Artist");
    storage.forgetInterned();
    EXPECT_EQ(text, "Artist");
    EXPECT_EQ(storage.intern("Artist"), "Artist");
}

TEST(TrackStorage, LetsAStoredTextBeShortenedInPlace) {
    TrackStorage storage;
    const Text text = storage.store("a%20b");
    const Text next = storage.store("next");
    const std::span<char> bytes = storage.bytes(text);
    ASSERT_EQ(bytes.size(), 5U);
    bytes[1] = ' ';
    bytes[2] = 'b';
    bytes[3] = '\0';
    EXPECT_EQ(text, "a b");
    EXPECT_EQ(next, "next");
}

} // namespace
} // namespace songsweep
