// SPDX-License-Identifier: MIT
#include "libraryfile/CleanupForesight.h"
#include "libraryfile/LibraryDocument.h"
#include "libraryfile/LibraryFixture.h"
#include "support/BindMount.h"

#include <fcntl.h>
#include <gmock/gmock.h>
#include <grp.h>
#include <gtest/gtest.h>
#include <linux/fs.h>
#include <sys/ioctl.h>
#include <sys/mount.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <sys/xattr.h>
#include <unistd.h>

#include <array>
#include <cstdint>

namespace songsweep {
namespace {

using test::contentOf;
using test::Folder;
using testing::ElementsAre;
using testing::HasSubstr;

constexpr uid_t somebody = 12345;
constexpr uid_t somebodyElse = 12346;

/// An access list as the system keeps it: a version, and an entry of tag, rights and ID for each.
struct AccessEntry {
    std::uint16_t tag;
    std::uint16_t rights;
    std::uint32_t id;
};
enum Tag : std::uint16_t {
    owner = 1,
    namedUser = 2,
    owningGroup = 4,
    namedGroup = 8,
    mask = 16,
    others = 32
};
constexpr std::uint32_t noId = 0xFFFFFFFF;

std::string accessList(const std::vector<AccessEntry>& entries) {
    std::string bytes("\2\0\0\0", 4);
    for (const AccessEntry& entry : entries)
        bytes.append(reinterpret_cast<const char*>(&entry), sizeof entry);
    return bytes;
}

std::string attributeOf(const std::string& path, const char* name) {
    std::array<char, 4096> value{};
    const ssize_t size = ::getxattr(path.c_str(), name, value.data(), value.size());
    return size < 0 ? "(none)" : std::string(value.data(), static_cast<std::size_t>(size));
}

bool setAttribute(const std::string& path, const char* name, const std::string& value) {
    return ::setxattr(path.c_str(), name, value.data(), value.size(), 0) == 0;
}

struct stat statusOf(const std::string& path) {
    struct stat status {};
    EXPECT_EQ(::stat(path.c_str(), &status), 0);
    return status;
}

class FileRights : public testing::Test {
  protected:
    /// Deletes the first track; the error, "" for success. A refusal must have been foreseen.
    static std::string deleteFirst(const std::string& path) {
        auto library = LibraryDocument::open(path);
        if (!library) return library.error().message;
        const auto foreseen = foreseeCleanup(path, {1, 100});
        const auto begun = library.value()->beginCleanup({"a test"});
        if (begun.hasValue() != foreseen.hasValue()) return "foreseen otherwise";
        if (!begun) return begun.error().message;
        if (auto removed = library.value()->remove(0); !removed) return removed.error().message;
        const auto written = library.value()->flush();
        return written ? "" : written.error().message;
    }

    /// The same as another user; "(failed)" with what is to be seen from outside.
    static std::string deleteFirstAs(uid_t user, const std::string& path) {
        std::array<int, 2> ends{};
        EXPECT_EQ(::pipe(ends.data()), 0);
        const pid_t child = ::fork();
        if (child == 0) {
            if (::setgroups(0, nullptr) != 0 || ::setgid(user) != 0 || ::setuid(user) != 0) ::_exit(2);
            const std::string error = deleteFirst(path);
            ::_exit(::write(ends[1], error.data(), error.size()) < 0 ? 3 : 0);
        }
        ::close(ends[1]);
        std::string error;
        std::array<char, 4096> bytes{};
        for (ssize_t count = 0; (count = ::read(ends[0], bytes.data(), bytes.size())) > 0;)
            error.append(bytes.data(), static_cast<std::size_t>(count));
        ::close(ends[0]);
        int status = 0;
        ::waitpid(child, &status, 0);
        EXPECT_EQ(status, 0);
        return error;
    }

    void expectUntouched() const {
        EXPECT_EQ(contentOf(m_path), test::manyTracks(3));
        EXPECT_THAT(m_folder.names(), ElementsAre("library.xml"));
    }
    void expectDeleted() const {
        EXPECT_EQ(contentOf(m_path), test::withoutTracks(test::manyTracks(3), {1000}));
    }

    Folder m_folder;
    std::string m_path = m_folder.write("library.xml", test::manyTracks(3));
};

TEST_F(FileRights, ExtendedAttributesStay) {
    if (!setAttribute(m_path, "user.note", "mine")) GTEST_SKIP() << "the file system has no attributes";
    EXPECT_EQ(deleteFirst(m_path), "");
    expectDeleted();
    EXPECT_EQ(attributeOf(m_path, "user.note"), "mine");
}

TEST_F(FileRights, AnAccessListStaysAndTheGroupGainsNothing) {
    const std::string list = accessList({{owner, 6, noId},
                                         {namedUser, 6, somebody},
                                         {owningGroup, 4, noId},
                                         {mask, 6, noId},
                                         {others, 0, noId}});
    if (!setAttribute(m_path, "system.posix_acl_access", list)) GTEST_SKIP() << "there are no access lists";
    const mode_t mode = statusOf(m_path).st_mode;
    EXPECT_EQ(deleteFirst(m_path), "");
    expectDeleted();
    EXPECT_EQ(attributeOf(m_path, "system.posix_acl_access"), list);
    EXPECT_EQ(statusOf(m_path).st_mode, mode);
}

TEST_F(FileRights, AnAccessListOfTheFolderIsNotTakenOver) {
    const std::string list = accessList({{owner, 7, noId},
                                         {namedUser, 7, somebody},
                                         {owningGroup, 7, noId},
                                         {mask, 7, noId},
                                         {others, 7, noId}});
    ASSERT_EQ(::chmod(m_path.c_str(), 0640), 0);
    if (!setAttribute(m_folder.path(), "system.posix_acl_default", list))
        GTEST_SKIP() << "there are no access lists";
    EXPECT_EQ(deleteFirst(m_path), "");
    expectDeleted();
    EXPECT_EQ(attributeOf(m_path, "system.posix_acl_access"), "(none)");
    EXPECT_EQ(statusOf(m_path).st_mode & 07777, 0640U);
}

TEST_F(FileRights, TheBackupHasThemToo) {
    ASSERT_EQ(::chmod(m_path.c_str(), 0640), 0);
    auto library = LibraryDocument::open(m_path);
    ASSERT_TRUE(library && library.value()->beginCleanup({"a test"}));
    const struct stat original = statusOf(m_path);
    const struct stat backup = statusOf(library.value()->backup());
    EXPECT_EQ(backup.st_mode, original.st_mode);
    EXPECT_EQ(backup.st_mtim.tv_sec, original.st_mtim.tv_sec);
    EXPECT_EQ(backup.st_mtim.tv_nsec, original.st_mtim.tv_nsec);
    EXPECT_EQ(backup.st_nlink, 1U); // A second name would be written with the library.
}

/// What only root can set up.
class RootFileRights : public FileRights {
  protected:
    void SetUp() override {
        if (::geteuid() != 0) GTEST_SKIP() << "only root can set this up";
        ASSERT_EQ(::chmod(m_folder.path().c_str(), 0777), 0);
    }
};

TEST_F(RootFileRights, RootKeepsTheOwner) {
    ASSERT_EQ(::chown(m_path.c_str(), somebody, somebodyElse), 0);
    EXPECT_EQ(deleteFirst(m_path), "");
    expectDeleted();
    EXPECT_EQ(statusOf(m_path).st_uid, somebody);
    EXPECT_EQ(statusOf(m_path).st_gid, somebodyElse);
}

TEST_F(RootFileRights, ALibraryOfAnotherOwnerIsNotMadeOnesOwn) {
    ASSERT_EQ(::chown(m_path.c_str(), somebodyElse, somebodyElse), 0);
    ASSERT_EQ(::chmod(m_path.c_str(), 0444), 0);
    EXPECT_THAT(deleteFirstAs(somebody, m_path), HasSubstr("belongs to another user"));
    expectUntouched();
    EXPECT_EQ(statusOf(m_path).st_uid, somebodyElse);
}

TEST_F(RootFileRights, AnOwnLibraryIsWritten) {
    ASSERT_EQ(::chown(m_path.c_str(), somebody, somebody), 0);
    ASSERT_EQ(::chmod(m_path.c_str(), 0600), 0);
    EXPECT_EQ(deleteFirstAs(somebody, m_path), "");
    expectDeleted();
    EXPECT_EQ(statusOf(m_path).st_uid, somebody);
    EXPECT_EQ(statusOf(m_path).st_mode & 07777, 0600U);
}

TEST_F(RootFileRights, AStickyFolderIsKnownBefore) {
    ASSERT_EQ(::chmod(m_folder.path().c_str(), 01777), 0);
    ASSERT_EQ(::chown(m_path.c_str(), somebodyElse, somebody), 0);
    ASSERT_EQ(::chmod(m_path.c_str(), 0666), 0);
    EXPECT_THAT(deleteFirstAs(somebody, m_path), HasSubstr("belongs to another user"));
    expectUntouched();
}

TEST_F(RootFileRights, AFolderThatMayNotBeWrittenIsKnownBefore) {
    ASSERT_EQ(::chown(m_path.c_str(), somebody, somebody), 0);
    ASSERT_EQ(::chmod(m_folder.path().c_str(), 0755), 0);
    EXPECT_THAT(deleteFirstAs(somebody, m_path), HasSubstr("Permission denied"));
    expectUntouched();
}

TEST_F(RootFileRights, AnImmutableLibraryIsKnownBefore) {
    const int descriptor = ::open(m_path.c_str(), O_RDONLY | O_CLOEXEC);
    int flags = 0;
    const bool read = ::ioctl(descriptor, FS_IOC_GETFLAGS, &flags) == 0;
    const int immutable = flags | FS_IMMUTABLE_FL;
    if (!read || ::ioctl(descriptor, FS_IOC_SETFLAGS, &immutable) != 0) {
        ::close(descriptor);
        GTEST_SKIP() << "the file system has no such flag";
    }
    EXPECT_THAT(deleteFirst(m_path), HasSubstr("not permitted"));
    ::ioctl(descriptor, FS_IOC_SETFLAGS, &flags);
    ::close(descriptor);
    expectUntouched();
}

TEST_F(RootFileRights, ALibraryThatIsAMountPointIsKnownBefore) {
    const std::string other = m_folder.write("other.xml", test::manyTracks(3));
    if (::mount(other.c_str(), m_path.c_str(), nullptr, MS_BIND, nullptr) != 0)
        GTEST_SKIP() << "mounting is not permitted";
    EXPECT_THAT(deleteFirst(m_path), HasSubstr("busy"));
    ::umount2(m_path.c_str(), MNT_DETACH);
    EXPECT_EQ(contentOf(other), test::manyTracks(3));
    std::filesystem::remove(other);
    expectUntouched();
}

TEST_F(RootFileRights, ALibraryUnderABindMountIsWritten) {
    const std::string folder = m_folder.pathOf("music");
    std::filesystem::create_directory(folder);
    m_folder.write("music/library.xml", test::manyTracks(3));
    const test::BindMount mount(folder, m_folder.pathOf("seen"));
    if (!mount.isMounted()) GTEST_SKIP() << "mounting is not permitted";
    EXPECT_EQ(deleteFirst(m_folder.pathOf("seen/library.xml")), "");
    EXPECT_EQ(contentOf(m_folder.pathOf("music/library.xml")),
              test::withoutTracks(test::manyTracks(3), {1000}));
}

} // namespace
} // namespace songsweep
