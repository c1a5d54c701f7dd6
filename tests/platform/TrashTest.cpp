// SPDX-License-Identifier: MIT
#include "UserFolders.h"
#include "platform/linux/LinuxDesktop.h"
#include "support/TemporaryFolder.h"

#include <QByteArray>
#include <QProcess>
#include <QRegularExpression>
#include <QStringList>

#include <gtest/gtest.h>
#include <sys/mount.h>
#include <unistd.h>

#include <cstring>
#include <set>
#include <thread>

namespace songsweep {
namespace {

namespace fs = std::filesystem;
using test::TemporaryFolder;

struct TrashedFile {
    fs::path file;
    fs::path record;
    std::string original; ///< the path to restore it to, decoded
    std::string date;
};

std::string contentsOf(const fs::path& path) {
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

/// The value of a record's line "NAME=value".
std::string valueOf(const QByteArray& record, const char* name) {
    const qsizetype start = record.indexOf(QByteArray("\n") + name + '=') + qsizetype(std::strlen(name)) + 2;
    return record.mid(start, record.indexOf('\n', start) - start).toStdString();
}

/// What a file manager would list, read by the freedesktop rules.
std::vector<TrashedFile> listTrash(const fs::path& trash) {
    std::vector<TrashedFile> files;
    if (!fs::exists(trash / "info")) return files;
    for (const fs::directory_entry& entry : fs::directory_iterator(trash / "info")) {
        const QByteArray record = QByteArray::fromStdString(contentsOf(entry.path()));
        EXPECT_TRUE(record.startsWith("[Trash Info]\n")) << record.toStdString();
        const QByteArray path = QByteArray::fromStdString(valueOf(record, "Path"));
        files.push_back({trash / "files" / entry.path().stem(), entry.path(),
                         QByteArray::fromPercentEncoding(path).toStdString(),
                         valueOf(record, "DeletionDate")});
    }
    return files;
}

class Trash : public ::testing::Test {
  protected:
    void TearDown() override { fs::remove_all(m_trash); }

    std::vector<TrashedFile> list() const { return listTrash(m_trash); }

    fs::path m_trash = fs::path(test::userData()) / "Trash";
    TemporaryFolder m_folder;
    LinuxDesktop m_desktop;
};

TEST_F(Trash, ListsAFileAndRestoresIt) {
    const std::string path = m_folder.write("Abba/SOS.mp3", "music");
    ASSERT_TRUE(m_desktop.moveToTrash(path));
    EXPECT_FALSE(fs::exists(path));

    const std::vector<TrashedFile> trashed = list();
    ASSERT_EQ(trashed.size(), 1U);
    EXPECT_EQ(trashed[0].original, path);
    const QRegularExpression date(QStringLiteral("^\\d{4}-\\d\\d-\\d\\dT\\d\\d:\\d\\d:\\d\\d$"));
    EXPECT_TRUE(date.match(QString::fromStdString(trashed[0].date)).hasMatch()) << trashed[0].date;

    fs::rename(trashed[0].file, trashed[0].original);
    fs::remove(trashed[0].record);
    EXPECT_EQ(m_folder.read("Abba/SOS.mp3"), "music");
}

TEST_F(Trash, KeepsTheNameOfEveryFile) {
    const std::string names[] = {"100%25.mp3",   "a b.mp3",   "it's \"it\".mp3", "back\\slash",
                                 "line\nfeed",   "a:b;c#d?e", "caf\u00e9.mp3",   "cafe\u0301.mp3",
                                 "no text \xff", " blanks "};
    for (const std::string& name : names) {
        const std::string path = m_folder.write(name, name);
        ASSERT_TRUE(m_desktop.moveToTrash(path)) << name;
        const std::vector<TrashedFile> trashed = list();
        ASSERT_EQ(trashed.size(), 1U) << name;
        EXPECT_EQ(trashed[0].original, path);
        EXPECT_EQ(contentsOf(trashed[0].file), name);
        fs::remove_all(m_trash);
    }
}

TEST_F(Trash, KeepsTwoFilesOfOneName) {
    ASSERT_TRUE(m_desktop.moveToTrash(m_folder.write("one/a.mp3", "1")));
    ASSERT_TRUE(m_desktop.moveToTrash(m_folder.write("two/a.mp3", "2")));
    std::set<std::string> contents;
    for (const TrashedFile& trashed : list())
        contents.insert(contentsOf(trashed.file));
    EXPECT_EQ(contents, (std::set<std::string>{"1", "2"}));
}

TEST_F(Trash, TakesALinkAndLeavesItsTarget) {
    const std::string target = m_folder.write("a.mp3", "music");
    const std::string link = m_folder.path() + "/link";
    fs::create_symlink(target, link);
    ASSERT_TRUE(m_desktop.moveToTrash(link));
    EXPECT_TRUE(fs::exists(target));
    EXPECT_FALSE(fs::is_symlink(link));
    EXPECT_EQ(list().size(), 1U);
}

TEST_F(Trash, SaysThatAFileIsMissing) {
    const Result<void> result = m_desktop.moveToTrash(m_folder.path() + "/missing.mp3");
    ASSERT_FALSE(result);
    EXPECT_EQ(result.error().code, Error::Code::notFound);
    EXPECT_NE(result.error().message.find("missing.mp3"), std::string::npos) << result.error().message;
    EXPECT_TRUE(list().empty());
}

TEST_F(Trash, RefusesARelativePath) {
    EXPECT_FALSE(m_desktop.moveToTrash("a.mp3"));
    EXPECT_FALSE(m_desktop.moveToTrash(""));
}

TEST_F(Trash, LeavesAFileWhoseRecordWouldHaveTooLongAName) {
    const std::string path = m_folder.write(std::string(255, 'a'), "music");
    const Result<void> result = m_desktop.moveToTrash(path);
    ASSERT_FALSE(result);
    EXPECT_FALSE(result.error().message.empty());
    EXPECT_TRUE(fs::exists(path));
    EXPECT_TRUE(list().empty());
}

TEST_F(Trash, LeavesTheFileWhereTheTrashCannotBeMade) {
    const std::string path = m_folder.write("a.mp3", "music");
    std::ofstream(m_trash) << "no folder";
    const Result<void> result = m_desktop.moveToTrash(path);
    ASSERT_FALSE(result);
    EXPECT_EQ(m_folder.read("a.mp3"), "music");
}

TEST_F(Trash, TakesFilesFromManyThreads) {
    std::vector<std::thread> threads;
    threads.reserve(4);
    for (int thread = 0; thread < 4; ++thread) {
        threads.emplace_back([this, thread] {
            for (int file = 0; file < 10; ++file) {
                const std::string name = std::to_string(thread) + "/" + std::to_string(file);
                EXPECT_TRUE(m_desktop.moveToTrash(m_folder.write(name, name)));
            }
        });
    }
    for (std::thread& thread : threads)
        thread.join();
    EXPECT_EQ(list().size(), 40U);
}

/// Another file system below a test's folder for as long as this lives.
class Mount {
  public:
    Mount(const std::string& place, const QStringList& arguments)
        : m_place(place) {
        fs::create_directories(place);
        QProcess mount;
        mount.start(QStringLiteral("mount"), arguments + QStringList{QString::fromStdString(place)});
        m_mounted =
            mount.waitForFinished() && mount.exitStatus() == QProcess::NormalExit && mount.exitCode() == 0;
    }
    Mount(const Mount&) = delete;
    Mount& operator=(const Mount&) = delete;
    ~Mount() {
        if (m_mounted) ::umount2(m_place.c_str(), MNT_DETACH);
    }
    explicit operator bool() const { return m_mounted; }

  private:
    std::string m_place;
    bool m_mounted = false;
};

TEST_F(Trash, LeavesAFileOnAMountThatHasNone) {
    const Mount mount(m_folder.path() + "/mount",
                      {QStringLiteral("-t"), QStringLiteral("tmpfs"), QStringLiteral("tmpfs")});
    if (!mount) GTEST_SKIP() << "mounting is not permitted";
    const std::string path = m_folder.write("mount/a.mp3", "music");
    const Result<void> result = m_desktop.moveToTrash(path);
    ASSERT_FALSE(result);
    EXPECT_EQ(result.error().code, Error::Code::notSupported);
    EXPECT_EQ(m_folder.read("mount/a.mp3"), "music");
    EXPECT_TRUE(list().empty());
}

TEST_F(Trash, OfAnotherMountIsOnThatMount) {
    const std::string image = m_folder.write("image", std::string(4 << 20, '\0'));
    if (QProcess::execute(QStringLiteral("mkfs.ext4"),
                          {QStringLiteral("-q"), QString::fromStdString(image)}) != 0)
        GTEST_SKIP() << "there is no mkfs.ext4";
    const Mount mount(m_folder.path() + "/mount",
                      {QStringLiteral("-o"), QStringLiteral("loop"), QString::fromStdString(image)});
    if (!mount) GTEST_SKIP() << "mounting is not permitted";
    const std::string path = m_folder.write("mount/Abba/SOS.mp3", "music");

    ASSERT_TRUE(m_desktop.moveToTrash(path));

    EXPECT_FALSE(fs::exists(path));
    EXPECT_TRUE(list().empty());
    const auto trashed = listTrash(m_folder.path() + "/mount/.Trash-" + std::to_string(::getuid()));
    ASSERT_EQ(trashed.size(), 1U);
    EXPECT_EQ(trashed[0].original, "Abba/SOS.mp3") << "relative to the mount";
    EXPECT_EQ(contentsOf(trashed[0].file), "music");
}

} // namespace
} // namespace songsweep
