// SPDX-License-Identifier: MIT
#include "restore/RestoreProc.h"

#include "library/WorkerEvent.h"
#include "operations/NotificationCenter.h"
#include "support/RecordingLog.h"
#include "support/RecordingTrash.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <stdexcept>

namespace songsweep {
namespace {

class RestoreProcTest : public testing::Test {
  protected:
    RestoreProcTest() {
        m_center.setObserver([this](const WorkerEvent& event) {
            ASSERT_EQ(event.name, EventName::restoreFinish);
            m_problems.push_back(std::get<std::shared_ptr<RestoreAnswer>>(event.payload)->problem);
        });
    }

    RestoreProc worker(std::function<Result<void>()> writeLibrary) {
        return RestoreProc({"/nowhere/library.xml", "/nowhere/record.jsonl", {}},
                           {m_center, m_trash, m_log, "a test", std::move(writeLibrary)});
    }

    NotificationCenter<WorkerEvent> m_center;
    std::vector<std::string> m_calls;
    test::RecordingTrash m_trash{m_calls};
    test::RecordingLog m_log;
    std::vector<std::string> m_problems;
};

TEST_F(RestoreProcTest, BeginsNothingWhereThisProgramsOwnChangesCannotBeWritten) {
    worker([] { return Result<void>(Error{Error::Code::noSpace, "the disk is full"}); }).main();
    EXPECT_THAT(m_problems, testing::ElementsAre("the disk is full"));
}

TEST_F(RestoreProcTest, TellsItsEndHoweverItComes) {
    auto failing = worker([]() -> Result<void> { throw std::runtime_error("a defect"); });
    EXPECT_THROW(failing.main(), std::runtime_error);
    EXPECT_THAT(m_problems, testing::ElementsAre("Songsweep met a fault of its own"));
    EXPECT_TRUE(m_calls.empty());
}

} // namespace
} // namespace songsweep
