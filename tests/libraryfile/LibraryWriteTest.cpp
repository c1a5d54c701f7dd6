// SPDX-License-Identifier: MIT
#include "libraryfile/LibraryWriteFixture.h"
#include "libraryfile/TemporaryName.h"

#include <QProcess>
#include <QStandardPaths>

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <filesystem>
#include <set>

namespace songsweep {
namespace {

using test::contentOf;
using test::libraryXml;
using test::persistentIdOf;
using test::withoutTracks;
using testing::ElementsAre;
using testing::StartsWith;

class LibraryWriteTest : public test::LibraryWriteFixture {};

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

TEST_F(LibraryWriteTest, WhatAKilledProgramLeftIsRemoved) {
    openText(test::manyTracks(3));
    m_folder.write(TemporaryName::forWriting("library.xml", 7), "half a library");
    m_folder.write(TemporaryName::forWriting("other.xml", 7), "half of another");
    remove(persistentIdOf(0));
    ASSERT_TRUE(m_library->flush());
    EXPECT_THAT(m_folder.names(), ElementsAre(TemporaryName::forWriting("other.xml", 7),
                                              StartsWith("library (before deletions of "), "library.xml"));
}

} // namespace
} // namespace songsweep
