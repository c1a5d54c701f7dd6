// SPDX-License-Identifier: MIT
#include "libraryfile/CleanupLock.h"
#include "libraryfile/LibraryDocument.h"
#include "libraryfile/LibraryFixture.h"
#include "libraryfile/SmallFileSystem.h"
#include "libraryfile/TemporaryName.h"

#include <QProcess>
#include <QStandardPaths>

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <set>

namespace songsweep {
namespace {

using test::contentOf;
using test::Folder;
using test::libraryXml;
using test::persistentIdOf;
using test::withoutTracks;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::StartsWith;

class LibraryWriteTest : public testing::Test {
  protected:
    LibraryDocument& open(const std::string& path) {
        LibraryDocument::Options options;
        options.lockTimeout = std::chrono::milliseconds(60);
        auto opened = LibraryDocument::open(path, options);
        EXPECT_TRUE(opened) << opened.error().message;
        m_library = std::move(opened).value();
        return *m_library;
    }

    LibraryDocument& openText(std::string_view text) { return open(m_folder.write("library.xml", text)); }

    void remove(const std::string& persistentId) {
        for (const auto track : m_library->tracksWithPersistentId(persistentId))
            EXPECT_TRUE(m_library->remove(track));
    }

    std::string content() const { return contentOf(m_library->path()); }

    Folder m_folder;
    std::unique_ptr<LibraryDocument> m_library;
};

TEST_F(LibraryWriteTest, TakesOutATrackAndItsItemsAndLeavesNoBlankLine) {
    openText(libraryXml(
        {{1, "A1", "<key>Name</key><string>x</string>"}, {2, "A2", ""}},
        {{"Library", "<key>Master</key><true/>", {1, 2}}, {"Mine", "", {2, 1, 2}}, {"Only", "", {1}}}));
    remove("A1");
    ASSERT_TRUE(m_library->flush());
    EXPECT_EQ(content(), libraryXml({{2, "A2", ""}}, {{"Library", "<key>Master</key><true/>", {2}},
                                                      {"Mine", "", {2, 2}},
                                                      {"Only", "", {}}}));
    EXPECT_EQ(m_library->pendingDeletions(), 0U);
    EXPECT_EQ(m_library->trackCount(), 1);
    EXPECT_EQ(m_library->playlists()[1].trackCount, 2);
    EXPECT_EQ(
        m_library->fields(m_library->tracksWithPersistentId("A2")[0]).value()->text(LibraryKey::trackId),
        "2");
}

TEST_F(LibraryWriteTest, AThousandOfTenThousandLeaveTheOtherBytesUnchanged) {
    const std::string text = test::manyTracks(10000);
    openText(text);
    std::set<int> ids;
    for (int n = 3; n < 10000; n += 10) {
        remove(persistentIdOf(n));
        ids.insert(1000 + 2 * n);
    }
    ASSERT_EQ(m_library->pendingDeletions(), 1000U);
    ASSERT_TRUE(m_library->flush());
    const std::string expected = withoutTracks(text, ids);
    ASSERT_LT(expected.size(), text.size() - 1000 * 200);
    EXPECT_TRUE(content() == expected);
    EXPECT_EQ(m_library->playlists()[0].trackCount, 9000);
    EXPECT_EQ(m_library->playlists()[1].trackCount, 9000);
    EXPECT_EQ(m_library->playlists()[2].trackCount, 3000);
    EXPECT_TRUE(contentOf(m_library->backup()) == text);
}

TEST_F(LibraryWriteTest, AnIndependentParserReadsTheResult) {
    const QString python = QStandardPaths::findExecutable(QStringLiteral("python3"));
    if (python.isEmpty()) GTEST_SKIP() << "python3 is not installed";
    openText(test::manyTracks(500));
    for (int n = 0; n < 500; n += 7)
        remove(persistentIdOf(n));
    ASSERT_TRUE(m_library->flush());
    const QString program = QStringLiteral(
        "import plistlib, sys\n"
        "p = plistlib.load(open(sys.argv[1], 'rb'))\n"
        "ids = {t['Track ID'] for t in p['Tracks'].values()}\n"
        "assert all(i['Track ID'] in ids for l in p['Playlists'] for i in l['Playlist Items'])\n"
        "print(len(ids), *[len(l['Playlist Items']) for l in p['Playlists']])\n");
    QProcess process;
    process.start(python, {QStringLiteral("-c"), program, QString::fromStdString(m_library->path())});
    ASSERT_TRUE(process.waitForFinished());
    EXPECT_EQ(process.readAllStandardOutput().trimmed().toStdString(), "428 428 428 143")
        << process.readAllStandardError().toStdString();
}

TEST_F(LibraryWriteTest, ReadsAndWritesWhatLooksOtherwise) {
    openText(
        "\xEF\xBB\xBF<?xml version=\"1.0\"?>\r\n<!-- c --><plist><dict><key>Tracks</key><dict>"
        "<key>1</key><dict/><!-- between --><key>2</key><!-- inside --><dict>\r\n<key>Persistent ID</key>"
        "<string>A2</string></dict> <!-- after --></dict><key>Playlists</key><array><dict><key>Playlist Items"
        "</key><array><dict><key>Track ID</key><integer>2</integer></dict><!-- x --><dict><key>Track ID</key>"
        "<integer>1</integer></dict></array></dict></array></dict></plist>");
    remove("A2");
    ASSERT_TRUE(m_library->flush());
    EXPECT_EQ(content(),
              "\xEF\xBB\xBF<?xml version=\"1.0\"?>\r\n<!-- c --><plist><dict><key>Tracks</key><dict>"
              "<key>1</key><dict/><!-- between --> <!-- after --></dict><key>Playlists</key><array><dict>"
              "<key>Playlist Items</key><array><!-- x --><dict><key>Track ID</key><integer>1</integer></dict>"
              "</array></dict></array></dict></plist>");
}

TEST_F(LibraryWriteTest, AnItemStaysWhileATrackOfItsIdStays) {
    openText(libraryXml({{1, "A1", ""}, {1, "A2", ""}}, {{"Mine", "", {1}}}));
    remove("A1");
    ASSERT_TRUE(m_library->flush());
    EXPECT_EQ(content(), libraryXml({{1, "A2", ""}}, {{"Mine", "", {1}}}));
}

TEST_F(LibraryWriteTest, NothingToDeleteWritesNothing) {
    openText(test::manyTracks(3));
    ASSERT_TRUE(m_library->flush());
    EXPECT_THAT(m_folder.names(), ElementsAre("library.xml"));
}

TEST_F(LibraryWriteTest, KeepsOneDatedBackupARun) {
    const std::string text = test::manyTracks(5);
    openText(text);
    remove(persistentIdOf(0));
    ASSERT_TRUE(m_library->flush());
    const std::string first = m_library->backup();
    remove(persistentIdOf(1));
    ASSERT_TRUE(m_library->flush());
    ASSERT_EQ(m_folder.names().size(), 2U);
    EXPECT_THAT(first,
                testing::ContainsRegex("/library \\(before deletions of [0-9-]{10} [0-9.]{8}\\).xml$"));
    EXPECT_EQ(contentOf(first), text);

    const std::string second = content();
    ASSERT_TRUE(m_library->beginCleanup({"a test"}));
    remove(persistentIdOf(2));
    ASSERT_TRUE(m_library->flush());
    m_library->endCleanup();
    EXPECT_EQ(m_folder.names().size(), 3U);
    EXPECT_NE(m_library->backup(), first);
    EXPECT_EQ(contentOf(m_library->backup()), second);
    EXPECT_EQ(contentOf(first), text);
}

TEST_F(LibraryWriteTest, ACleanUpThatEndsLeavesItsBackupAndNothingElse) {
    const std::string text = test::manyTracks(3);
    openText(text);
    ASSERT_TRUE(m_library->beginCleanup({"a test"}));
    EXPECT_EQ(contentOf(m_library->backup()), text);
    EXPECT_EQ(content(), text);
    m_library->endCleanup();
    EXPECT_THAT(m_folder.names(), ElementsAre(StartsWith("library (before deletions of "), "library.xml"));
}

TEST_F(LibraryWriteTest, NoRunBeginsInWhatAParserRefuses) {
    openText(libraryXml({{1, "A1", "<key>Name</key><string>a & b</string>"}}, {}));
    const auto begun = m_library->beginCleanup({"a test"});
    ASSERT_FALSE(begun);
    EXPECT_EQ(begun.error().code, Error::Code::invalid);
}

TEST_F(LibraryWriteTest, NoRunBeginsWhileAnotherProgramWrites) {
    openText(test::manyTracks(3));
    const auto lock = CleanupLock::acquire(m_library->path(), {"another test"});
    ASSERT_TRUE(lock);
    const auto begun = m_library->beginCleanup({"a test"});
    ASSERT_FALSE(begun);
    EXPECT_EQ(begun.error().code, Error::Code::busy);
}

TEST_F(LibraryWriteTest, BackupsOfOneSecondGetACounter) {
    openText(test::manyTracks(40));
    std::set<std::string> backups;
    for (int n = 0; n < 20; ++n) {
        ASSERT_TRUE(m_library->beginCleanup({"a test"}));
        remove(persistentIdOf(n));
        ASSERT_TRUE(m_library->flush());
        EXPECT_TRUE(backups.insert(m_library->backup()).second);
        m_library->endCleanup();
        EXPECT_EQ(m_folder.names().size(), backups.size() + 1);
    }
}

TEST_F(LibraryWriteTest, ALongNameIsShortenedForTheBackup) {
    std::string name = "a";
    while (name.size() < 250)
        name += "\xC3\xA4";
    open(m_folder.write(name + ".xml", test::manyTracks(2)));
    remove(persistentIdOf(0));
    ASSERT_TRUE(m_library->flush()) << m_library->lastWriteError()->message;
    const std::string backup = std::filesystem::path(m_library->backup()).filename().string();
    EXPECT_LE(backup.size(), 255U);
    EXPECT_THAT(backup, HasSubstr("\xC3\xA4 (before deletions of "));
}

TEST_F(LibraryWriteTest, KeepsThePermissions) {
    openText(test::manyTracks(2));
    ASSERT_EQ(::chmod(m_library->path().c_str(), 0640), 0);
    remove(persistentIdOf(0));
    ASSERT_TRUE(m_library->flush());
    struct stat status {};
    ASSERT_EQ(::stat(m_library->path().c_str(), &status), 0);
    EXPECT_EQ(status.st_mode & 07777, 0640U);
}

TEST_F(LibraryWriteTest, WritesTheTargetOfALink) {
    ASSERT_EQ(::mkdir(m_folder.pathOf("there").c_str(), 0700), 0);
    m_folder.write("there/real.xml", test::manyTracks(3));
    ASSERT_EQ(::symlink("there/real.xml", m_folder.pathOf("link.xml").c_str()), 0);
    open(m_folder.pathOf("link.xml"));
    remove(persistentIdOf(1));
    ASSERT_TRUE(m_library->flush());
    EXPECT_TRUE(std::filesystem::is_symlink(m_folder.pathOf("link.xml")));
    EXPECT_EQ(contentOf(m_folder.pathOf("there/real.xml")), withoutTracks(test::manyTracks(3), {1002}));
    EXPECT_THAT(m_folder.names(), ElementsAre("link.xml", "there"));
}

TEST_F(LibraryWriteTest, AChangeOfSomebodyElseIsKept) {
    openText(libraryXml({{1, "A1", ""}, {2, "A2", ""}}, {{"Mine", "", {1, 2}}}));
    remove("A1");
    const std::string added = "<key>Name</key><string>new</string>";
    m_folder.write("library.xml", libraryXml({{12, "A2", added}, {11, "A1", ""}, {13, "A3", added}},
                                             {{"Mine", "", {11, 13}}, {"Other", "", {11, 12}}}));
    ASSERT_TRUE(m_library->flush());
    EXPECT_EQ(content(),
              libraryXml({{12, "A2", added}, {13, "A3", added}}, {{"Mine", "", {13}}, {"Other", "", {12}}}));
}

TEST_F(LibraryWriteTest, OneOfTwoTracksOfAnIdIsKnownAgainByItsBytes) {
    const std::string second = "<key>Name</key><string>second</string>";
    openText(libraryXml({{1, "A1", ""}, {2, "A1", second}, {3, "", ""}, {4, "", second}}, {}));
    ASSERT_TRUE(m_library->remove(1));
    ASSERT_TRUE(m_library->remove(3));
    m_folder.write(
        "library.xml",
        libraryXml({{4, "", second}, {2, "A1", second}, {1, "A1", ""}, {3, "", ""}, {5, "A5", ""}}, {}));
    ASSERT_TRUE(m_library->refresh());
    EXPECT_EQ(m_library->pendingDeletions(), 2U);
    ASSERT_TRUE(m_library->flush());
    EXPECT_EQ(content(), libraryXml({{1, "A1", ""}, {3, "", ""}, {5, "A5", ""}}, {}));
}

TEST_F(LibraryWriteTest, AnIdenticalEntryThatNobodyDeletedStays) {
    openText(libraryXml({{3, "", ""}, {3, "", ""}}, {}));
    ASSERT_TRUE(m_library->remove(0));
    m_folder.write("library.xml", libraryXml({{3, "", ""}, {3, "", ""}, {5, "A5", ""}}, {}));
    ASSERT_TRUE(m_library->refresh());
    EXPECT_EQ(m_library->pendingDeletions(), 1U);
    ASSERT_TRUE(m_library->flush());
    EXPECT_EQ(content(), libraryXml({{3, "", ""}, {5, "A5", ""}}, {}));
}

TEST_F(LibraryWriteTest, ATrackThatCannotBeKnownAgainStays) {
    openText(libraryXml({{1, "", ""}, {2, "", ""}}, {}));
    ASSERT_TRUE(m_library->remove(0));
    const std::string changed = libraryXml({{1, "", "<key>Rating</key><integer>60</integer>"}}, {});
    m_folder.write("library.xml", changed);
    ASSERT_TRUE(m_library->flush());
    EXPECT_EQ(content(), changed);
    EXPECT_EQ(m_library->trackCount(), 1);
}

TEST_F(LibraryWriteTest, WhatAParserRefusesIsNotWritten) {
    const std::string text =
        libraryXml({{1, "A1", "<key>Name</key><string>a & b</string>"}, {2, "A2", ""}}, {});
    openText(text);
    remove("A2");
    const auto written = m_library->flush();
    ASSERT_FALSE(written);
    EXPECT_EQ(written.error().code, Error::Code::invalid);
    EXPECT_THAT(written.error().message, StartsWith("line 13: "));
    EXPECT_EQ(m_library->lastWriteError()->message, written.error().message);
    EXPECT_EQ(content(), text);
    EXPECT_THAT(m_folder.names(), ElementsAre("library.xml"));
}

TEST_F(LibraryWriteTest, EveryNameOfAnEncodingThatIsReadIsWritten) {
    for (const std::string name : {"utf8", "UTF8", "ascii", "US-ASCII", "utf-8"}) {
        std::string text = libraryXml({{1, "A1", ""}, {2, "A2", ""}}, {});
        text.replace(text.find("UTF-8"), 5, name);
        openText(text);
        remove("A2");
        const auto written = m_library->flush();
        EXPECT_TRUE(written) << name << ": " << written.error().message;
        EXPECT_EQ(content(), withoutTracks(text, {2})) << name;
    }
}

TEST_F(LibraryWriteTest, AFileCutOffMeanwhileIsNotWritten) {
    const std::string text = test::manyTracks(3);
    openText(text);
    remove(persistentIdOf(0));
    m_folder.write("library.xml", text.substr(0, text.size() / 2));
    EXPECT_FALSE(m_library->flush());
    EXPECT_EQ(content(), text.substr(0, text.size() / 2));
    EXPECT_TRUE(m_library->lastWriteError());
}

TEST_F(LibraryWriteTest, WhatWasReportedAsNotWrittenIsNeverWritten) {
    const std::string text = test::manyTracks(3);
    openText(text);
    remove(persistentIdOf(0));
    ASSERT_EQ(::unlink(m_library->path().c_str()), 0);
    const auto written = m_library->flush();
    ASSERT_FALSE(written);
    EXPECT_EQ(written.error().code, Error::Code::notFound);
    EXPECT_EQ(m_library->pendingDeletions(), 0U);
    EXPECT_EQ(m_library->trackCount(), 3);

    m_folder.write("library.xml", text);
    EXPECT_TRUE(m_library->flush());
    EXPECT_EQ(content(), text);
    remove(persistentIdOf(1));
    EXPECT_TRUE(m_library->flush());
    EXPECT_EQ(content(), withoutTracks(text, {1002}));
    EXPECT_FALSE(m_library->lastWriteError());
}

TEST_F(LibraryWriteTest, WaitsForAnotherProgramAndGivesUp) {
    const std::string text = test::manyTracks(3);
    openText(text);
    remove(persistentIdOf(0));
    {
        const auto lock = CleanupLock::acquire(m_library->path(), {"another test"});
        ASSERT_TRUE(lock);
        const auto written = m_library->flush();
        ASSERT_FALSE(written);
        EXPECT_EQ(written.error().code, Error::Code::busy);
        EXPECT_THAT(written.error().message, HasSubstr("(another test, process "));
        EXPECT_EQ(content(), text);
    }
    remove(persistentIdOf(0));
    EXPECT_TRUE(m_library->flush());
    EXPECT_EQ(m_folder.names().size(), 2U); // The lock left nothing behind.
}

TEST_F(LibraryWriteTest, TwoDocumentsOfOneLibraryKeepEachOthersDeletions) {
    const std::string text = test::manyTracks(10);
    openText(text);
    auto other = LibraryDocument::open(m_library->path());
    ASSERT_TRUE(other);
    remove(persistentIdOf(2));
    ASSERT_TRUE(other.value()->remove(5));
    ASSERT_TRUE(m_library->flush());
    ASSERT_TRUE(other.value()->flush());
    EXPECT_EQ(content(), withoutTracks(text, {1004, 1010}));
}

TEST_F(LibraryWriteTest, WhatAKilledProgramLeftIsRemoved) {
    openText(test::manyTracks(3));
    m_folder.write(TemporaryName::forWriting("library.xml", 7), "half a library");
    m_folder.write(TemporaryName::forWriting("other.xml", 7), "half of another");
    remove(persistentIdOf(0));
    ASSERT_TRUE(m_library->flush());
    EXPECT_THAT(m_folder.names(), ElementsAre(TemporaryName::forWriting("other.xml", 7),
                                              StartsWith("library (before deletions of "), "library.xml"));
}

TEST_F(LibraryWriteTest, AFullDiskLosesNothing) {
    const test::SmallFileSystem disk(m_folder.pathOf("disk"), 256 << 10);
    if (!disk.mounted()) GTEST_SKIP() << "mounting a file system is not permitted";
    const std::string text = test::manyTracks(300);
    ASSERT_GT(text.size(), 140U << 10);
    m_folder.write("disk/library.xml", text);
    open(m_folder.pathOf("disk/library.xml"));
    remove(persistentIdOf(0));
    const auto written = m_library->flush();
    ASSERT_FALSE(written);
    EXPECT_EQ(written.error().code, Error::Code::noSpace);
    EXPECT_EQ(content(), text);
    EXPECT_EQ(m_library->pendingDeletions(), 0U);
    EXPECT_EQ(std::distance(std::filesystem::directory_iterator(m_folder.pathOf("disk")), {}), 1);
}

TEST_F(LibraryWriteTest, AReadOnlyFolderLosesNothing) {
    const test::SmallFileSystem disk(m_folder.pathOf("disk"), 1 << 20);
    if (!disk.mounted()) GTEST_SKIP() << "mounting a file system is not permitted";
    const std::string text = test::manyTracks(20);
    m_folder.write("disk/library.xml", text);
    open(m_folder.pathOf("disk/library.xml"));
    ASSERT_TRUE(disk.makeReadOnly());
    const auto begun = m_library->beginCleanup({"a test"});
    ASSERT_FALSE(begun);
    EXPECT_EQ(begun.error().code, Error::Code::noPermission);
    remove(persistentIdOf(0));
    const auto written = m_library->flush();
    ASSERT_FALSE(written);
    EXPECT_EQ(written.error().code, Error::Code::noPermission);
    EXPECT_EQ(content(), text);
    EXPECT_EQ(m_library->pendingDeletions(), 0U);
}

} // namespace
} // namespace songsweep
