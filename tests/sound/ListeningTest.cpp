// SPDX-License-Identifier: MIT
#include "sound/Listening.h"

#include "Pieces.h"
#include "platform/StandardDescriptors.h"
#include "sound/SoundMatch.h"
#include "support/TemporaryFolder.h"

#include <QProcess>
#include <QStringList>

#include <gtest/gtest.h>
#include <sys/stat.h>

#include <chrono>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <random>
#include <regex>

namespace songsweep {
namespace {

using namespace std::chrono_literals;
using test::Piece;

const ListeningWatch patient = {[] { return false; }, [](std::size_t, std::size_t) {}};

/// Hears real files by the real process.
class ListeningTest : public testing::Test {
  protected:
    ListeningTest() { survivePipesThatClose(); }

    std::string path(const std::string& name) const { return m_folder.path() + "/" + name; }

    static ListeningSettings settings(std::chrono::milliseconds limit = 10s) {
        return {.program = SONGSWEEP_LISTEN, .processes = 2, .limit = limit};
    }
    Result<Fingerprint> hear(const std::string& file) {
        return *m_listening.hear({file}, patient).value().at(0);
    }
    std::string writeBytes(const std::string& name, std::size_t count) {
        std::ofstream file(path(name), std::ios::binary);
        std::mt19937 random(5);
        for (std::size_t i = 0; i < count; ++i)
            file.put(static_cast<char>(random()));
        return path(name);
    }
    static void ffmpeg(const QStringList& arguments) {
        ASSERT_EQ(QProcess::execute(QStringLiteral("ffmpeg"),
                                    QStringList{QStringLiteral("-v"), QStringLiteral("error")} + arguments),
                  0);
    }
    std::string wave(const std::string& name, double seconds = 20) {
        test::writeWave(path(name), test::play({.score = 3}, seconds));
        return path(name);
    }

    test::TemporaryFolder m_folder;
    Files m_files;
    Listening m_listening{settings(), m_files};
};

/// 5 scores at two tempi, each in 8 forms: 280 pairs of one recording, 2 880 of different ones.
TEST_F(ListeningTest, TellsRecordingsApartInAllTheirForms) {
    constexpr unsigned scores = 5;
    std::vector<std::string> paths;
    for (unsigned piece = 0; piece < scores * 2; ++piece) {
        const std::string name = "piece" + std::to_string(piece);
        const std::string original = path(name + ".wav");
        test::writeWave(original, test::play({piece % scores, piece < scores ? 1 : 1.03}, 24));
        for (const std::string& form : test::encodeForms(original, m_folder.path(), name))
            paths.push_back(form);
    }
    const std::size_t forms = paths.size() / (scores * 2);
    const auto heard = m_listening.hear(paths, patient).value();
    int sameMissed = 0;
    int others = 0;
    double leastAgreement = 1;
    double mostOfOther = 0;
    for (std::size_t a = 0; a < paths.size(); ++a) {
        ASSERT_TRUE(*heard[a]) << paths[a] << ": " << heard[a]->error().message;
        for (std::size_t b = a + 1; b < paths.size(); ++b) {
            if (!*heard[b]) continue;
            const SoundMatch match = matchSounds(heard[a]->value(), heard[b]->value());
            if (a / forms == b / forms) {
                sameMissed += match.sameness == Sameness::same ? 0 : 1;
                leastAgreement = std::min(leastAgreement, match.agreement);
            } else {
                ++others;
                mostOfOther = std::max(mostOfOther, match.agreement);
                EXPECT_NE(match.sameness, Sameness::same) << paths[a] << " / " << paths[b];
            }
        }
    }
    EXPECT_GE(others, 2000);
    EXPECT_LE(sameMissed, 2);
    RecordProperty("leastAgreementOfSame", std::to_string(leastAgreement));
    RecordProperty("mostAgreementOfOthers", std::to_string(mostOfOther));
}

TEST_F(ListeningTest, WhatIsNoSoundIsAProblem) {
    EXPECT_FALSE(hear(writeBytes("random.mp3", 100'000)));
    EXPECT_FALSE(hear(writeBytes("empty.mp3", 0)));
    EXPECT_EQ(hear(path("missing.mp3")).error().message, "not a file");
    EXPECT_EQ(hear(m_folder.path()).error().message, "not a file");
    m_folder.write("list.m3u8", "#EXTM3U\n#EXTINF:10,\nfile://" + wave("a.wav") + "\n");
    EXPECT_FALSE(hear(path("list.m3u8")));
    EXPECT_TRUE(hear(path("a.wav"))) << "and the process goes on";
}

TEST_F(ListeningTest, ATruncatedFileGivesWhatIsThere) {
    ffmpeg({QStringLiteral("-i"), QString::fromStdString(wave("a.wav", 40)),
            QString::fromStdString(path("a.mp3"))});
    const Fingerprint whole = hear(path("a.mp3")).value();
    std::filesystem::copy(path("a.mp3"), path("cut.mp3"));
    std::filesystem::resize_file(path("cut.mp3"), std::filesystem::file_size(path("a.mp3")) / 2);
    const Result<Fingerprint> cut = hear(path("cut.mp3"));
    ASSERT_TRUE(cut) << cut.error().message;
    EXPECT_LT(cut.value().size(), whole.size());
    EXPECT_EQ(matchSounds(whole, cut.value()).sameness, Sameness::same);
}

TEST_F(ListeningTest, OnlyTheSoundOfAFilmIsHeard) {
    ffmpeg({QStringLiteral("-f"), QStringLiteral("lavfi"), QStringLiteral("-i"),
            QStringLiteral("testsrc=size=320x240:rate=10"), QStringLiteral("-i"),
            QString::fromStdString(wave("a.wav")), QStringLiteral("-shortest"), QStringLiteral("-c:v"),
            QStringLiteral("mpeg4"), QStringLiteral("-c:a"), QStringLiteral("aac"),
            QString::fromStdString(path("film.mp4"))});
    const Result<Fingerprint> film = hear(path("film.mp4"));
    ASSERT_TRUE(film) << film.error().message;
    EXPECT_EQ(matchSounds(film.value(), hear(path("a.wav")).value()).sameness, Sameness::same);
}

TEST_F(ListeningTest, AFilmWithoutSoundIsAProblem) {
    ffmpeg({QStringLiteral("-f"), QStringLiteral("lavfi"), QStringLiteral("-i"),
            QStringLiteral("testsrc=size=320x240:rate=10:duration=5"), QStringLiteral("-c:v"),
            QStringLiteral("mpeg4"), QString::fromStdString(path("film.mp4"))});
    EXPECT_EQ(hear(path("film.mp4")).error().message, "no sound in it");
}

TEST_F(ListeningTest, APipeIsNoFileAndHoldsNobodyUp) {
    ASSERT_EQ(mkfifo(path("pipe.mp3").c_str(), 0600), 0);
    const auto start = std::chrono::steady_clock::now();
    EXPECT_EQ(hear(path("pipe.mp3")).error().message, "not a file");
    EXPECT_LT(std::chrono::steady_clock::now() - start, 5s);
}

/// Four gigabytes of which hardly any lie on the disk.
TEST_F(ListeningTest, AnEndlessFileIsGivenUp) {
    std::filesystem::copy(wave("a.wav", 1), path("endless.mp3"));
    std::ofstream(path("endless.mp3"), std::ios::binary) << "ID3";
    std::filesystem::resize_file(path("endless.mp3"), std::uintmax_t{1} << 32);
    const auto start = std::chrono::steady_clock::now();
    EXPECT_FALSE(hear(path("endless.mp3")));
    EXPECT_LT(std::chrono::steady_clock::now() - start, 11s);
}

TEST_F(ListeningTest, OfAMixOfTenHoursTheFirstMinuteIsHeard) {
    ffmpeg({QStringLiteral("-i"), QString::fromStdString(wave("a.wav", 60)), QStringLiteral("-b:a"),
            QStringLiteral("8k"), QString::fromStdString(path("minute.mp3"))});
    std::ifstream minute(path("minute.mp3"), std::ios::binary);
    const std::string bytes{std::istreambuf_iterator<char>(minute), {}};
    std::ofstream mix(path("mix.mp3"), std::ios::binary);
    for (int i = 0; i < 600; ++i)
        mix << bytes;
    mix.close();
    const Result<Fingerprint> heard = hear(path("mix.mp3")); // which is given ten seconds
    ASSERT_TRUE(heard) << heard.error().message;
    EXPECT_NEAR(static_cast<double>(heard.value().size()), 60 * fingerprintItemsPerSecond, 40);
}

/// As the system knows it: no file to write, no core, and, but under a sanitizer, a gigabyte.
TEST_F(ListeningTest, TheProcessIsLimited) {
    QProcess process;
    process.start(QStringLiteral(SONGSWEEP_LISTEN), QStringList());
    ASSERT_TRUE(process.waitForStarted());
    process.write(path("none").c_str(), static_cast<qint64>(path("none").size()) + 1);
    ASSERT_TRUE(process.waitForReadyRead()); // it has begun, and so has limited itself
    std::ifstream file("/proc/" + std::to_string(process.processId()) + "/limits");
    const std::string limits{std::istreambuf_iterator<char>(file), {}};
    process.kill();
    process.waitForFinished();
    EXPECT_TRUE(std::regex_search(limits, std::regex("Max file size +0 +0"))) << limits;
    EXPECT_TRUE(std::regex_search(limits, std::regex("Max core file size +0 +0"))) << limits;
#ifndef __SANITIZE_ADDRESS__
#ifndef __SANITIZE_THREAD__
    EXPECT_TRUE(std::regex_search(limits, std::regex("Max address space +1073741824"))) << limits;
#endif
#endif
}

TEST_F(ListeningTest, AFileIsHeardOnceUntilItChanges) {
    wave("a.wav");
    std::filesystem::create_hard_link(path("a.wav"), path("b.wav"));
    std::size_t most = 0;
    const ListeningWatch counting = {[] { return false; },
                                     [&](std::size_t, std::size_t total) { most = std::max(most, total); }};
    const auto heard = m_listening.hear({path("a.wav"), path("b.wav"), path("a.wav")}, counting).value();
    EXPECT_EQ(most, 1U);
    EXPECT_EQ(heard[0], heard[1]);
    most = 0;
    EXPECT_EQ(m_listening.hear({path("b.wav")}, counting).value()[0], heard[0]);
    EXPECT_EQ(most, 0U);
    std::filesystem::last_write_time(path("a.wav"), std::filesystem::file_time_type::clock::now() + 1h);
    EXPECT_NE(m_listening.hear({path("a.wav")}, counting).value()[0], heard[0]);
}

/// A program that answers as told stands for one that a file has taken over or brought down.
class ListeningToHostile : public ListeningTest {
  protected:
    Result<Fingerprint> hearBy(const std::string& script, std::chrono::milliseconds limit = 10s) {
        m_folder.write("listen", "#!/bin/sh\n" + script + "\n");
        std::filesystem::permissions(path("listen"), std::filesystem::perms::owner_all);
        m_folder.write("a.mp3", "x");
        Listening listening({.program = path("listen"), .processes = 1, .limit = limit}, m_files);
        return *listening.hear({path("a.mp3")}, patient).value().at(0);
    }
};

TEST_F(ListeningToHostile, AFileThatTakesTooLongIsGivenUp) {
    const auto start = std::chrono::steady_clock::now();
    EXPECT_EQ(hearBy("sleep 60", 300ms).error().message, "takes too long");
    EXPECT_LT(std::chrono::steady_clock::now() - start, 5s);
}

TEST_F(ListeningToHostile, AFileThatBringsTheProcessDownIsAProblem) {
    EXPECT_EQ(hearBy("kill -SEGV $$").error().message, "brings the decoder down");
}

TEST_F(ListeningToHostile, AnAnswerWithoutAnEndIsNotListenedToForEver) {
    EXPECT_EQ(hearBy("exec yes sound | tr -d '\\n'").error().message, "answers too much");
}

TEST_F(ListeningToHostile, AProgramThatIsNotThereIsAProblem) {
    Listening listening({.program = path("none"), .processes = 1, .limit = 1s}, m_files);
    m_folder.write("a.mp3", "x");
    EXPECT_FALSE(*listening.hear({path("a.mp3")}, patient).value().at(0));
}

TEST_F(ListeningToHostile, TheNextFileGetsANewProcess) {
    m_folder.write("listen", "#!/bin/sh\nif mkdir " + path("first") +
                                 "; then kill -9 $$; fi\ncat >/dev/null & echo 'sound 00000001'; wait\n");
    std::filesystem::permissions(path("listen"), std::filesystem::perms::owner_all);
    m_folder.write("a.mp3", "x");
    m_folder.write("b.mp3", "y");
    Listening listening({.program = path("listen"), .processes = 1, .limit = 10s}, m_files);
    const auto heard = listening.hear({path("a.mp3"), path("b.mp3")}, patient).value();
    EXPECT_FALSE(*heard[0]);
    EXPECT_TRUE(*heard[1]) << heard[1]->error().message;
}

TEST_F(ListeningToHostile, CancellingEndsItAtOnce) {
    m_folder.write("listen", "#!/bin/sh\nsleep 60\n");
    std::filesystem::permissions(path("listen"), std::filesystem::perms::owner_all);
    m_folder.write("a.mp3", "x");
    Listening listening({.program = path("listen"), .processes = 1, .limit = 30s}, m_files);
    const auto start = std::chrono::steady_clock::now();
    const auto heard =
        listening.hear({path("a.mp3")}, {[] { return true; }, [](std::size_t, std::size_t) {}});
    EXPECT_EQ(heard.error().code, Error::Code::cancelled);
    EXPECT_LT(std::chrono::steady_clock::now() - start, 5s);
}

} // namespace
} // namespace songsweep
