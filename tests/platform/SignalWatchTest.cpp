// SPDX-License-Identifier: MIT
#include "platform/SignalWatch.h"

#include "support/EventLoop.h"

#include <QProcess>

#include <gtest/gtest.h>

#include <atomic>

namespace songsweep {
namespace {

using test::runEventLoopUntil;

TEST(SignalWatch, TellsOfEachSignalByItsNumber) {
    std::atomic<int> heard = 0;
    const SignalWatch watch([&](int count) { heard = count; });
    int count = 0;
    for (const int signal : {SIGINT, SIGHUP, SIGTERM, SIGTERM}) {
        ASSERT_EQ(::raise(signal), 0);
        ++count;
        EXPECT_TRUE(runEventLoopUntil([&] { return heard == count; })) << count;
    }
}

TEST(SignalWatch, KnowsOfASignalBeforeItHasToldOfIt) {
    for (int watches = 0; watches < 2; ++watches) {
        std::atomic<bool> mayEnd = false;
        const SignalWatch watch([&](int) { mayEnd.wait(false); });
        EXPECT_FALSE(SignalWatch::hasSignal()) << "those before a watch are none of it";
        ASSERT_EQ(::raise(SIGTERM), 0);
        EXPECT_TRUE(SignalWatch::hasSignal());
        mayEnd = true;
        mayEnd.notify_all();
    }
}

TEST(SignalWatch, LeavesTheSignalsAsTheyWereBefore) {
    struct sigaction before {};
    struct sigaction during {};
    struct sigaction after {};
    ::sigaction(SIGTERM, nullptr, &before);
    {
        const SignalWatch watch([](int) {});
        ::sigaction(SIGTERM, nullptr, &during);
    }
    ::sigaction(SIGTERM, nullptr, &after);
    EXPECT_NE(during.sa_handler, before.sa_handler);
    EXPECT_EQ(after.sa_handler, before.sa_handler);
}

TEST(SignalWatch, LeavesASignalIgnoredThatWasToBeIgnored) {
    ASSERT_NE(::signal(SIGHUP, SIG_IGN), SIG_ERR);
    std::atomic<int> heard = 0;
    {
        const SignalWatch watch([&](int count) { heard = count; });
        ASSERT_EQ(::raise(SIGHUP), 0);
        ASSERT_EQ(::raise(SIGTERM), 0);
        EXPECT_TRUE(runEventLoopUntil([&] { return heard > 0; }));
    }
    EXPECT_EQ(heard, 1);
    ::signal(SIGHUP, SIG_DFL);
}

TEST(SignalWatch, LeavesTheSignalsToWhatTheProgramStarts) {
    const SignalWatch watch([](int) {});
    QProcess process;
    process.start(QStringLiteral("/bin/sh"), {QStringLiteral("-c"), QStringLiteral("kill -TERM $$")});
    ASSERT_TRUE(process.waitForFinished());
    EXPECT_EQ(process.exitStatus(), QProcess::CrashExit);
}

} // namespace
} // namespace songsweep
