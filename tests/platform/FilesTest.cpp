// SPDX-License-Identifier: MIT
#include "platform/Files.h"

#include "platform/NameForms.h"
#include "support/AnotherUser.h"
#include "support/TemporaryFolder.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <filesystem>

namespace songsweep {
namespace {

using test::TemporaryFolder;

const std::string composed = "Beyonc\u00e9";
const std::string decomposed = "Beyonce\u0301";

TEST(Files, KnowsWhetherAnythingExistsAtAPath) {
    const TemporaryFolder folder;
    const std::string file = folder.write("a.mp3", "x");
    const Files files;
    EXPECT_TRUE(files.exists(file));
    EXPECT_TRUE(files.exists(folder.path()));
    EXPECT_FALSE(files.exists(folder.path() + "/b.mp3"));
    EXPECT_FALSE(files.exists(file + "/b.mp3"));
    EXPECT_FALSE(files.exists(""));
}

TEST(Files, FollowsSymbolicLinks) {
    const TemporaryFolder folder;
    const std::string file = folder.write("a.mp3", "four");
    std::filesystem::create_symlink(file, folder.path() + "/link");
    std::filesystem::create_symlink(folder.path() + "/nothing", folder.path() + "/dangling");
    const Files files;
    EXPECT_EQ(files.attributes(folder.path() + "/link"), files.attributes(file));
    EXPECT_FALSE(files.exists(folder.path() + "/dangling"));
}

TEST(Files, TellsFilesFromFoldersAndOtherThings) {
    const TemporaryFolder folder;
    const std::string pipe = folder.path() + "/pipe";
    ASSERT_EQ(::mkfifo(pipe.c_str(), 0600), 0);
    std::filesystem::create_directory_symlink(folder.path(), folder.path() + "/link");
    const Files files;
    EXPECT_EQ(files.attributes(folder.write("a.mp3", "x"))->kind, FileAttributes::Kind::file);
    EXPECT_EQ(files.attributes(folder.path() + "/link")->kind, FileAttributes::Kind::folder);
    EXPECT_EQ(files.attributes(pipe)->kind, FileAttributes::Kind::other);
}

TEST(Files, TellsTheAttributesOfAFile) {
    const TemporaryFolder folder;
    const std::string file = folder.write("a.mp3", "four");
    ASSERT_EQ(::link(file.c_str(), (folder.path() + "/b.mp3").c_str()), 0);
    const timespec times[2] = {{1, 2}, {1'700'000'000, 123'456'789}};
    ASSERT_EQ(::utimensat(AT_FDCWD, file.c_str(), times, 0), 0);
    struct stat expected {};
    ASSERT_EQ(::stat(file.c_str(), &expected), 0);

    const std::optional<FileAttributes> attributes = Files().attributes(file);

    ASSERT_TRUE(attributes);
    EXPECT_EQ(attributes->modificationNanoseconds, 1'700'000'000'123'456'789);
    EXPECT_EQ(attributes->size, 4U);
    EXPECT_EQ(attributes->inode, expected.st_ino);
    EXPECT_EQ(attributes->device, expected.st_dev);
    EXPECT_EQ(attributes->linkCount, 2U);
}

TEST(Files, KnowsWhetherAFileIsReadable) {
    const TemporaryFolder folder;
    const std::string pipe = folder.path() + "/pipe";
    ASSERT_EQ(::mkfifo(pipe.c_str(), 0600), 0);
    const Files files;
    EXPECT_TRUE(files.isReadable(folder.write("a.mp3", "x")));
    EXPECT_FALSE(files.isReadable(folder.path() + "/gone.mp3"));
    EXPECT_TRUE(files.isReadable(pipe)) << "nobody is waited for";
}

TEST(Files, KnowsThatAFileIsClosedToThisUser) {
    if (::geteuid() != 0) GTEST_SKIP() << "needs to become another user";
    const TemporaryFolder folder;
    const std::string closed = folder.write("closed.mp3", "x");
    const std::string open = folder.write("open.mp3", "x");
    std::filesystem::permissions(folder.path(), std::filesystem::perms(0755));
    std::filesystem::permissions(closed, std::filesystem::perms(0600));
    std::filesystem::permissions(open, std::filesystem::perms(0644));
    const Files files;
    EXPECT_TRUE(
        test::holdsForAnotherUser([&] { return files.isReadable(open) && !files.isReadable(closed); }));
}

TEST(Files, HasNoAttributesOfWhatDoesNotExist) {
    const TemporaryFolder folder;
    EXPECT_EQ(Files().attributes(folder.path() + "/b.mp3"), std::nullopt);
}

TEST(Files, LooksWhereThePathMapPoints) {
    const TemporaryFolder folder;
    folder.write("Abba/SOS.mp3", "x");
    PathMap map;
    map.add("/C:/Music", folder.path());
    const Files files(map);
    EXPECT_TRUE(files.exists("/C:/Music/Abba/SOS.mp3"));
    EXPECT_TRUE(files.attributes("/C:/Music/Abba/SOS.mp3"));
    EXPECT_EQ(files.localPath("/C:/Music/Abba/SOS.mp3"), folder.path() + "/Abba/SOS.mp3");
    EXPECT_FALSE(files.exists("/C:/Musical/Abba/SOS.mp3"));
}

TEST(Files, NamesTheMappedPathOfWhatDoesNotExist) {
    PathMap map;
    map.add("/C:/Music", "/no such folder");
    EXPECT_EQ(Files(map).localPath("/C:/Music/" + composed), "/no such folder/" + composed);
}

TEST(Files, FindsAComposedNameOnDiskByItsDecomposedForm) {
    const TemporaryFolder folder;
    const std::string file = folder.write(composed + ".mp3", "x");
    const std::string asked = folder.path() + "/" + decomposed + ".mp3";
    EXPECT_TRUE(Files().exists(asked));
    EXPECT_TRUE(Files().attributes(asked));
    EXPECT_EQ(Files().localPath(asked), file);
}

TEST(Files, FindsADecomposedNameOnDiskByItsComposedForm) {
    const TemporaryFolder folder;
    const std::string file = folder.write(decomposed + ".mp3", "x");
    EXPECT_EQ(Files().localPath(folder.path() + "/" + composed + ".mp3"), file);
}

TEST(Files, FindsAFolderAndAFileInDifferentForms) {
    const TemporaryFolder folder;
    const std::string file = folder.write(composed + "/plain/" + decomposed, "x");
    for (const std::string& first : {composed, decomposed})
        for (const std::string& second : {composed, decomposed})
            EXPECT_EQ(Files().localPath(folder.path() + "/" + first + "/plain/" + second), file);
}

TEST(Files, TakesNoOtherFileForANameThatIsNotUtf8) {
    const TemporaryFolder folder;
    folder.write("a\uFFFD.mp3", "x");
    EXPECT_FALSE(Files().exists(folder.path() + "/a\xff.mp3"));
    const std::string file = folder.write("caf\xe9/" + composed, "x");
    EXPECT_TRUE(Files().exists(file));
    EXPECT_EQ(Files().localPath(folder.path() + "/caf\xe9/" + decomposed), file);
}

TEST(Files, PrefersTheNameAsWritten) {
    const TemporaryFolder folder;
    const std::string one = folder.write(composed, "x");
    const std::string other = folder.write(decomposed, "yy");
    EXPECT_EQ(Files().localPath(one), one);
    EXPECT_EQ(Files().localPath(other), other);
    EXPECT_EQ(Files().attributes(other)->size, 2U);
}

TEST(Files, TakesAccentsForDistinct) {
    const TemporaryFolder folder;
    folder.write("Beyonce", "x");
    EXPECT_FALSE(Files().exists(folder.path() + "/" + composed));
}

TEST(Files, FindsANameThatIsNoValidText) {
    const TemporaryFolder folder;
    const std::string file = folder.write("caf\xe9", "x");
    EXPECT_TRUE(Files().exists(file));
    EXPECT_FALSE(Files().exists(folder.path() + "/caf\xe8"));
}

TEST(NameForms, FindNothingBelowAFolderThatIsMissing) {
    const TemporaryFolder folder;
    EXPECT_EQ(existingInOtherForm(folder.path() + "/" + composed + "/a.mp3"), std::nullopt);
    EXPECT_EQ(existingInOtherForm(""), std::nullopt);
}

} // namespace
} // namespace songsweep
