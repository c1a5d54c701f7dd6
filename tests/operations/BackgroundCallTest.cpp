// SPDX-License-Identifier: MIT
#include "operations/BackgroundCall.h"

#include "operations/BackgroundDelete.h"
#include "support/EventLoop.h"

#include <gtest/gtest.h>

#include <atomic>
#include <optional>
#include <thread>

namespace songsweep::test {
namespace {

TEST(BackgroundCall, WorksElsewhereAndGivesTheResultToTheEventLoop) {
    BackgroundCall<std::thread::id> call;
    std::optional<std::thread::id> worker;
    std::thread::id taker;
    call.begin([] { return std::this_thread::get_id(); },
               [&](std::thread::id id) {
                   worker = id;
                   taker = std::this_thread::get_id();
               });
    EXPECT_TRUE(call.isOn());
    EXPECT_FALSE(worker) << "the event loop has not run yet";
    ASSERT_TRUE(runEventLoopUntil([&] { return worker.has_value(); }));
    EXPECT_NE(*worker, std::this_thread::get_id());
    EXPECT_EQ(taker, std::this_thread::get_id());
    EXPECT_FALSE(call.isOn());
}

TEST(BackgroundCall, IsWaitedForAndGivesItsResultOnce) {
    BackgroundCall<int> call;
    int taken = 0;
    call.begin([] { return 7; }, [&](int value) { taken += value; });
    call.finish();
    EXPECT_EQ(taken, 7);
    call.finish();
    handleWaitingEvents();
    EXPECT_EQ(taken, 7);
}

TEST(BackgroundCall, ForgetsTheResultOfACallThatAnotherFollows) {
    BackgroundCall<int> call;
    int taken = 0;
    call.begin([] { return 1; }, [&](int value) { taken += value; });
    call.begin([] { return 10; }, [&](int value) { taken += value; });
    ASSERT_TRUE(runEventLoopUntil([&] { return taken > 0; }));
    handleWaitingEvents();
    EXPECT_EQ(taken, 10);
}

TEST(BackgroundCall, EndsWithItsCall) {
    std::atomic<bool> done = false;
    {
        BackgroundCall<int> call;
        call.begin(
            [&] {
                std::this_thread::sleep_for(std::chrono::milliseconds(20));
                done = true;
                return 0;
            },
            [](int) { ADD_FAILURE() << "nobody is left to take it"; });
    }
    EXPECT_TRUE(done);
    handleWaitingEvents();
}

/// Notes on which thread it goes.
struct Mortal {
    explicit Mortal(std::atomic<std::thread::id>& end)
        : m_end(&end) {}
    Mortal(Mortal&& other) noexcept
        : m_end(std::exchange(other.m_end, nullptr)) {}
    ~Mortal() {
        if (m_end) *m_end = std::this_thread::get_id();
    }

    std::atomic<std::thread::id>* m_end;
};

TEST(BackgroundDelete, DeletesOnAnotherThread) {
    std::atomic<std::thread::id> shared{};
    std::atomic<std::thread::id> held{};
    std::shared_ptr<Mortal>(new Mortal(shared), BackgroundDelete()).reset();
    deleteInBackground(Mortal(held));
    QThreadPool::globalInstance()->waitForDone();
    for (const auto* end : {&shared, &held}) {
        EXPECT_NE(end->load(), std::thread::id());
        EXPECT_NE(end->load(), std::this_thread::get_id());
    }
}

} // namespace
} // namespace songsweep::test
