// SPDX-License-Identifier: MIT
#include "sample-library/DesktopLibrary.h"

#include "tools/ParsedLibrary.h"

#include <QFile>
#include <QTemporaryDir>
#include <QtEndian>

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <map>

namespace songsweep::sample {
namespace {

using Track = test::ParsedLibrary::Track;

class DesktopLibraryTest : public ::testing::Test {
  protected:
    void SetUp() override {
        ASSERT_TRUE(makeDesktopLibrary(m_folder.path().toStdString()));
        m_library = test::ParsedLibrary::read(m_folder.filePath(QStringLiteral("library.xml")).toStdString());
        ASSERT_GT(m_library.tracks().size(), 200U);
    }
    template <typename Condition>
    auto count(Condition condition) const {
        return std::count_if(m_library.tracks().begin(), m_library.tracks().end(), condition);
    }

    QTemporaryDir m_folder;
    test::ParsedLibrary m_library;
};

TEST_F(DesktopLibraryTest, MostFilesAreThereAndSomeAreMissing) {
    EXPECT_GT(count([](const Track& track) { return std::filesystem::exists(track.path); }), 150);
    const auto isMissing = [](const Track& track) {
        return track.type == "File" && !std::filesystem::exists(track.path);
    };
    EXPECT_GT(count(isMissing), 10);
}

TEST_F(DesktopLibraryTest, TwoEntriesMayShareAFileByPathOrByLink) {
    std::map<std::string, int> users;
    for (const auto& track : m_library.tracks())
        ++users[track.path];
    users.erase("");
    EXPECT_TRUE(std::any_of(users.begin(), users.end(), [](const auto& user) { return user.second > 1; }));
    const auto isLinked = [](const Track& track) {
        return std::filesystem::exists(track.path) && std::filesystem::hard_link_count(track.path) > 1;
    };
    EXPECT_GT(count(isLinked), 1);
}

TEST_F(DesktopLibraryTest, NamesKeepTheirEntitiesAndScripts) {
    for (const auto* name : {"Five < Six", "Stone & Feather", "終着駅", "أغنية البحر", "Balloon 🎈 Animal"}) {
        EXPECT_GT(count([name](const Track& track) { return track.name == name; }), 0) << name;
    }
}

TEST_F(DesktopLibraryTest, SomeTracksAreStreams) {
    EXPECT_EQ(count([](const Track& track) { return track.type == "URL"; }), 2);
}

TEST_F(DesktopLibraryTest, WaveFilesSayTheirOwnLength) {
    int looked = 0;
    for (const auto& track : m_library.tracks()) {
        QFile file(QString::fromStdString(track.path));
        if (!track.path.ends_with(".wav") || !file.open(QIODevice::ReadOnly)) continue;
        const auto bytes = file.readAll();
        ASSERT_TRUE(bytes.startsWith("RIFF"));
        ASSERT_EQ(qFromLittleEndian<quint32>(bytes.constData() + 4), bytes.size() - 8);
        ASSERT_EQ(bytes.mid(8, 8), QByteArray("WAVEfmt "));
        ASSERT_EQ(bytes.right(16008).left(4), QByteArray("data"));
        ++looked;
    }
    EXPECT_GT(looked, 100);
}

TEST_F(DesktopLibraryTest, AiffFilesSayTheirOwnLength) {
    int looked = 0;
    for (const auto& track : m_library.tracks()) {
        QFile file(QString::fromStdString(track.path));
        if (!track.path.ends_with(".aiff") || !file.open(QIODevice::ReadOnly)) continue;
        const auto bytes = file.readAll();
        ASSERT_TRUE(bytes.startsWith("FORM"));
        ASSERT_EQ(qFromBigEndian<quint32>(bytes.constData() + 4), bytes.size() - 8);
        ASSERT_EQ(bytes.mid(8, 8), QByteArray("AIFFCOMM"));
        ASSERT_EQ(bytes.right(16016).left(4), QByteArray("SSND"));
        ++looked;
    }
    EXPECT_GT(looked, 20);
}

TEST_F(DesktopLibraryTest, MakingItAgainOverwritesItself) {
    EXPECT_TRUE(makeDesktopLibrary(m_folder.path().toStdString()));
}

TEST_F(DesktopLibraryTest, HasPlaylistsOfEveryKind) {
    std::vector<std::string> names;
    for (const auto& playlist : m_library.playlists())
        names.push_back(playlist.name);
    EXPECT_EQ(names.front(), "Library");
    EXPECT_EQ(m_library.playlists().front().items, m_library.tracks().size());
    for (const auto* name : {"Music", "Moods", "Evening & Night", "Recently Added", "Empty for Now"}) {
        EXPECT_NE(std::find(names.begin(), names.end(), name), names.end()) << name;
    }
}

} // namespace
} // namespace songsweep::sample
