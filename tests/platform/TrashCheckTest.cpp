// SPDX-License-Identifier: MIT
#include "TrashFixture.h"
#include "support/AnotherUser.h"

#include <gmock/gmock.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cstdlib>
#include <fstream>

namespace songsweep {
namespace {

namespace fs = std::filesystem;
using test::Mount;
using ::testing::HasSubstr;

class TrashCheckTest : public test::TrashFixture {
  protected:
    /// What is foreseen for one file, which then is what becomes of it.
    void expect(Error::Code code, const std::string& path, const std::string& words) {
        const Result<void> foreseen = m_trash.newCheck()->add(path);
        ASSERT_FALSE(foreseen);
        EXPECT_EQ(foreseen.error().code, code) << foreseen.error().message;
        EXPECT_THAT(foreseen.error().message, HasSubstr(words));
        EXPECT_FALSE(m_trash.moveToTrash(path));
    }
    void expectNothing(const std::string& path) {
        const Result<void> foreseen = m_trash.newCheck()->add(path);
        EXPECT_TRUE(foreseen) << foreseen.error().message;
        EXPECT_TRUE(m_trash.moveToTrash(path));
    }
    QStringList memory() const {
        return {QStringLiteral("-t"), QStringLiteral("tmpfs"), QStringLiteral("tmpfs")};
    }
};

TEST_F(TrashCheckTest, NothingStandsInTheWayOfAFile) {
    const std::string path = m_folder.write("a.mp3", "music");
    fs::create_symlink("nowhere", m_folder.path() + "/link");
    EXPECT_TRUE(m_trash.newCheck()->add(path));
    EXPECT_FALSE(fs::exists(m_place)) << "a check makes nothing";
    expectNothing(path);
    expectNothing(m_folder.path() + "/link");
}

TEST_F(TrashCheckTest, AMissingFile) {
    expect(Error::Code::notFound, m_folder.path() + "/missing.mp3", "missing.mp3");
}

TEST_F(TrashCheckTest, AFileInMemory) {
    const Mount mount(m_folder.path() + "/mount", memory());
    if (!mount) GTEST_SKIP() << "mounting is not permitted";
    expect(Error::Code::notSupported, m_folder.write("mount/a.mp3", "music"), "there is no Trash");
}

TEST_F(TrashCheckTest, TheSameDiskMountedOnceMore) {
    m_folder.write("one/a.mp3", "music");
    const Mount mount(m_folder.path() + "/two",
                      {QStringLiteral("--bind"), QString::fromStdString(m_folder.path() + "/one")});
    if (!mount) GTEST_SKIP() << "mounting is not permitted";
    expect(Error::Code::notSupported, m_folder.path() + "/two/a.mp3", "there is no Trash");
}

TEST_F(TrashCheckTest, AVolumeThatCanOnlyBeRead) {
    const std::string image = m_folder.write("image", std::string(8 << 20, '\0'));
    if (!test::makeFileSystem(image)) GTEST_SKIP() << "there is no mkfs.ext4";
    const QString file = QString::fromStdString(image);
    {
        const Mount mount(m_folder.path() + "/mount", {QStringLiteral("-o"), QStringLiteral("loop"), file});
        if (!mount) GTEST_SKIP() << "mounting is not permitted";
        m_folder.write("mount/songs/a.mp3", "music");
        expectNothing(m_folder.write("mount/songs/b.mp3", "music"));
    }
    const Mount mount(m_folder.path() + "/mount", {QStringLiteral("-o"), QStringLiteral("loop,ro"), file});
    ASSERT_TRUE(mount);
    expect(Error::Code::noPermission, m_folder.path() + "/mount/songs/a.mp3", "can only be read");
}

TEST_F(TrashCheckTest, ANameThatLeavesNoRoomForItsRecord) {
    expect(Error::Code::invalid, m_folder.write(std::string(239, 'a'), "music"), "too long");
    expectNothing(m_folder.write(std::string(238, 'a'), "music"));
}

TEST_F(TrashCheckTest, ATrashThatIsNoFolder) {
    std::ofstream(m_place) << "no folder";
    expect(Error::Code::noPermission, m_folder.write("a.mp3", "music"), "cannot be written");
}

TEST_F(TrashCheckTest, AFileThatIsProtected) {
    const std::string path = m_folder.write("a.mp3", "music");
    if (std::system(("chattr +i '" + path + "' 2>/dev/null").c_str()) != 0)
        GTEST_SKIP() << "files cannot be protected here";
    expect(Error::Code::noPermission, path, "protected");
    EXPECT_EQ(std::system(("chattr -i '" + path + "'").c_str()), 0);
}

TEST_F(TrashCheckTest, AFolderThatIsProtected) {
    const std::string path = m_folder.write("songs/a.mp3", "music");
    const std::string folder = m_folder.path() + "/songs";
    if (std::system(("chattr +i '" + folder + "' 2>/dev/null").c_str()) != 0)
        GTEST_SKIP() << "files cannot be protected here";
    expect(Error::Code::noPermission, path, "cannot be written");
    EXPECT_EQ(std::system(("chattr -i '" + folder + "'").c_str()), 0);
}

TEST_F(TrashCheckTest, FoldersOfOthers) {
    if (::geteuid() != 0) GTEST_SKIP() << "needs to become another user";
    const std::string closed = m_folder.write("closed/a.mp3", "music");
    const std::string sticky = m_folder.write("sticky/a.mp3", "music");
    const std::string own = m_folder.write("sticky/own.mp3", "music");
    fs::permissions(m_folder.path(), fs::perms(0755));
    fs::permissions(m_folder.path() + "/sticky", fs::perms(01777));
    ASSERT_EQ(::chown(own.c_str(), 65534, 65534), 0);
    fs::create_directories(m_place);
    fs::permissions(m_place, fs::perms(0777));
    for (fs::path above = m_place.parent_path(); above != "/tmp" && above != "/"; above = above.parent_path())
        fs::permissions(above, fs::perms(0755));
    const auto code = [&](const std::string& path) {
        const Result<void> foreseen = m_trash.newCheck()->add(path);
        return foreseen ? Error::Code::failed : foreseen.error().code;
    };
    EXPECT_TRUE(test::holdsForAnotherUser([&] {
        return code(closed) == Error::Code::noPermission && code(sticky) == Error::Code::noPermission &&
               code(own) == Error::Code::failed;
    }));
}

} // namespace
} // namespace songsweep
