// SPDX-License-Identifier: MIT
#include "library/LibraryFileFinder.h"

#include "library/ReaderFixture.h"

#include <gmock/gmock.h>

#include <filesystem>

namespace songsweep {
namespace {

using std::chrono::seconds;
using testing::ElementsAre;

class LocatingTest : public test::ReaderFixture {};

TEST_F(LocatingTest, TakesTheFirstRecentDatabaseOnly) {
    useLibrary("no-playlists.xml");
    m_preferences.domain = IAppsDomain{{"file:///no/first.xml", "file://localhost" + path("library.xml")}};
    run({}, 1);
    EXPECT_THAT(m_trace,
                ElementsAre("XML Parsing", "iTunes library file : /no/first.xml", "Cannot locate iTunes XML",
                            "> xmlErrorParsing", "Begin XML Finally", "End XML Finally"));
}

TEST_F(LocatingTest, WithoutADomainReadsThePropertyListInTheHomeFolder) {
    useLibrary("no-playlists.xml");
    m_preferences.propertyList = m_preferences.domain;
    m_preferences.domain.reset();
    run({}, 1);
    EXPECT_EQ(m_trace.at(1), "Home folder: /Users/ann/Library/Preferences/com.apple.iApps.plist");
    EXPECT_EQ(m_trace.at(2), "iTunes library file : " + path("library.xml"));
    EXPECT_EQ(m_preferences.askedPath, "/Users/ann/Library/Preferences/com.apple.iApps.plist");
    EXPECT_EQ(events().back(), "addFinish");
}

TEST_F(LocatingTest, WithoutRecentDatabasesThereIsNoLibrary) {
    m_preferences.domain = IAppsDomain{};
    run({}, 1);
    EXPECT_THAT(m_trace, ElementsAre("XML Parsing", "RecentDatabases !> 0", "> xmlErrorParsing",
                                     "Begin XML Finally", "End XML Finally"));
}

TEST_F(LocatingTest, WithoutADomainAndAPropertyListThereIsNoLibrary) {
    m_preferences.domain.reset();
    m_preferences.home = "/";
    run({}, 1);
    EXPECT_THAT(m_trace, ElementsAre("XML Parsing", "Home folder: /Library/Preferences/com.apple.iApps.plist",
                                     "RecentDatabases !> 0", "> xmlErrorParsing", "Begin XML Finally",
                                     "End XML Finally"));
}

TEST_F(LocatingTest, ADatabaseThatIsNoUrlCannotBeLocated) {
    m_preferences.domain = IAppsDomain{{"file://localhost/My Library.xml"}};
    run({}, 1);
    EXPECT_EQ(m_trace.at(1), "iTunes library file : (null)");
    EXPECT_EQ(m_trace.at(2), "Cannot locate iTunes XML");
}

TEST_F(LocatingTest, ThePathMapOfTheMusicLeavesTheLibraryWhereItIs) {
    useLibrary("no-playlists.xml");
    PathMap map;
    map.add(m_folder.path().toStdString(), "/nowhere");
    Files mapped(map);
    SWXMLParser parser(m_list, {}, 1, 0, false, 5, 10,
                       {m_center, m_scripts, mapped, m_preferences, m_sleeper, m_log});
    run(parser);
    EXPECT_EQ(events().back(), "addFinish");
}

TEST_F(LocatingTest, AMissingLibraryLeavesTheTrackListUntouched) {
    m_list->records.push_back(&m_list->storage->makeRecord());
    run({}, 1);
    EXPECT_THAT(events(), ElementsAre("xmlErrorParsing"));
    EXPECT_EQ(m_list->records.size(), 1U);
}

class WaitingTest : public test::ReaderFixture {
  protected:
    WaitingTest() { useLibrary("no-playlists.xml"); }

    void runAfterDeletion(std::int64_t lastModified, std::int32_t delay = 5, std::int32_t delayMax = 10) {
        SWXMLParser parser(m_list, {}, 1, lastModified, true, delay, delayMax, m_services);
        run(parser);
    }
    std::int64_t modified() const { return m_files.attributes(path("library.xml"))->modificationNanoseconds; }
    void touch() {
        std::filesystem::last_write_time(path("library.xml"),
                                         std::filesystem::last_write_time(path("library.xml")) + seconds(7));
    }
    /// The log between the library's path and the end or the reading.
    test::Trace wait() const {
        const auto begin = m_trace.begin() + 2;
        const auto isEnd = [](const std::string& line) {
            return line == "Begin Parse XML" || line == "Begin XML Finally";
        };
        return {begin, std::find_if(begin, m_trace.end(), isEnd)};
    }
};

TEST_F(WaitingTest, WithoutADeletionNothingIsWaitedFor) {
    run({}, 1);
    EXPECT_THAT(wait(), ElementsAre("> xmlModifiedDate"));
    EXPECT_EQ(m_sleeper.slept, seconds(0));
}

TEST_F(WaitingTest, AFileOfAnotherDateNeedsNoSleep) {
    runAfterDeletion(modified() - 1);
    EXPECT_THAT(wait(), ElementsAre("Xml enter delay", "> xmlModifiedDate"));
    EXPECT_EQ(m_sleeper.slept, seconds(0));
    EXPECT_EQ(events().back(), "addFinish");
}

TEST_F(WaitingTest, AFileThatNeverChangesFailsAfterElevenSeconds) {
    runAfterDeletion(modified());
    EXPECT_THAT(wait(),
                ElementsAre("Xml enter delay", "Xml enter sleep", "Xml enter sleep2", "> xmlErrorParsing"));
    EXPECT_EQ(m_sleeper.slept, seconds(11));
}

TEST_F(WaitingTest, AFileRewrittenInTheFirstWaitIsReadAfterFiveSeconds) {
    const std::int64_t before = modified();
    m_sleeper.onSleep = [this] {
        if (m_sleeper.slept == seconds(3)) touch();
    };
    runAfterDeletion(before);
    EXPECT_THAT(wait(), ElementsAre("Xml enter delay", "Xml enter sleep", "> xmlModifiedDate"));
    EXPECT_EQ(m_sleeper.slept, seconds(5));
    EXPECT_EQ(m_modifiedDates.at(0).modificationNanoseconds, before + 7'000'000'000);
}

TEST_F(WaitingTest, AFileRewrittenInTheSecondWaitIsReadAfterElevenSeconds) {
    m_sleeper.onSleep = [this] {
        if (m_sleeper.slept == seconds(8)) touch();
    };
    runAfterDeletion(modified());
    EXPECT_THAT(wait(),
                ElementsAre("Xml enter delay", "Xml enter sleep", "Xml enter sleep2", "> xmlModifiedDate"));
    EXPECT_EQ(m_sleeper.slept, seconds(11));
    EXPECT_EQ(events().back(), "addFinish");
}

TEST_F(WaitingTest, TheSecondWaitIsOneSecondLongerThanTheDelaysDiffer) {
    for (const auto& [delay, delayMax, total] : {std::tuple(0, 0, 1), {3, 3, 4}, {2, 9, 10}, {4, 1, 4}}) {
        m_sleeper.slept = {};
        runAfterDeletion(modified(), delay, delayMax);
        EXPECT_EQ(m_sleeper.slept, seconds(total)) << delay << " " << delayMax;
    }
}

TEST_F(WaitingTest, ACancelEndsTheWaitingEarly) {
    SWXMLParser parser(m_list, {}, 1, modified(), true, 5, 10, m_services);
    m_sleeper.onSleep = [&parser] { parser.cancel(); };
    run(parser);
    EXPECT_LT(m_sleeper.slept, seconds(1));
    EXPECT_THAT(events(), ElementsAre("xmlErrorParsing", "addCancel"));
}

TEST_F(WaitingTest, AFileThatDisappearsCannotBeOpened) {
    m_sleeper.onSleep = [this] { std::filesystem::remove(path("library.xml")); };
    runAfterDeletion(modified());
    EXPECT_THAT(events(), ElementsAre("xmlModifiedDate", "xmlErrorParsing"));
    EXPECT_THAT(m_trace, testing::Not(testing::Contains("Begin Parse XML")));
}

} // namespace
} // namespace songsweep
