// SPDX-License-Identifier: MIT
#include "operations/NotificationCenter.h"
#include "operations/OperationQueue.h"
#include "operations/TestOperation.h"
#include "support/EventLoop.h"
#include "support/RecordingLog.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <atomic>
#include <thread>
#include <vector>

namespace songsweep {
namespace {

using test::Kind;
using test::operation;
using test::runEventLoopUntil;
using test::TestEvent;
using test::TestOperation;
using ::testing::Each;
using ::testing::ElementsAre;

/// Workers that post counts, and what was handled of them.
class NotificationCenterCountsTest : public ::testing::Test {
  protected:
    NotificationCenterCountsTest() {
        m_center.setObserver([this](const TestEvent& event) {
            m_handled.push_back(event.kind);
            m_senders.push_back(m_center.handling());
            m_handledCount = m_handled.size();
        });
    }
    ~NotificationCenterCountsTest() override {
        m_mayGoOn = true; // a worker never outlives its test
    }
    void waitForLeave() const {
        while (!m_mayGoOn)
            std::this_thread::yield();
    }
    bool runUntilIdle() {
        return runEventLoopUntil([this] { return m_queue.operationCount() == 0; });
    }

    std::vector<Kind> m_handled;
    std::vector<const Operation*> m_senders;
    std::atomic<std::size_t> m_handledCount = 0;
    std::atomic<bool> m_mayGoOn = false;
    test::RecordingLog m_log;
    NotificationCenter<TestEvent> m_center;
    OperationQueue m_queue{m_center, m_log};
};

TEST_F(NotificationCenterCountsTest, ACountIsNotWaitedFor) {
    std::atomic<bool> hasReturned = false;
    m_queue.add(operation([&](TestOperation& self) {
        m_center.post(self.event(Kind::count));
        hasReturned = true;
        waitForLeave();
    }));
    while (!hasReturned)
        std::this_thread::yield(); // the main thread's loop does not run
    EXPECT_EQ(m_handled.size(), 0U);
}

TEST_F(NotificationCenterCountsTest, CountsRideAlongWithTheNextEventEachInItsPlace) {
    m_queue.add(operation([&](TestOperation& self) {
        m_center.post(self.event(Kind::count));
        m_center.post(self.event(Kind::count));
        m_center.post(self.event(Kind::step));
        m_center.post(self.event(Kind::count));
        m_center.post(self.event(Kind::end));
    }));
    ASSERT_TRUE(runUntilIdle());
    EXPECT_THAT(m_handled, ElementsAre(Kind::count, Kind::count, Kind::step, Kind::count, Kind::end));
}

TEST_F(NotificationCenterCountsTest, BothKindsOfCountsKeepTheirOrder) {
    m_queue.add(operation([&](TestOperation& self) {
        m_center.post(self.event(Kind::otherCount));
        m_center.post(self.event(Kind::count));
        m_center.post(self.event(Kind::otherCount));
        m_center.post(self.event(Kind::end));
    }));
    ASSERT_TRUE(runUntilIdle());
    EXPECT_THAT(m_handled, ElementsAre(Kind::otherCount, Kind::count, Kind::otherCount, Kind::end));
}

TEST_F(NotificationCenterCountsTest, EveryCountCarriesItsSender) {
    auto counting = operation([&](TestOperation& self) {
        m_center.post(self.event(Kind::count));
        m_center.post(self.event(Kind::count));
        m_center.post(self.event(Kind::end));
    });
    const auto* sender = counting.get();
    m_queue.add(std::move(counting));
    ASSERT_TRUE(runUntilIdle());
    ASSERT_EQ(m_senders.size(), 3U);
    EXPECT_THAT(m_senders, Each(sender));
}

TEST_F(NotificationCenterCountsTest, ACountWithoutAnEventAfterItIsHandledWhileTheWorkerGoesOn) {
    m_queue.add(operation([&](TestOperation& self) {
        m_center.post(self.event(Kind::otherCount));
        waitForLeave();
    }));
    EXPECT_TRUE(runEventLoopUntil([this] { return m_handled.size() == 1; }));
    EXPECT_FALSE(m_mayGoOn);
}

TEST_F(NotificationCenterCountsTest, EveryCountWithoutAnEventAfterItIsHandledWhileTheWorkerGoesOn) {
    m_queue.add(operation([&](TestOperation& self) {
        for (std::size_t number = 1; number <= 3; ++number) {
            m_center.post(self.event(Kind::count));
            while (m_handledCount < number && !m_mayGoOn)
                std::this_thread::sleep_for(std::chrono::milliseconds(1));
        }
        waitForLeave();
    }));
    EXPECT_TRUE(runEventLoopUntil([this] { return m_handled.size() == 3; }));
}

TEST_F(NotificationCenterCountsTest, ABatchInHandIsNotHandledAgainByALoopInsideItsHandler) {
    m_center.setObserver([this](const TestEvent& event) {
        m_handled.push_back(event.kind);
        test::handleWaitingEvents();
    });
    std::atomic<bool> isAboutToWait = false;
    m_queue.add(operation([&](TestOperation& self) {
        m_center.post(self.event(Kind::count)); // wakes the main thread
        isAboutToWait = true;
        m_center.post(self.event(Kind::end)); // wakes it again, since its loop has not run yet
    }));
    while (!isAboutToWait)
        std::this_thread::yield();
    std::this_thread::sleep_for(std::chrono::milliseconds(20));
    ASSERT_TRUE(runUntilIdle());
    EXPECT_THAT(m_handled, ElementsAre(Kind::count, Kind::end));
}

TEST_F(NotificationCenterCountsTest, ACountIsHandledWithinFiftyMillisecondsOfAnIdleLoop) {
    using Clock = std::chrono::steady_clock;
    // The best of several tries: a busy machine may delay any of them, a wrong delay delays all.
    auto best = Clock::duration::max();
    for (int attempt = 0; attempt < 10 && best > std::chrono::milliseconds(50); ++attempt) {
        const auto before = m_handledCount.load();
        Clock::duration time{};
        m_queue.add(operation([&](TestOperation& self) {
            const auto start = Clock::now();
            m_center.post(self.event(Kind::otherCount));
            while (m_handledCount == before)
                std::this_thread::sleep_for(std::chrono::microseconds(200));
            time = Clock::now() - start;
        }));
        ASSERT_TRUE(runUntilIdle());
        best = std::min(best, time);
    }
    EXPECT_LE(best, std::chrono::milliseconds(50));
}

TEST_F(NotificationCenterCountsTest, CountsOfAnOperationAreHandledBeforeTheNextBegins) {
    std::size_t handledBefore = 0;
    m_queue.add(operation([&](TestOperation& self) {
        for (int count = 0; count < 10; ++count)
            m_center.post(self.event(Kind::count));
    }));
    m_queue.add(operation([&](TestOperation&) { handledBefore = m_handledCount; }));
    ASSERT_TRUE(runUntilIdle());
    EXPECT_EQ(handledBefore, 10U);
}

TEST_F(NotificationCenterCountsTest, AMillionCountsWithoutAnyEventNeedBoundedRoomAndAllArrive) {
    constexpr std::size_t many = 1000000;
    std::size_t mostBehind = 0;
    m_queue.add(operation([&](TestOperation& self) {
        for (std::size_t count = 1; count <= many; ++count) {
            m_center.post(self.event(Kind::count));
            mostBehind = std::max(mostBehind, count - m_handledCount);
        }
    }));
    ASSERT_TRUE(runUntilIdle());
    EXPECT_EQ(m_handled.size(), many);
    EXPECT_LE(mostBehind, 10000U);
}

TEST_F(NotificationCenterCountsTest, CloseInTheMiddleOfABatchDropsTheRest) {
    m_center.setObserver([this](const TestEvent& event) {
        m_handled.push_back(event.kind);
        if (m_handled.size() == 2) m_center.close();
    });
    m_queue.add(operation([&](TestOperation& self) {
        for (int count = 0; count < 5; ++count)
            m_center.post(self.event(Kind::count));
        m_center.post(self.event(Kind::end));
    }));
    ASSERT_TRUE(runUntilIdle());
    EXPECT_THAT(m_handled, ElementsAre(Kind::count, Kind::count));
}

} // namespace
} // namespace songsweep
