// SPDX-License-Identifier: MIT
#include "TwoGroups.h"
#include "libraryfile/SmallDisk.h"
#include "libraryfile/SmallFileSystem.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <nlohmann/json.hpp>
#include <unistd.h>

#include <cstdlib>
#include <memory>

namespace songsweep {
namespace {

namespace fs = std::filesystem;
using nlohmann::json;
using test::RunResult;
using ::testing::HasSubstr;
using ::testing::Not;

/// What a dry run foretells is held against what the same deletion comes to in earnest.
class DryRun : public test::TwoGroups {
  protected:
    RunResult foretell(const std::string& format = "text") {
        return command("delete", {"--rule", "highest-bitrate", "--files", "--dry-run", "--format", format});
    }
    RunResult deleteInEarnest() {
        return command("delete", {"--rule", "highest-bitrate", "--files", "--yes"});
    }
    /// Tracks 1 and 3 go, and their files stay, for a reason with these words.
    void expectFilesToStay(const std::string& words) {
        const RunResult foretold = foretell();
        EXPECT_EQ(foretold.exitCode, 1) << foretold.errors;
        EXPECT_THAT(foretold.output, HasSubstr(" would be deleted, file would stay: "));
        EXPECT_THAT(foretold.output, HasSubstr(words));
        EXPECT_THAT(foretold.output, Not(HasSubstr("file would go to the Trash")));
        const RunResult done = deleteInEarnest();
        EXPECT_EQ(done.exitCode, 1) << done.errors;
        EXPECT_THAT(done.output, HasSubstr(" deleted, file kept: "));
        EXPECT_THAT(done.output, Not(HasSubstr("file trashed")));
        EXPECT_TRUE(hasFile(1));
        EXPECT_TRUE(hasFile(3));
    }
    /// Nothing goes, for a reason with these words.
    void expectNothingToBegin(const std::string& words) {
        const auto before = tree();
        const RunResult foretold = foretell();
        EXPECT_EQ(foretold.exitCode, 1);
        EXPECT_THAT(foretold.errors, HasSubstr(words));
        EXPECT_THAT(foretold.errors, HasSubstr(m_library));
        EXPECT_THAT(foretold.output, HasSubstr("Would delete 0 of 2 tracks"));
        EXPECT_EQ(tree(), before);
        const RunResult done = deleteInEarnest();
        EXPECT_EQ(done.exitCode, 1) << done.output;
        EXPECT_THAT(done.output, HasSubstr("Deleted 0 of 2 tracks"));
        EXPECT_EQ(tree(), before);
    }
    void moveLibraryTo(const std::string& folder) {
        fs::create_directories(folder);
        fs::copy(m_library, folder + "/Library.xml");
        fs::remove(m_library);
        m_library = folder + "/Library.xml";
    }
    void writeSongs() {
        for (int id = 1; id <= 5; ++id)
            m_folder.write("music/" + std::to_string(id) + ".mp3", "music");
    }
};

/// Protects a file or folder as administrators do, while it lives.
class Protection {
  public:
    explicit Protection(std::string path)
        : m_path(std::move(path))
        , m_isOn(std::system(("chattr +i '" + m_path + "' 2>/dev/null").c_str()) == 0) {}
    Protection(const Protection&) = delete;
    Protection& operator=(const Protection&) = delete;
    ~Protection() {
        if (m_isOn) static_cast<void>(std::system(("chattr -i '" + m_path + "'").c_str()));
    }
    bool isOn() const { return m_isOn; }

  private:
    std::string m_path;
    bool m_isOn;
};

TEST_F(DryRun, SpeaksOfWhatWouldBe) {
    const auto before = tree();
    const RunResult foretold = foretell();
    EXPECT_EQ(foretold.exitCode, 0) << foretold.errors;
    EXPECT_THAT(foretold.output,
                HasSubstr("Track A by X (0000000000000001) would be deleted, file would go to the "
                          "Trash, " +
                          path("music/1.mp3") + "\n"));
    EXPECT_THAT(foretold.output, HasSubstr("Would delete 2 of 2 tracks, and move files of 2 to the Trash\n"));
    EXPECT_EQ(tree(), before);
}

TEST_F(DryRun, SaysSoInEveryFormat) {
    EXPECT_TRUE(json::parse(foretell("json").output).at("dryrun"));
    const std::string csv = foretell("csv").output;
    EXPECT_THAT(csv, HasSubstr("dealtwith,dryrun,trash,backup,record,mergedto,merged\r\n"));
    EXPECT_THAT(csv, HasSubstr("deleted,trashed,,true,true,,,,,\r\n"));
    EXPECT_THAT(command("delete", {"--rule", "highest-bitrate", "--yes", "--format", "csv"}).output,
                HasSubstr("deleted,not asked,,true,false,,"));
}

TEST_F(DryRun, ForeseesThatMemoryHasNoTrash) {
    const test::SmallFileSystem memory(path("music"), 1 << 20);
    if (!memory.mounted()) GTEST_SKIP() << "this user may not mount";
    writeSongs();
    expectFilesToStay("there is no Trash for files of " + path("music"));
}

TEST_F(DryRun, ForeseesAFileSystemThatCanOnlyBeRead) {
    const test::SmallFileSystem memory(path("music"), 1 << 20);
    if (!memory.mounted()) GTEST_SKIP() << "this user may not mount";
    writeSongs();
    ASSERT_TRUE(memory.makeReadOnly());
    expectFilesToStay("its folder " + path("music") + " can only be read");
}

TEST_F(DryRun, ForeseesAProtectedFolder) {
    const Protection protection(path("music"));
    if (!protection.isOn()) GTEST_SKIP() << "folders cannot be protected here";
    expectFilesToStay("its folder " + path("music") + " cannot be written");
}

TEST_F(DryRun, ForeseesProtectedFiles) {
    const Protection first(path("music/1.mp3"));
    const Protection third(path("music/3.mp3"));
    if (!first.isOn()) GTEST_SKIP() << "files cannot be protected here";
    expectFilesToStay("it is protected against changes");
}

TEST_F(DryRun, ForeseesFoldersWhereOnlyOwnersTakeFilesAway) {
    if (::geteuid() != 0) GTEST_SKIP() << "needs to become another user";
    for (const auto& entry : fs::recursive_directory_iterator(path("home")))
        fs::permissions(entry, fs::perms(0777));
    for (const char* const folder : {"", "home"})
        fs::permissions(path(folder), fs::perms(0777));
    fs::permissions(path("music"), fs::perms(01777));
    ASSERT_EQ(::chown(m_library.c_str(), 65534, 65534), 0);
    m_beforeStart = [] { static_cast<void>(::setgid(65534) == 0 && ::setuid(65534) == 0); };
    expectFilesToStay("where only owners may take files away");
}

TEST_F(DryRun, ForeseesANameThatIsTooLong) {
    std::vector<test::SampleTrack> songs = tracks({1, 2});
    songs[0].path = m_folder.write("music/" + std::string(240, 'a') + ".mp3", "music");
    m_library = m_folder.write("Library.xml", test::libraryText(songs));
    const RunResult foretold = foretell();
    EXPECT_EQ(foretold.exitCode, 1);
    EXPECT_THAT(foretold.output,
                HasSubstr("would be deleted, file would stay: its name is too long for the Trash"));
    EXPECT_EQ(deleteInEarnest().exitCode, 1);
    EXPECT_TRUE(fs::exists(songs[0].path));
}

TEST_F(DryRun, ForeseesThatTheTrashHasNoRoom) {
    const test::SmallDisk disk(path("disk"), 4);
    if (!disk.isMounted()) GTEST_SKIP() << "this user may not mount";
    std::vector<test::SampleTrack> songs = tracks({1, 2, 3});
    for (test::SampleTrack& song : songs) {
        song.path = disk.path() + "/" + std::to_string(song.id) + ".mp3";
        fs::copy(path("music/1.mp3"), song.path);
    }
    m_library = m_folder.write("Library.xml", test::libraryText(songs));
    disk.leaveFree(0);
    const RunResult foretold = foretell();
    EXPECT_EQ(foretold.exitCode, 1);
    EXPECT_THAT(foretold.output, HasSubstr("file would stay: there is no room for its record in the Trash"));
    EXPECT_EQ(deleteInEarnest().exitCode, 1);
    for (const test::SampleTrack& song : songs)
        EXPECT_TRUE(fs::exists(song.path)) << song.path;
}

TEST_F(DryRun, ForeseesThatTheLibraryIsClosed) {
    if (::geteuid() != 0) GTEST_SKIP() << "needs to become another user";
    moveLibraryTo(path("closed"));
    fs::permissions(path(""), fs::perms(0777));
    fs::permissions(path("closed"), fs::perms(0555));
    m_beforeStart = [] { static_cast<void>(::setuid(65534)); };
    expectNothingToBegin("Permission denied");
}

TEST_F(DryRun, ForeseesThatTheLibraryIsProtected) {
    const Protection protection(m_library);
    if (!protection.isOn()) GTEST_SKIP() << "files cannot be protected here";
    expectNothingToBegin("not permitted");
}

TEST_F(DryRun, ForeseesThatTheLibraryCanOnlyBeRead) {
    const test::SmallFileSystem memory(path("memory"), 1 << 20);
    if (!memory.mounted()) GTEST_SKIP() << "this user may not mount";
    moveLibraryTo(path("memory"));
    ASSERT_TRUE(memory.makeReadOnly());
    expectNothingToBegin("Read-only file system");
}

TEST_F(DryRun, ForeseesThatThereIsNoRoomForTheLibrary) {
    const test::SmallDisk disk(path("disk"), 4);
    if (!disk.isMounted()) GTEST_SKIP() << "this user may not mount";
    moveLibraryTo(disk.path());
    disk.leaveFree(0);
    expectNothingToBegin("No space left");
}

TEST_F(DryRun, ForeseesALibraryThatCannotBeWrittenAlsoWhereFilesStay) {
    const Protection protection(m_library);
    if (!protection.isOn()) GTEST_SKIP() << "files cannot be protected here";
    const RunResult foretold = command("delete", {"--rule", "highest-bitrate", "--dry-run"});
    EXPECT_EQ(foretold.exitCode, 1);
    EXPECT_THAT(foretold.output, HasSubstr(" would stay, "));
}

} // namespace
} // namespace songsweep
