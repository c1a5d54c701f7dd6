// SPDX-License-Identifier: MIT
#include "library/WorkerEvent.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <vector>

namespace songsweep {
namespace {

TEST(WorkerEventTest, EveryEventHasTheTextThatTheLogShows) {
    EXPECT_EQ(text(EventName::addFinish), "addFinish");
    EXPECT_EQ(text(EventName::xmlDoneParsing), "xmlDoneParsing");
    EXPECT_EQ(text(EventName::xmlErrorParsing), "xmlErrorParsing");
    EXPECT_EQ(text(EventName::xmlErrorProcessing), "xmlErrorProcessing");
    EXPECT_EQ(text(EventName::xmlerrornotfound), "xmlerrornotfound");
    EXPECT_EQ(text(EventName::xmlModifiedDate), "xmlModifiedDate");
    EXPECT_EQ(text(EventName::buildFinish), "buildFinish");
    EXPECT_EQ(text(EventName::addCancel), "addCancel");
    EXPECT_EQ(text(EventName::step1), "step1");
    EXPECT_EQ(text(EventName::progressx), "progressx");
    EXPECT_EQ(text(EventName::step2), "step2");
    EXPECT_EQ(text(EventName::progress), "progress");
    EXPECT_EQ(text(EventName::deleteAddCount), "deleteAddCount");
    EXPECT_EQ(text(EventName::deleteValidity), "deleteValidity");
    EXPECT_EQ(text(EventName::deleteFinish), "deleteFinish");
    EXPECT_EQ(text(EventName::deleteCancel), "deleteCancel");
    EXPECT_EQ(text(EventName::tableviewSpacebar), "tableviewSpacebar");
    EXPECT_EQ(text(EventName::readError), "readError");
    EXPECT_EQ(text(EventName::surveyDone), "surveyDone");
    EXPECT_EQ(text(EventName::cleanupsListed), "cleanupsListed");
    EXPECT_EQ(text(EventName::restoreForeseen), "restoreForeseen");
    EXPECT_EQ(text(EventName::restoreProgress), "restoreProgress");
    EXPECT_EQ(text(EventName::restoreFinish), "restoreFinish");
    EXPECT_EQ(text(EventName::interruptionFound), "interruptionFound");
    EXPECT_EQ(text(EventName::cleanupFinished), "cleanupFinished");
    EXPECT_EQ(text(EventName::libraryRead), "libraryRead");
}

TEST(WorkerEventTest, NobodyWaitsForWhatComesByTheStep) {
    std::vector<EventName> counts;
    for (auto name = EventName::addFinish; name <= EventName::tableviewSpacebar;
         name = static_cast<EventName>(static_cast<int>(name) + 1)) {
        if (isCount(WorkerEvent{name, {}, nullptr})) counts.push_back(name);
    }
    EXPECT_THAT(counts, ::testing::ElementsAre(EventName::step1, EventName::step2, EventName::progress,
                                               EventName::deleteAddCount));
}

} // namespace
} // namespace songsweep
