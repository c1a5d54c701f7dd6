// SPDX-License-Identifier: MIT
#include "TrashFixture.h"

#include <gmock/gmock.h>
#include <unistd.h>

#include <fstream>

namespace songsweep {
namespace {

namespace fs = std::filesystem;
using test::contentsOf;
using test::Mount;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::SizeIs;
using Clock = std::chrono::system_clock;

class TrashReturnTest : public test::TrashFixture {
  protected:
    TrashedFile trash(const std::string& path) {
        const Result<TrashedFile> trashed = m_trash.moveToTrash(path);
        EXPECT_TRUE(trashed) << trashed.error().message;
        return trashed ? trashed.value() : TrashedFile();
    }
    std::string record(const TrashedFile& file) const {
        return (m_place / "info" / (file.name + ".trashinfo")).string();
    }
};

TEST_F(TrashReturnTest, ATrashedFileIsWhereItsNameSays) {
    const std::string path = m_folder.write("a.b.mp3", "first");
    EXPECT_EQ(trash(path).path(), m_place / "files/a.b.mp3");
    for (int number = 2; number < 5; ++number) {
        m_folder.write("a.b.mp3", std::to_string(number));
        const TrashedFile file = trash(path);
        EXPECT_EQ(file.name, "a." + std::to_string(number) + ".b.mp3");
        EXPECT_EQ(contentsOf(file.path()), std::to_string(number));
    }
}

TEST_F(TrashReturnTest, AFileIsFoundUnderANameThatBecameFree) {
    const std::string path = m_folder.path() + "/a";
    for (int number = 1; number < 5; ++number) {
        m_folder.write("a", std::to_string(number));
        trash(path);
    }
    fs::remove(m_place / "files/a.2");
    fs::remove(m_place / "info/a.2.trashinfo");
    m_folder.write("a", "again");
    EXPECT_EQ(contentsOf(trash(path).path()), "again");
}

TEST_F(TrashReturnTest, EveryNameComesBackToItsPath) {
    for (const std::string name : {"100%25.mp3", "it's \"it\".mp3", "back\\slash", "line\nfeed", "a:b;c#d?e",
                                   "cafe\u0301.mp3", "no text \xff", " blanks ", ".hidden"}) {
        const std::string path = m_folder.write("Abba/" + name, name);
        const Result<RestoredFile> restored = m_trash.restoreFromTrash(trash(path), path);
        ASSERT_TRUE(restored) << name << restored.error().message;
        EXPECT_THAT(restored.value().madeFolders, IsEmpty());
        EXPECT_EQ(m_folder.read("Abba/" + name), name);
        EXPECT_THAT(list(), IsEmpty());
        EXPECT_TRUE(fs::is_empty(m_place / "files"));
    }
}

TEST_F(TrashReturnTest, MissingFoldersAreMadeAndTold) {
    const std::string path = m_folder.write("Abba/Gold/SOS.mp3", "music");
    const TrashedFile file = trash(path);
    fs::remove_all(m_folder.path() + "/Abba");
    const Result<RestoredFile> restored = m_trash.restoreFromTrash(file, path);
    ASSERT_TRUE(restored);
    EXPECT_THAT(restored.value().madeFolders,
                ElementsAre(m_folder.path() + "/Abba", m_folder.path() + "/Abba/Gold"));
    EXPECT_EQ(contentsOf(path), "music");
}

TEST_F(TrashReturnTest, NothingIsWrittenOver) {
    const std::string path = m_folder.write("a.mp3", "music");
    const TrashedFile file = trash(path);
    m_folder.write("a.mp3", "another");
    const Result<RestoredFile> restored = m_trash.restoreFromTrash(file, path);
    ASSERT_FALSE(restored);
    EXPECT_EQ(restored.error().code, Error::Code::alreadyExists);
    EXPECT_EQ(contentsOf(path), "another");
    EXPECT_EQ(contentsOf(file.path()), "music");
    EXPECT_THAT(list(), SizeIs(1));
}

TEST_F(TrashReturnTest, ALinkThatLeadsNowhereHoldsItsNameToo) {
    const std::string path = m_folder.write("a.mp3", "music");
    const TrashedFile file = trash(path);
    fs::create_symlink("nowhere", path);
    EXPECT_EQ(m_trash.restoreFromTrash(file, path).error().code, Error::Code::alreadyExists);
    EXPECT_TRUE(fs::is_symlink(path));
}

TEST_F(TrashReturnTest, FoldersMadeForAFileThatCannotComeGoAgain) {
    const std::string path = m_folder.write("Abba/SOS.mp3", "music");
    const TrashedFile file = trash(path);
    fs::remove(m_folder.path() + "/Abba");
    const Mount mount(m_folder.path() + "/mount",
                      {QStringLiteral("-t"), QStringLiteral("tmpfs"), QStringLiteral("tmpfs")});
    if (!mount) GTEST_SKIP() << "mounting is not permitted";
    fs::create_symlink("mount", m_folder.path() + "/link");
    std::ofstream(record(file), std::ios::trunc)
        << "[Trash Info]\nPath=" << m_folder.path() << "/link/Abba/SOS.mp3\n";
    EXPECT_FALSE(m_trash.restoreFromTrash(file, m_folder.path() + "/link/Abba/SOS.mp3"));
    EXPECT_FALSE(fs::exists(m_folder.path() + "/mount/Abba"));
    EXPECT_EQ(contentsOf(file.path()), "music");
}

TEST_F(TrashReturnTest, AFileThatLeftTheTrashIsAnErrorOfItsOwn) {
    const std::string path = m_folder.write("a.mp3", "music");
    const TrashedFile file = trash(path);
    fs::remove_all(m_place);
    const Result<RestoredFile> restored = m_trash.restoreFromTrash(file, path);
    ASSERT_FALSE(restored);
    EXPECT_EQ(restored.error().code, Error::Code::notFound);
}

TEST_F(TrashReturnTest, ARecordWhoseFileIsGoneGoesTooUnlessItIsAnotherFiles) {
    const std::string path = m_folder.write("one/a.mp3", "music");
    const TrashedFile file = trash(path);
    fs::rename(file.path(), path);
    EXPECT_FALSE(m_trash.restoreFromTrash(file, m_folder.path() + "/two/a.mp3"));
    EXPECT_TRUE(fs::exists(record(file)));
    EXPECT_EQ(m_trash.restoreFromTrash(file, path).error().code, Error::Code::notFound);
    EXPECT_FALSE(fs::exists(record(file)));
    EXPECT_EQ(contentsOf(path), "music");
}

TEST_F(TrashReturnTest, AnotherFileOfThatNameDoesNotComeInItsPlace) {
    const std::string path = m_folder.write("one/a.mp3", "music");
    const TrashedFile file = trash(path);
    fs::remove_all(m_place);
    ASSERT_EQ(trash(m_folder.write("two/a.mp3", "another")), file);
    EXPECT_EQ(m_trash.restoreFromTrash(file, path).error().code, Error::Code::notFound);
    EXPECT_FALSE(fs::exists(path));
    EXPECT_EQ(contentsOf(file.path()), "another");
}

TEST_F(TrashReturnTest, AFileIsFoundByThePathThatItHad) {
    const Clock::time_point before = Clock::now();
    const std::string path = m_folder.write("one/a.mp3", "music");
    EXPECT_FALSE(m_trash.findInTrash(path, before));
    trash(m_folder.write("two/a.mp3", "another"));
    const TrashedFile file = trash(path);
    EXPECT_EQ(m_trash.findInTrash(path, before), file);
    fs::remove_all(m_folder.path() + "/one");
    EXPECT_EQ(m_trash.findInTrash(path, before), file);
    EXPECT_FALSE(m_trash.findInTrash(path, Clock::now() + std::chrono::seconds(10)));
}

TEST_F(TrashReturnTest, TheFileThatWentLastIsFound) {
    const Clock::time_point before = Clock::now() - std::chrono::hours(2);
    const std::string path = m_folder.write("a.mp3", "old");
    const TrashedFile old = trash(path);
    fs::last_write_time(record(old), fs::file_time_type::clock::now() - std::chrono::hours(1));
    m_folder.write("a.mp3", "new");
    const TrashedFile file = trash(path);
    EXPECT_EQ(m_trash.findInTrash(path, before), file);
    fs::remove(file.path());
    EXPECT_EQ(m_trash.findInTrash(path, before), old);
    EXPECT_FALSE(m_trash.findInTrash(path, Clock::now() - std::chrono::minutes(30)));
}

TEST_F(TrashReturnTest, AVolumesFileComesBackByItsRelativeRecord) {
    const std::string image = m_folder.write("image", std::string(8 << 20, '\0'));
    const std::string top = m_folder.path() + "/mount";
    if (!test::makeFileSystem(image)) GTEST_SKIP() << "there is no mkfs.ext4";
    const Mount mount(top, {QStringLiteral("-o"), QStringLiteral("loop"), QString::fromStdString(image)});
    if (!mount) GTEST_SKIP() << "mounting is not permitted";
    fs::create_symlink("mount", m_folder.path() + "/link");
    fs::create_directory(top + "/.Trash");
    for (const char* const sticky : {"not shared", "shared"}) {
        // The second file goes to the volume's shared Trash.
        if (sticky == std::string("shared")) fs::permissions(top + "/.Trash", fs::perms(01777));
        const Clock::time_point before = Clock::now();
        const std::string path = m_folder.path() + "/link/Abba/SOS.mp3";
        m_folder.write("mount/Abba/SOS.mp3", "music");
        const TrashedFile file = trash(path);
        const std::string user = std::to_string(::geteuid());
        const std::string folder = sticky == std::string("shared") ? ".Trash/" + user : ".Trash-" + user;
        EXPECT_EQ(file.path(), fs::canonical(top).string() + "/" + folder + "/files/SOS.mp3");
        fs::remove(top + "/Abba");
        EXPECT_EQ(m_trash.findInTrash(path, before), file);
        EXPECT_TRUE(m_trash.restoreFromTrash(file, path));
        EXPECT_EQ(contentsOf(path), "music");
    }
}

TEST_F(TrashReturnTest, ManyFilesOfOneNameOfAVolumeHaveRelativeRecords) {
    const std::string image = m_folder.write("image", std::string(8 << 20, '\0'));
    const std::string top = m_folder.path() + "/mount";
    if (!test::makeFileSystem(image)) GTEST_SKIP() << "there is no mkfs.ext4";
    const Mount mount(top, {QStringLiteral("-o"), QStringLiteral("loop"), QString::fromStdString(image)});
    if (!mount) GTEST_SKIP() << "mounting is not permitted";
    fs::create_symlink("mount", m_folder.path() + "/link");
    constexpr int count = 40;
    for (int number = 1; number <= count; ++number) {
        m_folder.write("mount/Abba/SOS.mp3", "music");
        const TrashedFile file = trash(m_folder.path() + "/link/Abba/SOS.mp3");
        const std::string record =
            fs::path(file.trashFolder).parent_path() / "info" / (file.name + ".trashinfo");
        EXPECT_NE(contentsOf(record).find("\nPath=Abba/SOS.mp3\n"), std::string::npos) << contentsOf(record);
    }
}

/// Fills the file system up to some bytes.
void fill(const std::string& folder, std::size_t bytesLeft) {
    std::ofstream(folder + "/left") << std::string(bytesLeft, 'x');
    std::ofstream filler(folder + "/filler");
    while (filler << std::string(1024, 'x') << std::flush) {
    }
    fs::remove(folder + "/left");
}

class FullDiskTest : public TrashReturnTest {
  protected:
    static constexpr int files = 4000;

    void SetUp() override {
        const std::string image = m_folder.write("image", std::string(24 << 20, '\0'));
        if (!test::makeFileSystem(image)) GTEST_SKIP() << "there is no mkfs.ext4";
        m_mount = std::make_unique<Mount>(
            m_top, QStringList{QStringLiteral("-o"), QStringLiteral("loop"), QString::fromStdString(image)});
        if (!*m_mount) GTEST_SKIP() << "mounting is not permitted";
        for (int file = 0; file < files; ++file)
            m_folder.write("mount/songs/" + name(file), name(file));
        fill(m_top, 1 << 20);
    }
    static std::string name(int file) { return "song " + std::to_string(file) + ".mp3"; }
    std::string path(int file) const { return m_top + "/songs/" + name(file); }

    std::string m_top = m_folder.path() + "/mount";
    std::unique_ptr<Mount> m_mount;
};

TEST_F(FullDiskTest, LosesNoFileOfThousands) {
    int trashed = 0;
    int kept = 0;
    for (int file = 0; file < files; ++file) {
        const Result<TrashedFile> result = m_trash.moveToTrash(path(file));
        if (result) {
            ++trashed;
            EXPECT_EQ(contentsOf(result.value().path()), name(file));
        } else {
            ++kept;
            EXPECT_EQ(contentsOf(path(file)), name(file)) << result.error().message;
        }
    }
    EXPECT_GT(trashed, 100);
    EXPECT_GT(kept, 100);
    const auto left = test::listTrash(m_top + "/.Trash-" + std::to_string(::geteuid()));
    EXPECT_THAT(left, SizeIs(trashed)) << "each has a record, and no record is of another";
    for (const test::Trashed& each : left)
        EXPECT_EQ(contentsOf(each.file), fs::path(each.original).filename());
}

TEST_F(FullDiskTest, PromisesNoMoreThanThereIsRoomFor) {
    const std::unique_ptr<TrashCheck> check = m_trash.newCheck();
    int promised = 0;
    while (promised < files && check->add(path(promised)))
        ++promised;
    EXPECT_EQ(check->add(path(files - 1)).error().code, Error::Code::noSpace);
    EXPECT_GT(promised, 100);
    for (int file = 0; file < promised; ++file)
        ASSERT_TRUE(m_trash.moveToTrash(path(file))) << file << " of " << promised;
}

} // namespace
} // namespace songsweep
