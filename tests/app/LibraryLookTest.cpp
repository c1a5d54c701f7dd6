// SPDX-License-Identifier: MIT
#include "app/LibraryLook.h"

#include "platform/Files.h"
#include "support/TemporaryFolder.h"

#include <gmock/gmock.h>

namespace songsweep {
namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;

class LibraryLookTest : public ::testing::Test {
  protected:
    void addRecord(bool isDead) {
        m_list->records.push_back(&m_list->storage->makeRecord());
        m_list->records.back()->isdead = isDead;
    }
    std::unique_ptr<LibraryLook> makeLook() {
        const LibraryLocations locations = [this](const LocationVisitor& visit) {
            for (const std::string& path : m_paths) {
                ++m_visited;
                if (!visit("", path)) break;
            }
            return m_canBeVisited;
        };
        return std::make_unique<LibraryLook>(m_list, FilePlaces{m_files, locations, m_rules, m_library},
                                             m_findings);
    }

    Files m_files;
    std::shared_ptr<TrackList> m_list = std::make_shared<TrackList>();
    std::shared_ptr<LibraryFindings> m_findings = std::make_shared<LibraryFindings>();
    std::vector<std::string> m_paths = {"/Users/ann/a.mp3", "/Users/ann/b.mp3"};
    std::vector<MapRule> m_rules;
    std::string m_library;
    bool m_canBeVisited = true;
    int m_visited = 0;
};

TEST_F(LibraryLookTest, WarnsOfALibraryAllOfWhoseFilesAreMissing) {
    addRecord(true);
    makeLook()->main();
    EXPECT_THAT(m_findings->warnings, ElementsAre(HasSubstr("(the first is /Users/ann/a.mp3)")));
}

TEST_F(LibraryLookTest, VisitsNothingWhereARecordHasItsFile) {
    addRecord(true);
    addRecord(false);
    makeLook()->main();
    EXPECT_THAT(m_findings->warnings, IsEmpty());
    EXPECT_EQ(m_visited, 0);
}

TEST_F(LibraryLookTest, WarnsOfARuleThatCoversNothing) {
    addRecord(false);
    m_rules = {{"/Users/ann", "/here"}, {"/Users/bob", "/here"}};
    makeLook()->main();
    EXPECT_THAT(m_findings->warnings, ElementsAre(HasSubstr("--map /Users/bob=/here changes nothing")));
}

TEST_F(LibraryLookTest, SaysNothingOfALibraryThatItCouldNotVisit) {
    m_canBeVisited = false;
    m_rules = {{"/Users/bob", "/here"}};
    makeLook()->main();
    EXPECT_THAT(m_findings->warnings, IsEmpty());
}

TEST_F(LibraryLookTest, TellsTheMapByWhichTheFilesBesideTheLibraryAreFound) {
    const test::TemporaryFolder folder;
    folder.write("Music/a.mp3", "sound");
    m_library = folder.path() + "/Library.xml";
    addRecord(true);
    makeLook()->main();
    EXPECT_THAT(m_findings->warnings,
                ElementsAre(HasSubstr("--map \"/Users/ann=" + folder.path() +
                                      "/Music\" finds 1 of the 2 files that were tried")));
}

TEST_F(LibraryLookTest, CountsTheFilesThatAreMissing) {
    addRecord(true);
    addRecord(true);
    addRecord(false);
    for (const std::size_t file : {0, 2})
        m_list->records[file]->location = "/Users/ann/a.mp3";
    m_list->records[1]->location = "/Users/ann/b.mp3";
    addRecord(true);
    m_list->records[3]->location = "http://host/stream";
    makeLook()->main();
    EXPECT_EQ(m_findings->missing.files, 3);
    EXPECT_EQ(m_findings->missing.missing, 2);
    EXPECT_TRUE(m_findings->missing.areMost());
    EXPECT_FALSE(m_findings->missing.areAll());
    EXPECT_THAT(m_findings->missing.sample, ::testing::Contains("/Users/ann/b.mp3"));
}

TEST_F(LibraryLookTest, CountsTheLibrarysFilesWhereTheListHasNone) {
    makeLook()->main();
    EXPECT_TRUE(m_findings->missing.areAll());
    EXPECT_EQ(m_findings->missing.files, 2);
}

TEST_F(LibraryLookTest, EndsWhenItIsCancelled) {
    const std::unique_ptr<LibraryLook> look = makeLook();
    look->cancel();
    look->main();
    EXPECT_EQ(m_visited, 1);
}

} // namespace
} // namespace songsweep
