// SPDX-License-Identifier: MIT
#include "TrashFixture.h"

#include <QRegularExpression>

#include <gtest/gtest.h>
#include <unistd.h>

#include <fstream>
#include <set>
#include <thread>

namespace songsweep {
namespace {

namespace fs = std::filesystem;

using TrashTest = test::TrashFixture;
using test::contentsOf;
using test::listTrash;
using test::Mount;
using test::Trashed;

TEST_F(TrashTest, ListsAFileAndRestoresIt) {
    const std::string path = m_folder.write("Abba/SOS.mp3", "music");
    ASSERT_TRUE(m_trash.moveToTrash(path));
    EXPECT_FALSE(fs::exists(path));

    const std::vector<Trashed> trashed = list();
    ASSERT_EQ(trashed.size(), 1U);
    EXPECT_EQ(trashed[0].original, path);
    const QRegularExpression date(QStringLiteral("^\\d{4}-\\d\\d-\\d\\dT\\d\\d:\\d\\d:\\d\\d$"));
    EXPECT_TRUE(date.match(QString::fromStdString(trashed[0].date)).hasMatch()) << trashed[0].date;

    fs::rename(trashed[0].file, trashed[0].original);
    fs::remove(trashed[0].record);
    EXPECT_EQ(m_folder.read("Abba/SOS.mp3"), "music");
}

TEST_F(TrashTest, KeepsTheNameOfEveryFile) {
    const std::string names[] = {"100%25.mp3",   "a b.mp3",   "it's \"it\".mp3", "back\\slash",
                                 "line\nfeed",   "a:b;c#d?e", "caf\u00e9.mp3",   "cafe\u0301.mp3",
                                 "no text \xff", " blanks "};
    for (const std::string& name : names) {
        const std::string path = m_folder.write(name, name);
        ASSERT_TRUE(m_trash.moveToTrash(path)) << name;
        const std::vector<Trashed> trashed = list();
        ASSERT_EQ(trashed.size(), 1U) << name;
        EXPECT_EQ(trashed[0].original, path);
        EXPECT_EQ(contentsOf(trashed[0].file), name);
        fs::remove_all(m_place);
    }
}

TEST_F(TrashTest, KeepsTwoFilesOfOneName) {
    ASSERT_TRUE(m_trash.moveToTrash(m_folder.write("one/a.mp3", "1")));
    ASSERT_TRUE(m_trash.moveToTrash(m_folder.write("two/a.mp3", "2")));
    std::set<std::string> contents;
    for (const Trashed& trashed : list())
        contents.insert(contentsOf(trashed.file));
    EXPECT_EQ(contents, (std::set<std::string>{"1", "2"}));
}

TEST_F(TrashTest, KeepsManyFilesOfOneName) {
    constexpr int count = 60; // of which the program itself moves those behind the first few
    const std::string name = "100% caf\u00e9 \xff.b.mp3";
    std::string lastRecord;
    for (int number = 1; number <= count; ++number) {
        const std::string path = m_folder.write("Abba/" + name, std::to_string(number));
        const Result<TrashedFile> trashed = m_trash.moveToTrash(path);
        ASSERT_TRUE(trashed) << trashed.error().message;
        EXPECT_EQ(trashed.value().name,
                  "100% caf\u00e9 \xff" + (number == 1 ? "" : "." + std::to_string(number)) + ".b.mp3");
        EXPECT_EQ(contentsOf(trashed.value().path()), std::to_string(number));
        std::string record = contentsOf(m_place / "info" / (trashed.value().name + ".trashinfo"));
        record.resize(record.find("DeletionDate="));
        EXPECT_TRUE(number == 1 || record == lastRecord) << record;
        lastRecord = record;
    }
    for (const Trashed& trashed : list())
        EXPECT_EQ(trashed.original, m_folder.path() + "/Abba/" + name);
    EXPECT_EQ(list().size(), std::size_t{count});
}

TEST_F(TrashTest, GoesAroundNamesThatOthersTookMeanwhile) {
    constexpr int few = 20;
    for (int number = 1; number <= few; ++number)
        ASSERT_TRUE(m_trash.moveToTrash(m_folder.write("a.mp3", "music")));
    std::ofstream(m_place / "info/a.21.mp3.trashinfo") << "another program's";
    std::ofstream(m_place / "files/a.22.mp3") << "without a record";
    const Result<TrashedFile> trashed = m_trash.moveToTrash(m_folder.write("a.mp3", "the next"));
    ASSERT_TRUE(trashed);
    EXPECT_EQ(trashed.value().name, "a.23.mp3");
    EXPECT_EQ(contentsOf(trashed.value().path()), "the next");
    EXPECT_EQ(contentsOf(m_place / "info/a.21.mp3.trashinfo"), "another program's");
    EXPECT_EQ(contentsOf(m_place / "files/a.22.mp3"), "without a record");
    EXPECT_FALSE(fs::exists(m_place / "info/a.22.mp3.trashinfo"));
}

TEST_F(TrashTest, TakesALinkAndLeavesItsTarget) {
    const std::string target = m_folder.write("a.mp3", "music");
    const std::string link = m_folder.path() + "/link";
    fs::create_symlink(target, link);
    ASSERT_TRUE(m_trash.moveToTrash(link));
    EXPECT_TRUE(fs::exists(target));
    EXPECT_FALSE(fs::is_symlink(link));
    EXPECT_EQ(list().size(), 1U);
}

TEST_F(TrashTest, SaysThatAFileIsMissing) {
    const Result<TrashedFile> result = m_trash.moveToTrash(m_folder.path() + "/missing.mp3");
    ASSERT_FALSE(result);
    EXPECT_EQ(result.error().code, Error::Code::notFound);
    EXPECT_NE(result.error().message.find("missing.mp3"), std::string::npos) << result.error().message;
    EXPECT_TRUE(list().empty());
}

TEST_F(TrashTest, RefusesARelativePath) {
    EXPECT_FALSE(m_trash.moveToTrash("a.mp3"));
    EXPECT_FALSE(m_trash.moveToTrash(""));
}

TEST_F(TrashTest, LeavesAFileWhoseRecordWouldHaveTooLongAName) {
    const std::string path = m_folder.write(std::string(255, 'a'), "music");
    const Result<TrashedFile> result = m_trash.moveToTrash(path);
    ASSERT_FALSE(result);
    EXPECT_FALSE(result.error().message.empty());
    EXPECT_TRUE(fs::exists(path));
    EXPECT_TRUE(list().empty());
}

TEST_F(TrashTest, LeavesTheFileWhereTheTrashCannotBeMade) {
    const std::string path = m_folder.write("a.mp3", "music");
    std::ofstream(m_place) << "no folder";
    const Result<TrashedFile> result = m_trash.moveToTrash(path);
    ASSERT_FALSE(result);
    EXPECT_EQ(m_folder.read("a.mp3"), "music");
}

TEST_F(TrashTest, TakesFilesFromManyThreads) {
    std::vector<std::thread> threads;
    threads.reserve(4);
    for (int thread = 0; thread < 4; ++thread) {
        threads.emplace_back([this, thread] {
            for (int file = 0; file < 10; ++file) {
                const std::string name = std::to_string(thread) + "/" + std::to_string(file);
                EXPECT_TRUE(m_trash.moveToTrash(m_folder.write(name, name)));
            }
        });
    }
    for (std::thread& thread : threads)
        thread.join();
    EXPECT_EQ(list().size(), 40U);
}

TEST_F(TrashTest, LeavesAFileOnAMountThatHasNone) {
    const Mount mount(m_folder.path() + "/mount",
                      {QStringLiteral("-t"), QStringLiteral("tmpfs"), QStringLiteral("tmpfs")});
    if (!mount) GTEST_SKIP() << "mounting is not permitted";
    const std::string path = m_folder.write("mount/a.mp3", "music");
    const Result<TrashedFile> result = m_trash.moveToTrash(path);
    ASSERT_FALSE(result);
    EXPECT_EQ(result.error().code, Error::Code::notSupported);
    EXPECT_EQ(m_folder.read("mount/a.mp3"), "music");
    EXPECT_TRUE(list().empty());
}

TEST_F(TrashTest, OfAnotherMountIsOnThatMount) {
    const std::string image = m_folder.write("image", std::string(8 << 20, '\0'));
    if (!test::makeFileSystem(image)) GTEST_SKIP() << "there is no mkfs.ext4";
    const Mount mount(m_folder.path() + "/mount",
                      {QStringLiteral("-o"), QStringLiteral("loop"), QString::fromStdString(image)});
    if (!mount) GTEST_SKIP() << "mounting is not permitted";
    const std::string path = m_folder.write("mount/Abba/SOS.mp3", "music");

    ASSERT_TRUE(m_trash.moveToTrash(path));

    EXPECT_FALSE(fs::exists(path));
    EXPECT_TRUE(list().empty());
    const auto trashed = listTrash(m_folder.path() + "/mount/.Trash-" + std::to_string(::getuid()));
    ASSERT_EQ(trashed.size(), 1U);
    EXPECT_EQ(trashed[0].original, "Abba/SOS.mp3") << "relative to the mount";
    EXPECT_EQ(contentsOf(trashed[0].file), "music");
}

} // namespace
} // namespace songsweep
