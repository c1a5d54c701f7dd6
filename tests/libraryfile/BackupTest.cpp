// SPDX-License-Identifier: MIT
#include "libraryfile/Backup.h"

#include "libraryfile/LibraryWriteFixture.h"
#include "platform/Utf8.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <set>

namespace songsweep {
namespace {

using test::contentOf;
using test::persistentIdOf;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::StartsWith;

class BackupTest : public test::LibraryWriteFixture {};

TEST_F(BackupTest, KeepsOneDatedBackupARun) {
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

TEST_F(BackupTest, ACleanUpThatEndsLeavesItsBackupAndNothingElse) {
    const std::string text = test::manyTracks(3);
    openText(text);
    ASSERT_TRUE(m_library->beginCleanup({"a test"}));
    EXPECT_EQ(contentOf(m_library->backup()), text);
    EXPECT_EQ(content(), text);
    m_library->endCleanup();
    EXPECT_THAT(m_folder.names(), ElementsAre(StartsWith("library (before deletions of "), "library.xml"));
}

TEST_F(BackupTest, BackupsOfOneSecondGetACounter) {
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

TEST_F(BackupTest, ALongNameIsShortenedBetweenTwoCharacters) {
    for (const std::string character : {"\xC3\xA4", "\xE2\x99\xAA", "\xF0\x9F\x8E\xB5"}) {
        for (std::size_t begin = 0; begin < character.size(); ++begin) {
            std::string name(begin, 'a');
            while (name.size() + character.size() <= 251)
                name += character;
            open(m_folder.write(name + ".xml", test::manyTracks(2)));
            remove(persistentIdOf(0));
            ASSERT_TRUE(m_library->flush()) << m_library->lastWriteError()->message;
            const std::string backup = std::filesystem::path(m_library->backup()).filename().string();
            EXPECT_LE(backup.size(), 255U);
            EXPECT_TRUE(isUtf8(backup)) << backup;
            EXPECT_THAT(backup, HasSubstr(character + " (before deletions of "));
        }
    }
}

} // namespace
} // namespace songsweep
