// SPDX-License-Identifier: MIT
#include "platform/linux/LinuxRecentFiles.h"
#include "support/TemporaryFolder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>

namespace songsweep {
namespace {

using test::TemporaryFolder;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;

class RecentFilesTest : public ::testing::Test {
  protected:
    std::string entry(const std::string& path, const std::string& used,
                      const std::string& application) const {
        return "<bookmark href=\"file://" + path + "\" added=\"" + used + "\" modified=\"" + used +
               "\" visited=\"" + used +
               "\"><info><metadata owner=\"http://freedesktop.org\"><mime:mime-type type=\"text/xml\"/>"
               "<bookmark:applications><bookmark:application name=\"" +
               application + "\" exec=\"&apos;x %u&apos;\" modified=\"" + used +
               "\" count=\"1\"/></bookmark:applications></metadata></info></bookmark>";
    }
    void writeList(const std::string& entries) const {
        m_folder.write("recently-used.xbel",
                       "<?xml version=\"1.0\" encoding=\"UTF-8\"?><xbel version=\"1.0\" "
                       "xmlns:bookmark=\"http://www.freedesktop.org/standards/desktop-bookmarks\" "
                       "xmlns:mime=\"http://www.freedesktop.org/standards/shared-mime-info\">" +
                           entries + "</xbel>");
    }

    TemporaryFolder m_folder;
    LinuxRecentFiles m_recent{m_folder.path() + "/recently-used.xbel"};
};

TEST_F(RecentFilesTest, AreNoneWithoutAList) { EXPECT_THAT(m_recent.libraries(), IsEmpty()); }

TEST_F(RecentFilesTest, AreTheLibrariesThatAreThereNewestFirst) {
    const std::string old = m_folder.write("old/iTunes Library.xml", "x");
    const std::string ours = m_folder.write("export.xml", "x");
    const std::string other = m_folder.write("letter.xml", "x");
    writeList(entry(m_folder.path() + "/old/iTunes%20Library.xml", "2019-01-01T10:00:00Z", "Editor") +
              entry(other, "2022-01-01T10:00:00Z", "Editor") +
              entry(m_folder.path() + "/gone/Library.xml", "2023-01-01T10:00:00Z", "Songsweep") +
              entry(ours, "2021-01-01T10:00:00Z", "Songsweep"));
    EXPECT_THAT(m_recent.libraries(), ElementsAre(ours, old));
}

TEST_F(RecentFilesTest, ANotedLibraryIsTheNewestAndOthersStay) {
    const std::string first = m_folder.write("a b.xml", "x");
    const std::string letter = m_folder.write("letter.xml", "x");
    writeList(entry(letter, "2022-01-01T10:00:00Z", "Editor") +
              entry("/gone", "2022-01-01T10:00:00Z", "Editor"));
    m_recent.note(first);
    EXPECT_THAT(m_recent.libraries(), ElementsAre(first));
    EXPECT_THAT(m_folder.read("recently-used.xbel"), HasSubstr("letter.xml"));
    EXPECT_THAT(m_folder.read("recently-used.xbel"), HasSubstr("file:///gone"));
}

TEST_F(RecentFilesTest, AListThatCannotBeReadStaysAsItIs) {
    m_folder.write("recently-used.xbel", "half a li");
    m_recent.note(m_folder.write("Library.xml", "x"));
    EXPECT_EQ(m_folder.read("recently-used.xbel"), "half a li");
    EXPECT_THAT(m_recent.libraries(), IsEmpty());
}

} // namespace
} // namespace songsweep
