// SPDX-License-Identifier: MIT
#include "platform/GivenLibrary.h"
#include "platform/linux/LinuxPreferences.h"
#include "support/TemporaryFolder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <plist/plist.h>
#include <pwd.h>
#include <unistd.h>

namespace songsweep {
namespace {

using test::TemporaryFolder;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

const std::string plistName = "Library/Preferences/com.apple.iApps.plist";
const std::string plistHead = "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<plist version=\"1.0\">";

std::string domainXml(const std::string& entries) {
    return plistHead + "<dict><key>iPhotoRecentDatabases</key><array><string>file:///x</string></array>" +
           "<key>iTunesRecentDatabases</key><array>" + entries + "</array></dict></plist>";
}

std::string binaryOf(const std::string& xml) {
    plist_t list = nullptr;
    plist_from_xml(xml.data(), static_cast<std::uint32_t>(xml.size()), &list);
    char* data = nullptr;
    std::uint32_t length = 0;
    plist_to_bin(list, &data, &length);
    std::string binary(data, length);
    plist_to_bin_free(data);
    plist_free(list);
    return binary;
}

class PreferencesOnLinux : public ::testing::Test {
  protected:
    std::string music() const { return m_folder.path() + "/Musik"; }

    TemporaryFolder m_folder;
    LinuxPreferences m_preferences{
        {m_folder.path(), {m_folder.path() + "/Musik", m_folder.path() + "/Music"}}};
};

TEST_F(PreferencesOnLinux, HaveNoDomainWhereThereIsNoLibrary) { EXPECT_FALSE(m_preferences.iAppsDomain()); }

TEST_F(PreferencesOnLinux, FindALibraryInTheMusicFolder) {
    m_folder.write("Musik/iTunes/iTunes Library.xml", "");
    ASSERT_TRUE(m_preferences.iAppsDomain());
    EXPECT_THAT(m_preferences.iAppsDomain()->iTunesRecentDatabases,
                ElementsAre("file://" + music() + "/iTunes/iTunes%20Library.xml"));
}

TEST_F(PreferencesOnLinux, ListEveryLibraryOnce) {
    m_folder.write("Musik/iTunes/iTunes Library.xml", "");
    m_folder.write("Musik/Music/Library.xml", "");
    m_folder.write("Music/iTunes Music Library.xml", "");
    const LinuxPreferences twice({m_folder.path(), {music(), m_folder.path() + "/Music", music()}});
    EXPECT_THAT(twice.libraries(),
                ElementsAre(music() + "/iTunes/iTunes Library.xml", music() + "/Music/Library.xml",
                            m_folder.path() + "/Music/iTunes Music Library.xml"));
}

TEST_F(PreferencesOnLinux, FindTheFileThatITunesItselfKeepsFirst) {
    m_folder.write("Music/Music Library.xml", "");
    m_folder.write("Musik/Music/Music Library.xml", "");
    m_folder.write("Musik/iTunes/iTunes Music Library.xml", "");
    EXPECT_THAT(m_preferences.iAppsDomain()->iTunesRecentDatabases,
                ElementsAre("file://" + music() + "/iTunes/iTunes%20Music%20Library.xml"));
}

TEST_F(PreferencesOnLinux, FindALibraryInAnyUsualPlace) {
    for (const char* name : {"Musik/iTunes/iTunes Music Library.xml", "Musik/iTunes Library.xml",
                             "Musik/Music/Library.xml", "Musik/Music Library.xml", "Music/Library.xml"}) {
        const std::string path = m_folder.write(name, "");
        EXPECT_TRUE(m_preferences.iAppsDomain()) << name;
        std::filesystem::remove(path);
    }
}

TEST_F(PreferencesOnLinux, TakeNoFolderForALibrary) {
    std::filesystem::create_directories(music() + "/iTunes/iTunes Library.xml");
    EXPECT_FALSE(m_preferences.iAppsDomain());
}

TEST_F(PreferencesOnLinux, LeaveTheAnswerToThePropertyListFile) {
    m_folder.write("Musik/iTunes/iTunes Library.xml", "");
    m_folder.write(plistName, domainXml("<string>file:///a.xml</string>"));
    EXPECT_FALSE(m_preferences.iAppsDomain());
}

TEST_F(PreferencesOnLinux, ReadAnXmlPropertyList) {
    const std::string path = m_folder.write(
        plistName, domainXml("<string>file://localhost/a%20&amp;b.xml</string><string>file:///2</string>"));
    const std::optional<IAppsDomain> domain = m_preferences.iAppsPropertyList(path);
    ASSERT_TRUE(domain);
    EXPECT_THAT(domain->iTunesRecentDatabases, ElementsAre("file://localhost/a%20&b.xml", "file:///2"));
}

TEST_F(PreferencesOnLinux, ReadABinaryPropertyList) {
    const std::string path = m_folder.write(
        plistName, binaryOf(domainXml("<string>file:///caf\u00e9.xml</string><string>b</string>")));
    const std::optional<IAppsDomain> domain = m_preferences.iAppsPropertyList(path);
    ASSERT_TRUE(domain);
    EXPECT_THAT(domain->iTunesRecentDatabases, ElementsAre("file:///caf\u00e9.xml", "b"));
}

TEST_F(PreferencesOnLinux, HaveNoEntriesWhereTheListNamesNone) {
    const std::string texts[] = {
        plistHead + "<dict></dict></plist>", domainXml(""),
        plistHead + "<dict><key>iTunesRecentDatabases</key><string>x</string></dict></plist>"};
    for (const std::string& text : texts) {
        const std::optional<IAppsDomain> domain =
            m_preferences.iAppsPropertyList(m_folder.write("list", text));
        ASSERT_TRUE(domain) << text;
        EXPECT_THAT(domain->iTunesRecentDatabases, IsEmpty()) << text;
    }
}

TEST_F(PreferencesOnLinux, KeepThePlaceOfAnEntryThatIsNoText) {
    const std::string path = m_folder.write("list", domainXml("<integer>1</integer><string>b</string>"));
    EXPECT_THAT(m_preferences.iAppsPropertyList(path)->iTunesRecentDatabases, ElementsAre("", "b"));
}

TEST_F(PreferencesOnLinux, HaveNothingWhereTheListCannotBeRead) {
    EXPECT_FALSE(m_preferences.iAppsPropertyList(m_folder.path() + "/missing"));
    EXPECT_FALSE(m_preferences.iAppsPropertyList(m_folder.path()));
    for (const char* text : {"", "no list", "<plist><dict>", "bplist00", "bplist00\xff\xff\xff\xff",
                             "<plist version=\"1.0\"><array></array></plist>"})
        EXPECT_FALSE(m_preferences.iAppsPropertyList(m_folder.write("list", text))) << text;
}

TEST_F(PreferencesOnLinux, KnowTheHomeFolderOfThePasswordDatabase) {
    const passwd* entry = ::getpwuid(::getuid());
    ASSERT_NE(entry, nullptr);
    const LinuxPreferences::Folders folders = LinuxPreferences::userFolders();
    EXPECT_EQ(folders.home, entry->pw_dir);
    EXPECT_EQ(LinuxPreferences(folders).homeFolder(), entry->pw_dir);
    EXPECT_EQ(folders.music.back(), std::string(entry->pw_dir) + "/Music");
}

TEST(GivenLibraryTest, IsTheOnlyRecentDatabase) {
    const GivenLibrary preferences("/Music/a b?.xml");
    ASSERT_TRUE(preferences.iAppsDomain());
    EXPECT_THAT(preferences.iAppsDomain()->iTunesRecentDatabases, ElementsAre("file:///Music/a%20b%3F.xml"));
}

TEST(GivenLibraryTest, ReadsNoPropertyList) {
    const TemporaryFolder folder;
    const std::string path = folder.write("list", domainXml("<string>file:///a.xml</string>"));
    EXPECT_FALSE(GivenLibrary("/a.xml").iAppsPropertyList(path));
    EXPECT_EQ(GivenLibrary("/a.xml").homeFolder(), LinuxPreferences::userFolders().home);
}

} // namespace
} // namespace songsweep
