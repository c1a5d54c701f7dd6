// SPDX-License-Identifier: MIT
#include "operations/OperationQueue.h"

#include "operations/NotificationCenter.h"
#include "operations/TestOperation.h"
#include "support/EventLoop.h"
#include "support/RecordingLog.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <atomic>
#include <stdexcept>
#include <thread>
#include <vector>

namespace songsweep {
namespace {

using test::Kind;
using test::operation;
using test::runEventLoopUntil;
using test::TestEvent;
using test::TestOperation;
using ::testing::ElementsAre;

class OperationQueueTest : public ::testing::Test {
  protected:
    bool runUntilIdle() {
        return runEventLoopUntil([this] { return m_queue->operationCount() == 0; });
    }

    test::RecordingLog m_log;
    NotificationCenter<TestEvent> m_center;
    std::unique_ptr<OperationQueue> m_queue = std::make_unique<OperationQueue>(m_center, m_log);
};

TEST_F(OperationQueueTest, RunsOperationsInTheOrderAdded) {
    std::vector<int> ran;
    for (int number = 0; number < 500; ++number) {
        m_queue->add(operation([&ran, number](TestOperation&) { ran.push_back(number); }));
    }
    ASSERT_TRUE(runUntilIdle());
    ASSERT_EQ(ran.size(), 500U);
    EXPECT_TRUE(std::is_sorted(ran.begin(), ran.end()));
}

TEST_F(OperationQueueTest, RunsThemOffTheMainThread) {
    std::thread::id thread;
    m_queue->add(operation([&thread](TestOperation&) { thread = std::this_thread::get_id(); }));
    ASSERT_TRUE(runUntilIdle());
    EXPECT_NE(thread, std::thread::id());
    EXPECT_NE(thread, std::this_thread::get_id());
}

TEST_F(OperationQueueTest, NeverRunsTwoAtOnce) {
    std::atomic<int> running = 0;
    std::atomic<int> most = 0;
    for (int number = 0; number < 200; ++number) {
        m_queue->add(operation([&](TestOperation&) {
            most = std::max(most.load(), ++running);
            std::this_thread::yield();
            --running;
        }));
    }
    ASSERT_TRUE(runUntilIdle());
    EXPECT_EQ(most, 1);
}

TEST_F(OperationQueueTest, AnOperationAddedByAFinishingEventBeginsWhenTheFirstHasReturned) {
    std::atomic<bool> firstHasReturned = false;
    std::vector<bool> hadReturned;
    m_center.setObserver([&](const TestEvent&) {
        m_queue->add(operation([&](TestOperation&) { hadReturned.push_back(firstHasReturned); }));
    });
    m_queue->add(operation([&](TestOperation& self) {
        m_center.post(self.event(Kind::finish));
        std::this_thread::sleep_for(std::chrono::milliseconds(5)); // the second waits for this
        firstHasReturned = true;
    }));
    ASSERT_TRUE(runUntilIdle());
    EXPECT_THAT(hadReturned, ElementsAre(true));
}

TEST_F(OperationQueueTest, CancelAllMarksTheRunningAndTheWaiting) {
    std::atomic<bool> isRunning = false;
    std::vector<bool> cancelled;
    m_queue->add(operation([&](TestOperation& self) {
        isRunning = true;
        while (!self.isCancelled())
            std::this_thread::yield();
        cancelled.push_back(true);
    }));
    m_queue->add(operation([&](TestOperation& self) { cancelled.push_back(self.isCancelled()); }));
    while (!isRunning)
        std::this_thread::yield();
    m_queue->cancelAllOperations();
    m_queue->add(operation([&](TestOperation& self) { cancelled.push_back(self.isCancelled()); }));
    ASSERT_TRUE(runUntilIdle());
    EXPECT_THAT(cancelled, ElementsAre(true, true, false));
}

TEST_F(OperationQueueTest, AnOperationCancelledBeforeItStartedStillRunsItsMain) {
    std::vector<Kind> handled;
    m_center.setObserver([&](const TestEvent& event) { handled.push_back(event.kind); });
    auto cancelled = operation([this](TestOperation& self) {
        m_center.post(self.event(self.isCancelled() ? Kind::cancel : Kind::finish));
    });
    cancelled->cancel();
    m_queue->add(std::move(cancelled));
    ASSERT_TRUE(runUntilIdle());
    EXPECT_THAT(handled, ElementsAre(Kind::cancel));
}

TEST_F(OperationQueueTest, AnOperationAddedByAnEventOfACancelledOneStartsCancelled) {
    bool isCancelled = false;
    m_center.setObserver([&](const TestEvent& event) {
        if (event.kind != Kind::finish) return;
        m_queue->cancelAllOperations(); // after the worker's last look at its flag
        m_queue->add(operation([&](TestOperation& self) { isCancelled = self.isCancelled(); }));
    });
    m_queue->add(operation([this](TestOperation& self) { m_center.post(self.event(Kind::finish)); }));
    ASSERT_TRUE(runUntilIdle());
    EXPECT_TRUE(isCancelled);
}

TEST_F(OperationQueueTest, AnOperationAddedAfterTheEventsOfACancelledOneStartsFresh) {
    bool isCancelled = true;
    auto first = operation([this](TestOperation& self) { m_center.post(self.event(Kind::cancel)); });
    first->cancel();
    m_queue->add(std::move(first));
    ASSERT_TRUE(runUntilIdle());
    m_queue->add(operation([&](TestOperation& self) { isCancelled = self.isCancelled(); }));
    ASSERT_TRUE(runUntilIdle());
    EXPECT_FALSE(isCancelled);
}

TEST_F(OperationQueueTest, LogsAnExceptionWithItsTextAndGoesOn) {
    bool nextRan = false;
    m_queue->add(operation([](TestOperation&) { throw std::runtime_error("the disk is on fire"); }));
    m_queue->add(operation([&nextRan](TestOperation&) { nextRan = true; }));
    ASSERT_TRUE(runUntilIdle());
    EXPECT_THAT(m_log.lines(), ElementsAre("Exception in an operation: the disk is on fire"));
    EXPECT_TRUE(nextRan);
}

TEST_F(OperationQueueTest, LogsWhatIsThrownAndIsNoException) {
    m_queue->add(operation([](TestOperation&) { throw 42; })); // NOLINT(hicpp-exception-baseclass)
    ASSERT_TRUE(runUntilIdle());
    EXPECT_THAT(m_log.lines(), ElementsAre("Exception in an operation: of unknown type"));
}

TEST_F(OperationQueueTest, CountsTheWaitingAndTheRunning) {
    std::atomic<bool> mayGoOn = false;
    const auto waits = [&mayGoOn](TestOperation&) {
        while (!mayGoOn)
            std::this_thread::yield();
    };
    EXPECT_EQ(m_queue->operationCount(), 0);
    m_queue->add(operation(waits));
    m_queue->add(operation(waits));
    EXPECT_EQ(m_queue->operationCount(), 2);
    mayGoOn = true;
    EXPECT_TRUE(runUntilIdle());
}

TEST_F(OperationQueueTest, TellsOnTheMainThreadEachTimeTheLastHasReturned) {
    int told = 0;
    bool isOnMainThread = true;
    const auto mainThread = std::this_thread::get_id();
    m_queue->setIdleHandler([&] {
        ++told;
        isOnMainThread = isOnMainThread && std::this_thread::get_id() == mainThread;
    });
    for (int round = 1; round <= 3; ++round) {
        m_queue->add(operation([](TestOperation&) {}));
        ASSERT_TRUE(runEventLoopUntil([&] { return told == round; }));
    }
    EXPECT_TRUE(isOnMainThread);
}

TEST_F(OperationQueueTest, IsNotIdleBetweenTheWorkersOfAChain) {
    int told = 0;
    int left = 5;
    m_queue->setIdleHandler([&told] { ++told; });
    const auto posts = [this](TestOperation& self) { m_center.post(self.event(Kind::finish)); };
    m_center.setObserver([&](const TestEvent&) {
        if (--left > 0) m_queue->add(operation(posts));
    });
    m_queue->add(operation(posts));
    ASSERT_TRUE(runEventLoopUntil([&told] { return told > 0; }));
    test::handleWaitingEvents();
    EXPECT_EQ(left, 0);
    EXPECT_EQ(told, 1);
}

TEST_F(OperationQueueTest, IsNotIdleWhereAnotherWasAddedBeforeItWasTold) {
    int told = 0;
    std::atomic<bool> mayReturn = false;
    m_queue->setIdleHandler([&told] { ++told; });
    m_center.close(); // so that the worker does not wait for this thread
    m_queue->add(operation([](TestOperation&) {}));
    m_queue->waitUntilAllOperationsAreFinished(); // the news waits in the event loop now
    m_queue->add(operation([&mayReturn](TestOperation&) {
        while (!mayReturn)
            std::this_thread::yield();
    }));
    test::handleWaitingEvents();
    EXPECT_EQ(told, 0);
    mayReturn = true;
    m_queue->waitUntilAllOperationsAreFinished();
    ASSERT_TRUE(runEventLoopUntil([&told] { return told > 0; }));
    EXPECT_EQ(told, 1);
}

TEST_F(OperationQueueTest, AnOperationIsDestroyedOnceItHasReturned) {
    auto tracked = std::make_shared<int>(1);
    const std::weak_ptr<int> watch = tracked;
    m_queue->add(operation([tracked = std::move(tracked)](TestOperation&) {}));
    EXPECT_TRUE(runEventLoopUntil([&watch] { return watch.expired(); }));
}

TEST_F(OperationQueueTest, ItsEndCancelsAndReleasesAWorkerThatWaitsForItsEvent) {
    std::atomic<bool> isPosting = false;
    bool sawCancel = false;
    m_queue->add(operation([&](TestOperation& self) {
        isPosting = true;
        m_center.post(self.event(Kind::step)); // the main thread's loop does not run
        sawCancel = self.isCancelled();
    }));
    while (!isPosting)
        std::this_thread::yield();
    std::this_thread::sleep_for(std::chrono::milliseconds(2));
    m_queue.reset(); // would hang here
    EXPECT_TRUE(sawCancel);
}

TEST_F(OperationQueueTest, ItsEndWaitsForEveryOperation) {
    int ran = 0;
    for (int number = 0; number < 20; ++number)
        m_queue->add(operation([&ran](TestOperation&) { ++ran; }));
    m_queue.reset();
    EXPECT_EQ(ran, 20);
}

TEST_F(OperationQueueTest, QuittingInsideAHandlerReleasesTheWorkerAndKeepsItsOperation) {
    bool wasThere = false;
    m_center.setObserver([&](const TestEvent& event) {
        m_queue->cancelAllOperations();
        m_center.close();
        m_queue->waitUntilAllOperationsAreFinished();
        wasThere = event.sender->isCancelled(); // would read freed memory
    });
    m_queue->add(operation([this](TestOperation& self) { m_center.post(self.event(Kind::finish)); }));
    ASSERT_TRUE(runEventLoopUntil([&wasThere] { return wasThere; }));
}

} // namespace
} // namespace songsweep
