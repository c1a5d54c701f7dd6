// SPDX-License-Identifier: MIT
#include "operations/NotificationCenter.h"

#include "operations/TestOperation.h"
#include "support/EventLoop.h"

#include <QTimer>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <atomic>
#include <thread>
#include <vector>

namespace songsweep {
namespace {

using test::Kind;
using test::runEventLoopUntil;
using test::TestEvent;
using ::testing::ElementsAre;

TestEvent units(int count) { return {Kind::units, count, nullptr}; }
int units(const TestEvent& event) { return event.units; }

/// A thread that runs a function and says when that has returned.
class Poster {
  public:
    explicit Poster(std::function<void()> work)
        : m_thread([this, work = std::move(work)] {
            work();
            m_isDone = true;
        }) {}
    Poster(const Poster&) = delete;
    Poster& operator=(const Poster&) = delete;
    ~Poster() { m_thread.join(); }
    bool isDone() const { return m_isDone; }

  private:
    std::atomic<bool> m_isDone = false;
    std::thread m_thread;
};

TEST(NotificationCenterTest, HandlesEveryEventOnTheMainThreadInTheOrderPosted) {
    NotificationCenter<TestEvent> center;
    const auto mainThread = std::this_thread::get_id();
    std::vector<int> handled;
    bool isOnMainThread = true;
    center.setObserver([&](const TestEvent& event) {
        handled.push_back(units(event));
        isOnMainThread = isOnMainThread && std::this_thread::get_id() == mainThread;
    });
    const Poster poster([&center] {
        for (int number = 0; number < 20000; ++number)
            center.post(units(number));
    });
    ASSERT_TRUE(runEventLoopUntil([&] { return poster.isDone(); }));
    EXPECT_TRUE(isOnMainThread);
    ASSERT_EQ(handled.size(), 20000U);
    for (int number = 0; number < 20000; ++number)
        ASSERT_EQ(handled[static_cast<std::size_t>(number)], number);
}

TEST(NotificationCenterTest, PostReturnsOnlyWhenTheEventWasHandled) {
    NotificationCenter<TestEvent> center;
    int handled = 0; // plain: the hand-off itself is what orders its uses
    center.setObserver([&handled](const TestEvent&) { ++handled; });
    int wrong = 0;
    const Poster poster([&] {
        for (int number = 1; number <= 20000; ++number) {
            center.post(units(number));
            if (handled != number) ++wrong;
        }
    });
    ASSERT_TRUE(runEventLoopUntil([&] { return poster.isDone(); }));
    EXPECT_EQ(wrong, 0);
}

TEST(NotificationCenterTest, ASlowHandlerIsWaitedFor) {
    NotificationCenter<TestEvent> center;
    bool isHandled = false;
    center.setObserver([&isHandled](const TestEvent&) {
        std::this_thread::sleep_for(std::chrono::milliseconds(5));
        isHandled = true;
    });
    bool wasHandled = false;
    const Poster poster([&] {
        center.post(units(1));
        wasHandled = isHandled;
    });
    ASSERT_TRUE(runEventLoopUntil([&] { return poster.isDone(); }));
    EXPECT_TRUE(wasHandled);
}

TEST(NotificationCenterTest, HandlesAPostFromTheMainThreadDirectly) {
    NotificationCenter<TestEvent> center;
    int handled = 0;
    center.setObserver([&handled](const TestEvent&) { ++handled; });
    center.post({Kind::fromView, 0, nullptr});
    EXPECT_EQ(handled, 1);
    center.post({Kind::count, 0, nullptr});
    EXPECT_EQ(handled, 2);
}

TEST(NotificationCenterTest, HandlesAPostFromInsideAHandlerDirectly) {
    NotificationCenter<TestEvent> center;
    std::vector<Kind> handled;
    center.setObserver([&](const TestEvent& event) {
        if (event.kind == Kind::finish) center.post({Kind::fromView, 0, nullptr});
        handled.push_back(event.kind);
    });
    const Poster poster([&center] { center.post({Kind::finish, 0, nullptr}); });
    ASSERT_TRUE(runEventLoopUntil([&] { return poster.isDone(); }));
    EXPECT_THAT(handled, ElementsAre(Kind::fromView, Kind::finish));
}

TEST(NotificationCenterTest, NamesTheOperationWhoseEventIsInHand) {
    NotificationCenter<TestEvent> center;
    const auto sender = test::operation([](test::TestOperation&) {});
    std::vector<const Operation*> handling;
    center.setObserver([&](const TestEvent& event) {
        if (event.sender != nullptr) center.post({Kind::fromView, 0, nullptr});
        handling.push_back(center.handling());
    });
    EXPECT_EQ(center.handling(), nullptr);
    const Poster poster([&] { center.post(sender->event(Kind::cancel)); });
    ASSERT_TRUE(runEventLoopUntil([&] { return poster.isDone(); }));
    EXPECT_THAT(handling, ElementsAre(nullptr, sender.get()));
    EXPECT_EQ(center.handling(), nullptr);
}

TEST(NotificationCenterTest, WithoutAnObserverEventsAreHandledByDoingNothing) {
    NotificationCenter<TestEvent> center;
    const Poster poster([&center] { center.post(units(1)); });
    EXPECT_TRUE(runEventLoopUntil([&] { return poster.isDone(); }));
}

TEST(NotificationCenterTest, SeveralPostersEachKeepTheirOrder) {
    NotificationCenter<TestEvent> center;
    std::vector<int> lastOfEach(4, -1);
    int wrong = 0;
    center.setObserver([&](const TestEvent& event) {
        auto& last = lastOfEach[static_cast<std::size_t>(units(event) % 4)];
        if (units(event) / 4 != ++last) ++wrong;
    });
    const auto postAll = [&center](int which) {
        for (int number = 0; number < 2000; ++number)
            center.post(units(4 * number + which));
    };
    const Poster first([&] { postAll(0); });
    const Poster second([&] { postAll(1); });
    const Poster third([&] { postAll(2); });
    const Poster fourth([&] { postAll(3); });
    ASSERT_TRUE(runEventLoopUntil(
        [&] { return first.isDone() && second.isDone() && third.isDone() && fourth.isDone(); }));
    EXPECT_EQ(wrong, 0);
    EXPECT_THAT(lastOfEach, ElementsAre(1999, 1999, 1999, 1999));
}

TEST(NotificationCenterTest, TimersRunWhileEventsCome) {
    NotificationCenter<TestEvent> center;
    center.setObserver([](const TestEvent&) {});
    std::atomic<bool> stops = false;
    int ticks = 0;
    QTimer timer;
    QObject::connect(&timer, &QTimer::timeout, [&] {
        if (++ticks >= 10) stops = true; // the poster may see it a few ticks later
    });
    timer.start(1);
    const Poster poster([&] {
        while (!stops)
            center.post(units(1)); // ends only if the loop gets its turns
    });
    EXPECT_TRUE(runEventLoopUntil([&] { return poster.isDone(); }));
    stops = true;
}

TEST(NotificationCenterTest, CloseReleasesAPosterWhoseEventNobodyHandles) {
    NotificationCenter<TestEvent> center;
    int handled = 0;
    center.setObserver([&handled](const TestEvent&) { ++handled; });
    std::atomic<bool> isPosting = false;
    {
        const Poster poster([&] {
            isPosting = true;
            center.post(units(1)); // the main thread's loop does not run
        });
        while (!isPosting)
            std::this_thread::yield();
        std::this_thread::sleep_for(std::chrono::milliseconds(2));
        center.close();
    } // would hang here
    test::handleWaitingEvents();
    EXPECT_EQ(handled, 0);
}

TEST(NotificationCenterTest, CloseReleasesEveryPosterThatWaits) {
    NotificationCenter<TestEvent> center;
    center.setObserver([](const TestEvent&) { FAIL() << "nothing is handled"; });
    const auto post = [&center] { center.post(units(1)); };
    const Poster first(post);
    const Poster second(post);
    const Poster third(post);
    center.close();
    while (!first.isDone() || !second.isDone() || !third.isDone())
        std::this_thread::yield();
    test::handleWaitingEvents();
}

TEST(NotificationCenterTest, CloseInsideAHandlerReleasesThePosterAtOnce) {
    NotificationCenter<TestEvent> center;
    std::atomic<bool> isReleased = false;
    bool wasReleasedInside = false;
    center.setObserver([&](const TestEvent&) {
        center.close();
        while (!isReleased)
            std::this_thread::yield();
        wasReleasedInside = true;
    });
    const Poster poster([&] {
        center.post(units(1));
        isReleased = true;
    });
    ASSERT_TRUE(runEventLoopUntil([&] { return poster.isDone(); }));
    EXPECT_TRUE(wasReleasedInside);
}

TEST(NotificationCenterTest, DropsWhatIsPostedAfterClose) {
    NotificationCenter<TestEvent> center;
    int handled = 0;
    center.setObserver([&handled](const TestEvent&) { ++handled; });
    center.close();
    const Poster poster([&center] {
        center.post(units(1));
        center.post({Kind::count, 0, nullptr});
        EXPECT_FALSE(center.flush());
    });
    ASSERT_TRUE(runEventLoopUntil([&] { return poster.isDone(); }));
    center.post(units(1));
    EXPECT_EQ(handled, 0);
}

TEST(NotificationCenterTest, ItsEndReleasesWhoeverWaits) {
    std::atomic<bool> isPosting = false;
    std::unique_ptr<Poster> poster;
    {
        NotificationCenter<TestEvent> center;
        poster = std::make_unique<Poster>([&] {
            isPosting = true;
            center.post(units(1));
        });
        while (!isPosting)
            std::this_thread::yield();
        std::this_thread::sleep_for(std::chrono::milliseconds(2)); // it is inside by now
    }
    while (!poster->isDone())
        std::this_thread::yield();
}

} // namespace
} // namespace songsweep
