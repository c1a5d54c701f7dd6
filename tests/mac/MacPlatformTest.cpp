// SPDX-License-Identifier: MIT
#include "Fakes.h"
#include "platform/HfsPath.h"
#include "platform/HomeFolder.h"
#include "platform/Native.h"
#include "platform/Trash.h"
#include "support/TemporaryFolder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <thread>

namespace songsweep {
namespace {

using test::fakeMac;
using test::TemporaryFolder;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

class Mac : public ::testing::Test {
  protected:
    void SetUp() override { fakeMac() = {}; }

    std::unique_ptr<Desktop> m_desktop = nativeDesktop();
    std::unique_ptr<Preferences> m_preferences = nativePreferences();
};

TEST_F(Mac, OpensAnAddressByTheWorkspace) {
    ASSERT_TRUE(m_desktop->openUrl("https://songsweep.example/faq.php#cant-access-itunes"));
    EXPECT_THAT(fakeMac().calls, ElementsAre("open https://songsweep.example/faq.php#cant-access-itunes"));
}

TEST_F(Mac, SelectsAFileInTheFinderWithoutARoot) {
    ASSERT_TRUE(m_desktop->showInFileManager("/Music/caf\u00e9 \"1\".mp3"));
    EXPECT_THAT(fakeMac().calls, ElementsAre("select /Music/caf\u00e9 \"1\".mp3 below \"\""));
}

TEST_F(Mac, PlaysAFileByItsUrl) {
    ASSERT_TRUE(m_desktop->play("/Music/a b.mp3"));
    EXPECT_THAT(fakeMac().calls, ElementsAre("open file:///Music/a%20b.mp3"));
    EXPECT_TRUE(m_desktop->stopPlaying());
}

TEST_F(Mac, MovesAFileToTheTrash) {
    const Result<TrashedFile> trashed = m_desktop->trash().moveToTrash("/Music/a b.mp3");
    EXPECT_THAT(fakeMac().calls, ElementsAre("trash /Music/a b.mp3"));
    ASSERT_TRUE(trashed);
    EXPECT_EQ(trashed.value().path(), "/Users/ann/.Trash/a b.mp3");
}

TEST_F(Mac, BelievesNoTrashThatDoesNotTellWhereAFileIs) {
    fakeMac().tellsWhere = false;
    EXPECT_FALSE(m_desktop->trash().moveToTrash("/Music/a.mp3"));
}

TEST_F(Mac, BringsAFileBackAndMakesItsFolders) {
    const TemporaryFolder folder;
    folder.write("Trash/a.mp3", "music");
    const TrashedFile trashed = {folder.path() + "/Trash", "a.mp3"};
    const std::string path = folder.path() + "/Abba/Gold/SOS.mp3";

    const Result<RestoredFile> restored = m_desktop->trash().restoreFromTrash(trashed, path);

    ASSERT_TRUE(restored);
    EXPECT_THAT(restored.value().madeFolders,
                ElementsAre(folder.path() + "/Abba", folder.path() + "/Abba/Gold"));
    EXPECT_EQ(folder.read("Abba/Gold/SOS.mp3"), "music");
    const Result<RestoredFile> again = m_desktop->trash().restoreFromTrash(trashed, path);
    ASSERT_FALSE(again);
    EXPECT_EQ(again.error().code, Error::Code::notFound);
}

TEST_F(Mac, BringsNoFileBackOverAnother) {
    const TemporaryFolder folder;
    folder.write("Trash/a.mp3", "music");
    const std::string path = folder.write("a.mp3", "another");
    const Result<RestoredFile> restored =
        m_desktop->trash().restoreFromTrash({folder.path() + "/Trash", "a.mp3"}, path);
    ASSERT_FALSE(restored);
    EXPECT_EQ(restored.error().code, Error::Code::alreadyExists);
    EXPECT_EQ(folder.read("a.mp3"), "another");
    EXPECT_EQ(folder.read("Trash/a.mp3"), "music");
}

TEST_F(Mac, ForeseesWhatCannotGoToTheTrash) {
    const TemporaryFolder folder;
    const std::unique_ptr<TrashCheck> check = m_desktop->trash().newCheck();
    EXPECT_TRUE(check->add(folder.write("a.mp3", "music")));
    EXPECT_EQ(check->add(folder.path() + "/missing.mp3").error().code, Error::Code::notFound);
}

TEST_F(Mac, SaysWhyTheTrashRefuses) {
    fakeMac().succeeds = false;
    const Result<TrashedFile> result = m_desktop->trash().moveToTrash("/Music/a.mp3");
    ASSERT_FALSE(result);
    EXPECT_EQ(result.error().message, "The volume has no Trash.");
    EXPECT_FALSE(m_desktop->trash().moveToTrash("a.mp3"));
}

TEST_F(Mac, MutesAndUnmutesByAScript) {
    ASSERT_TRUE(m_desktop->setOutputMuted(true));
    ASSERT_TRUE(m_desktop->setOutputMuted(false));
    EXPECT_THAT(fakeMac().calls,
                ElementsAre("script set volume with output muted", "script set volume without output muted"));
}

TEST_F(Mac, TellsWhatFailed) {
    fakeMac().succeeds = false;
    for (const Result<void>& result :
         {m_desktop->openUrl("https://songsweep.example/"), m_desktop->showInFileManager("/a.mp3"),
          m_desktop->play("/a.mp3"), m_desktop->setOutputMuted(true)}) {
        ASSERT_FALSE(result);
        EXPECT_FALSE(result.error().message.empty());
    }
}

TEST_F(Mac, WorksFromAWorkersThread) {
    std::thread([this] { EXPECT_TRUE(m_desktop->trash().moveToTrash("/a.mp3")); }).join();
    EXPECT_THAT(fakeMac().calls, ElementsAre("trash /a.mp3"));
}

TEST_F(Mac, ReadsTheDomainOfTheUser) {
    fakeMac().recentDatabases = {"file://localhost/a%20b.xml", "file:///2.xml"};
    const std::optional<IAppsDomain> domain = m_preferences->iAppsDomain();
    ASSERT_TRUE(domain);
    EXPECT_THAT(domain->iTunesRecentDatabases, ElementsAre("file://localhost/a%20b.xml", "file:///2.xml"));
    EXPECT_THAT(fakeMac().calls, ElementsAre("domain com.apple.iApps"));
}

TEST_F(Mac, KeepsThePlaceOfAnEntryThatIsNoText) {
    fakeMac().recentDatabases = {"(number)", "file:///2.xml"};
    EXPECT_THAT(m_preferences->iAppsDomain()->iTunesRecentDatabases, ElementsAre("", "file:///2.xml"));
}

TEST_F(Mac, TellsAMissingDomainFromAnEmptyOne) {
    EXPECT_THAT(m_preferences->iAppsDomain()->iTunesRecentDatabases, IsEmpty());
    fakeMac().hasDomain = false;
    EXPECT_FALSE(m_preferences->iAppsDomain());
}

TEST_F(Mac, ReadsAPropertyListFile) {
    const TemporaryFolder folder;
    const std::string path = folder.write(
        "com.apple.iApps.plist",
        "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<!DOCTYPE plist PUBLIC \"-//Apple//DTD PLIST 1.0//EN\" "
        "\"http://www.apple.com/DTDs/PropertyList-1.0.dtd\">\n<plist version=\"1.0\"><dict>"
        "<key>iTunesRecentDatabases</key><array><string>file:///caf\u00e9.xml</string></array></dict></"
        "plist>");
    const std::optional<IAppsDomain> domain = m_preferences->iAppsPropertyList(path);
    ASSERT_TRUE(domain);
    EXPECT_THAT(domain->iTunesRecentDatabases, ElementsAre("file:///caf\u00e9.xml"));
}

TEST_F(Mac, HasNothingWhereThePropertyListCannotBeRead) {
    const TemporaryFolder folder;
    EXPECT_FALSE(m_preferences->iAppsPropertyList(folder.path() + "/missing"));
    EXPECT_FALSE(m_preferences->iAppsPropertyList(folder.write("list", "\x01\x02")));
}

TEST_F(Mac, TakesTheHomeFolderFromThePasswordDatabase) {
    EXPECT_EQ(m_preferences->homeFolder(), passwordHomeFolder());
}

TEST_F(Mac, WritesPathsInHfsNotationAndReadsThem) {
    for (const char* path : {"/Users/ann/a.mp3", "/Users/ann/a:b.mp3", "/caf\u00e9/it's \"x\"\\.mp3"}) {
        const std::optional<std::string> hfs = hfsPath(path);
        ASSERT_TRUE(hfs) << path;
        EXPECT_TRUE(hfs->starts_with("Macintosh HD:")) << *hfs;
        EXPECT_EQ(posixPath(*hfs), path);
    }
    EXPECT_EQ(hfsPath("/Users/ann/a:b.mp3"), "Macintosh HD:Users:ann:a/b.mp3");
    EXPECT_EQ(hfsPath("a.mp3"), std::nullopt);
    EXPECT_EQ(hfsPath(""), std::nullopt);
    EXPECT_EQ(posixPath(""), std::nullopt);
    EXPECT_EQ(posixPath("Backup:a.mp3"), std::nullopt);
}

} // namespace
} // namespace songsweep
