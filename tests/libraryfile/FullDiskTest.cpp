// SPDX-License-Identifier: MIT
#include "libraryfile/CleanupForesight.h"
#include "libraryfile/CleanupRecord.h"
#include "libraryfile/LibraryDocument.h"
#include "libraryfile/LibraryFixture.h"
#include "libraryfile/SmallDisk.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <set>

namespace songsweep {
namespace {

using test::contentOf;
using test::Folder;
using test::persistentIdOf;

constexpr int trackCount = 600;

class FullDisk : public testing::Test {
  protected:
    void SetUp() override {
        if (!m_disk.isMounted()) GTEST_SKIP() << "mounting a disk is not permitted";
        m_text = test::manyTracks(trackCount);
        std::ofstream(m_path, std::ios::binary) << m_text;
    }

    std::vector<std::string> namesOnDisk() const {
        std::vector<std::string> names;
        for (const auto& entry : std::filesystem::directory_iterator(m_disk.path()))
            names.push_back(entry.path().filename().string());
        std::sort(names.begin(), names.end());
        return names;
    }

    Folder m_folder;
    test::SmallDisk m_disk{m_folder.pathOf("disk"), 8};
    std::string m_path = m_disk.path() + "/library.xml";
    std::string m_text;
};

TEST_F(FullDisk, ACleanUpBeginsOnlyWhereItCanEnd) {
    const std::size_t size = m_text.size();
    int begun = 0;
    int refused = 0;
    for (std::size_t room = 0; room < 4 * size; room += size / 6) {
        SCOPED_TRACE(room);
        m_disk.leaveFree(4 << 20);
        std::ofstream(m_path, std::ios::binary) << m_text;
        m_disk.leaveFree(room);
        auto library = LibraryDocument::open(m_path);
        ASSERT_TRUE(library);
        const auto began = library.value()->beginCleanup({"a test"});
        if (!began) {
            EXPECT_EQ(began.error().code, Error::Code::noSpace);
            ++refused;
            EXPECT_THAT(namesOnDisk(), testing::ElementsAre("filler", "library.xml", "lost+found"));
            EXPECT_TRUE(contentOf(m_path) == m_text);
            continue;
        }
        ++begun;
        m_disk.leaveFree(0); // Somebody else takes all that is left.
        ASSERT_TRUE(library.value()->remove(0));
        const auto written = library.value()->flush();
        EXPECT_TRUE(written) << written.error().message;
        EXPECT_TRUE(contentOf(m_path) == test::withoutTracks(m_text, {1000}));
        EXPECT_TRUE(contentOf(library.value()->backup()) == m_text);
        const std::string backup = library.value()->backup();
        library.value().reset();
        EXPECT_THAT(namesOnDisk(), testing::ElementsAre("filler", testing::_, "library.xml", "lost+found"));
        std::filesystem::remove(backup);
    }
    EXPECT_GT(begun, 2);
    EXPECT_GT(refused, 2);
}

TEST_F(FullDisk, IsForeseen) {
    const auto room = foreseeCleanup(m_path, {});
    ASSERT_TRUE(room);
    EXPECT_EQ(room.value().folder, m_disk.path());
    EXPECT_GT(room.value().bytes, 2 * m_text.size());
    m_disk.leaveFree(m_text.size());
    const auto foreseen = foreseeCleanup(m_path, {});
    ASSERT_FALSE(foreseen);
    EXPECT_EQ(foreseen.error().code, Error::Code::noSpace);
}

TEST_F(FullDisk, IsForeseenForTheRecordToo) {
    const auto empty = foreseeCleanup(m_path, {});
    ASSERT_TRUE(empty);
    m_disk.leaveFree(empty.value().bytes + (256 << 10)); // ext4 keeps some back
    EXPECT_TRUE(foreseeCleanup(m_path, {1, 100}));
    EXPECT_FALSE(foreseeCleanup(m_path, {1000, 0}));
    EXPECT_FALSE(foreseeCleanup(m_path, {1, 1 << 20}));
}

TEST_F(FullDisk, EveryWriteOfACleanUpHasItsRoom) {
    auto library = LibraryDocument::open(m_path);
    ASSERT_TRUE(library);
    ASSERT_TRUE(library.value()->beginCleanup({"a test"}));
    std::set<int> ids;
    for (int n = 0; n < 5; ++n) {
        m_disk.leaveFree(0);
        for (const auto track : library.value()->tracksWithPersistentId(persistentIdOf(n)))
            ASSERT_TRUE(library.value()->remove(track));
        const auto written = library.value()->flush();
        ASSERT_TRUE(written) << written.error().message;
        ids.insert(1000 + 2 * n);
        EXPECT_TRUE(contentOf(m_path) == test::withoutTracks(m_text, ids));
    }
}

TEST_F(FullDisk, AVersionThatSomebodyReadsIsNotWrittenOver) {
    auto library = LibraryDocument::open(m_path);
    ASSERT_TRUE(library);
    ASSERT_TRUE(library.value()->beginCleanup({"a test"}));
    m_disk.leaveFree(0);
    std::ifstream reader(m_path, std::ios::binary);
    std::string begin(1000, ' ');
    reader.read(begin.data(), 1000);
    for (int n = 0; n < 2; ++n) {
        ASSERT_TRUE(library.value()->remove(0));
        static_cast<void>(library.value()->flush()); // The second has no room.
    }
    const std::string rest(std::istreambuf_iterator<char>(reader), {});
    EXPECT_TRUE(begin + rest == m_text);
}

TEST_F(FullDisk, ARecordThatIsPlannedHasRoomForAllThatComes) {
    RecordHeading heading;
    heading.backup = m_path;
    heading.tracks = 2000;
    auto created = CleanupRecord::create(heading);
    ASSERT_TRUE(created);
    CleanupRecord record = std::move(created).value();
    for (int n = 0; n < 2000; ++n)
        record.plan({persistentIdOf(n), n, "Song", "Artist", "/music/a song.mp3", "", {}});
    ASSERT_TRUE(record.planned());
    m_disk.leaveFree(0);
    EXPECT_TRUE(record.writing(2000));
    for (std::size_t n = 0; n < 2000; ++n) {
        record.trashed(n, {"/home/somebody/.local/share/Trash", "a song with a rather long name.mp3"});
        record.outcome(n, {RecordedOutcome::Track::deleted, RecordedOutcome::File::trashed, ""});
    }
    const auto ended = record.end(RecordEnd::How::complete, "");
    EXPECT_TRUE(ended) << ended.error().message;
    EXPECT_TRUE(RecordedCleanup::read(record.path()).value().end);
}

TEST_F(FullDisk, ARecordWithoutRoomIsNotBegun) {
    RecordHeading heading;
    heading.backup = m_path;
    heading.tracks = 20000;
    auto created = CleanupRecord::create(heading);
    ASSERT_TRUE(created);
    CleanupRecord record = std::move(created).value();
    m_disk.leaveFree(256 << 10);
    for (int n = 0; n < 20000; ++n)
        record.plan({persistentIdOf(n), n, "Song", "Artist", "", "", {}});
    const auto planned = record.planned();
    ASSERT_FALSE(planned);
    EXPECT_EQ(planned.error().code, Error::Code::noSpace);
}

} // namespace
} // namespace songsweep
