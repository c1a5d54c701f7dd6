// SPDX-License-Identifier: MIT
#include "operations/NotificationCenter.h"
#include "operations/OperationQueue.h"
#include "operations/TestOperation.h"
#include "support/EventLoop.h"
#include "support/RecordingLog.h"

#include <gtest/gtest.h>

#include <memory>
#include <random>

namespace songsweep {
namespace {

using test::Kind;
using test::operation;
using test::TestEvent;
using test::TestOperation;

/// A search in small: a reader, then a grouping, each a chain of events that looks for its cancel.
class Chain {
  public:
    Chain() {
        m_center.setObserver([this](const TestEvent& event) { handle(event); });
    }

    void start() {
        m_queue.add(operation([this](TestOperation& self) { read(self); }));
    }
    void cancel() { m_queue.cancelAllOperations(); }
    bool hasEnded() const { return m_ends > 0 && m_queue.operationCount() == 0; }
    int ends() const { return m_ends; }
    bool isSound() const { return m_isSound; }

  private:
    void read(TestOperation& self) {
        for (int batch = 0; batch < 20 && !self.isCancelled(); ++batch) {
            m_center.post(self.event(Kind::units, batch));
        }
        m_center.post(self.event(self.isCancelled() ? Kind::cancel : Kind::finish));
    }
    void group(TestOperation& self) {
        for (int row = 0; row < 100 && !self.isCancelled(); ++row) {
            m_center.post(self.event(Kind::count));
            if (row % 5 == 0) m_center.post(self.event(Kind::step));
        }
        m_center.post(self.event(self.isCancelled() ? Kind::cancel : Kind::end));
    }
    void handle(const TestEvent& event) {
        m_isSound = m_isSound && m_ends == 0 && m_center.handling() == event.sender;
        if (event.kind == Kind::finish) {
            m_queue.add(operation([this](TestOperation& self) { group(self); }));
        } else if (event.kind == Kind::cancel || event.kind == Kind::end) {
            ++m_ends;
        }
    }

    int m_ends = 0;
    bool m_isSound = true;
    test::RecordingLog m_log;
    NotificationCenter<TestEvent> m_center;
    OperationQueue m_queue{m_center, m_log};
};

TEST(OperationQueueChainTest, AThousandRandomCancelsEachEndTheChainOnce) {
    std::mt19937 random(20261121);
    std::uniform_int_distribution<int> rounds(0, 12);
    for (int search = 0; search < 1000; ++search) {
        Chain chain;
        chain.start();
        for (int left = rounds(random); left > 0; --left)
            test::handleWaitingEvents();
        chain.cancel();
        ASSERT_TRUE(test::runEventLoopUntil([&chain] { return chain.hasEnded(); }));
        test::handleWaitingEvents();
        ASSERT_EQ(chain.ends(), 1);
        ASSERT_TRUE(chain.isSound());
    }
}

TEST(OperationQueueChainTest, QuittingAtAThousandRandomMomentsLeavesNobodyWaiting) {
    std::mt19937 random(11211962);
    std::uniform_int_distribution<int> rounds(0, 12);
    for (int search = 0; search < 1000; ++search) {
        Chain chain;
        chain.start();
        for (int left = rounds(random); left > 0; --left)
            test::handleWaitingEvents();
    } // the end of each would hang here
}

TEST(OperationQueueChainTest, AnUndisturbedChainEndsOnce) {
    Chain chain;
    chain.start();
    ASSERT_TRUE(test::runEventLoopUntil([&chain] { return chain.hasEnded(); }));
    EXPECT_EQ(chain.ends(), 1);
    EXPECT_TRUE(chain.isSound());
}

} // namespace
} // namespace songsweep
