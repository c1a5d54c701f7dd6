// SPDX-License-Identifier: MIT
#include "UserFolders.h"
#include "platform/linux/LinuxDesktop.h"
#include "support/PrivateBus.h"
#include "support/TemporaryFolder.h"

#include <QDBusVariant>
#include <QStringList>

#include <gtest/gtest.h>

#include <semaphore>
#include <thread>

namespace songsweep {
namespace {

using test::BusService;
using test::PrivateBus;
using test::TemporaryFolder;
using Reply = std::optional<QList<QVariant>>;

/// A music player as the bus sees it.
struct PlayerState {
    QString status;                          ///< empty: does not tell
    std::optional<QStringList> schemes = {}; ///< nothing: does not tell
    bool opens = true;
};

Reply propertyReply(const PlayerState& state, const QString& name) {
    if (name == QStringLiteral("PlaybackStatus") && !state.status.isEmpty())
        return QList<QVariant>{QVariant::fromValue(QDBusVariant(state.status))};
    if (name == QStringLiteral("SupportedUriSchemes") && state.schemes)
        return QList<QVariant>{QVariant::fromValue(QDBusVariant(*state.schemes))};
    return std::nullopt;
}

BusService::Answer playerAnswer(const PlayerState& state) {
    return [state](const QDBusMessage& call) -> Reply {
        if (call.member() == QStringLiteral("Get"))
            return propertyReply(state, call.arguments().value(1).toString());
        if (call.member() == QStringLiteral("OpenUri") && !state.opens) return std::nullopt;
        return QList<QVariant>{};
    };
}

class Player {
  public:
    Player(const PrivateBus& bus, const QString& name, const PlayerState& state)
        : Player(bus, name, playerAnswer(state)) {}
    Player(const PrivateBus& bus, const QString& name, const BusService::Answer& answer)
        : m_service(bus, QStringLiteral("org.mpris.MediaPlayer2.") + name,
                    QStringLiteral("/org/mpris/MediaPlayer2"), answer) {}

    QStringList opened() const {
        QStringList urls;
        for (const QList<QVariant>& arguments : m_service.callsOf(QStringLiteral("OpenUri")))
            urls.append(arguments.value(0).toString());
        return urls;
    }
    std::size_t stops() const { return m_service.callsOf(QStringLiteral("Stop")).size(); }

  private:
    BusService m_service;
};

const QString playing = QStringLiteral("Playing");
const QString paused = QStringLiteral("Paused");
const QString stopped = QStringLiteral("Stopped");

class RunningPlayer : public ::testing::Test {
  protected:
    PrivateBus m_bus;
    LinuxDesktop m_desktop;
};

TEST_F(RunningPlayer, PlaysAFileByItsUrl) {
    ASSERT_FALSE(m_bus.address().isEmpty());
    const Player player(m_bus, QStringLiteral("one"), {stopped});
    ASSERT_TRUE(m_desktop.play("/Music/caf\u00e9 #1?.mp3"));
    EXPECT_EQ(player.opened(), QStringList{QStringLiteral("file:///Music/caf%C3%A9%20%231%3F.mp3")});
}

TEST_F(RunningPlayer, Stops) {
    const Player player(m_bus, QStringLiteral("one"), {playing});
    ASSERT_TRUE(m_desktop.stopPlaying());
    EXPECT_EQ(player.stops(), 1U);
}

TEST_F(RunningPlayer, IsTheOneThatPlays) {
    const Player idle(m_bus, QStringLiteral("a"), {stopped});
    const Player resting(m_bus, QStringLiteral("b"), {paused});
    const Player active(m_bus, QStringLiteral("c"), {playing});
    ASSERT_TRUE(m_desktop.play("/a.mp3"));
    ASSERT_TRUE(m_desktop.stopPlaying());
    EXPECT_EQ(active.opened().size(), 1);
    EXPECT_EQ(active.stops(), 1U);
    EXPECT_TRUE(idle.opened().isEmpty() && resting.opened().isEmpty());
    EXPECT_EQ(idle.stops() + resting.stops(), 0U);
}

TEST_F(RunningPlayer, IsAPausedOneRatherThanAStoppedOne) {
    const Player idle(m_bus, QStringLiteral("a"), {stopped});
    const Player resting(m_bus, QStringLiteral("b"), {paused});
    ASSERT_TRUE(m_desktop.play("/a.mp3"));
    EXPECT_EQ(resting.opened().size(), 1);
    EXPECT_TRUE(idle.opened().isEmpty());
}

TEST_F(RunningPlayer, IsNotABrowserThatOpensNoFiles) {
    const Player browser(m_bus, QStringLiteral("a"), {playing, QStringList{QStringLiteral("https")}});
    const Player player(m_bus, QStringLiteral("b"), {stopped, QStringList{QStringLiteral("file")}});
    ASSERT_TRUE(m_desktop.play("/a.mp3"));
    EXPECT_TRUE(browser.opened().isEmpty());
    EXPECT_EQ(player.opened().size(), 1);
}

TEST_F(RunningPlayer, IsTheNextWhenOneRefuses) {
    const Player refusing(m_bus, QStringLiteral("a"), {playing, std::nullopt, false});
    const Player player(m_bus, QStringLiteral("b"), {stopped});
    ASSERT_TRUE(m_desktop.play("/a.mp3"));
    EXPECT_EQ(refusing.opened().size(), 1);
    EXPECT_EQ(player.opened().size(), 1);
}

TEST_F(RunningPlayer, ThatTellsNothingIsAskedAllTheSame) {
    const Player player(m_bus, QStringLiteral("one"), PlayerState{});
    ASSERT_TRUE(m_desktop.play("/a.mp3"));
    ASSERT_TRUE(m_desktop.stopPlaying());
    EXPECT_EQ(player.opened().size(), 1);
    EXPECT_EQ(player.stops(), 1U);
}

TEST_F(RunningPlayer, ThatHangsIsLeftOut) {
    std::binary_semaphore goOn(0);
    {
        const Player hanging(m_bus, QStringLiteral("a"), BusService::Answer([&goOn](const QDBusMessage&) {
                                 goOn.acquire();
                                 return Reply{};
                             }));
        const Player player(m_bus, QStringLiteral("b"), {stopped});
        EXPECT_TRUE(m_desktop.play("/a.mp3"));
        EXPECT_EQ(player.opened().size(), 1);
        goOn.release();
    }
}

TEST_F(RunningPlayer, IsReachedFromAWorkersThread) {
    const Player player(m_bus, QStringLiteral("one"), {playing});
    std::thread([this] {
        EXPECT_TRUE(m_desktop.play("/a.mp3"));
        EXPECT_TRUE(m_desktop.stopPlaying());
    }).join();
    EXPECT_EQ(player.opened().size(), 1);
    EXPECT_EQ(player.stops(), 1U);
}

TEST_F(RunningPlayer, NeedNotBeThereToBeStopped) { EXPECT_TRUE(m_desktop.stopPlaying()); }

TEST(NoBus, IsNoReasonToFailAtStopping) { EXPECT_TRUE(LinuxDesktop().stopPlaying()); }

TEST(NoBus, LeavesTheErrorOfTheMissingPlayer) {
    const Result<void> result = LinuxDesktop().play("/nonexistent/a.mp3");
    ASSERT_FALSE(result);
    EXPECT_FALSE(result.error().message.empty());
}

class FileManager : public ::testing::Test {
  protected:
    static BusService::Answer answer(bool shows) {
        return [shows](const QDBusMessage&) { return shows ? Reply(QList<QVariant>{}) : Reply(); };
    }
    PrivateBus m_bus;
    LinuxDesktop m_desktop;
    const QString m_name = QStringLiteral("org.freedesktop.FileManager1");
    const QString m_path = QStringLiteral("/org/freedesktop/FileManager1");
};

TEST_F(FileManager, ShowsTheFileByItsUrl) {
    const BusService service(m_bus, m_name, m_path, answer(true));
    ASSERT_TRUE(m_desktop.showInFileManager("/Music/100% \"caf\u00e9\"\n;#.mp3"));
    const auto calls = service.callsOf(QStringLiteral("ShowItems"));
    ASSERT_EQ(calls.size(), 1U);
    EXPECT_EQ(calls[0].value(0).toStringList(),
              QStringList{QStringLiteral("file:///Music/100%25%20%22caf%C3%A9%22%0A%3B%23.mp3")});
    EXPECT_EQ(calls[0].value(1).toString(), QString());
}

TEST_F(FileManager, IsReachedFromAWorkersThread) {
    const BusService service(m_bus, m_name, m_path, answer(true));
    std::thread([this] { EXPECT_TRUE(m_desktop.showInFileManager("/a.mp3")); }).join();
    EXPECT_EQ(service.callsOf(QStringLiteral("ShowItems")).size(), 1U);
}

TEST_F(FileManager, IsNotAskedForARelativePath) {
    const BusService service(m_bus, m_name, m_path, answer(true));
    EXPECT_FALSE(m_desktop.showInFileManager("a.mp3"));
    EXPECT_TRUE(service.callsOf(QStringLiteral("ShowItems")).empty());
}

} // namespace
} // namespace songsweep
