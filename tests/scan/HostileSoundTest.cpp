// SPDX-License-Identifier: MIT
#include "platform/Utf8.h"
#include "sample-library/SoundSample.h"
#include "scan/PlaylistEntries.h"
#include "scan/PlaylistMeanings.h"
#include "scan/SoundFile.h"
#include "support/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <cstdlib>
#include <random>
#include <string>

namespace songsweep::test {

namespace {

using sample::SoundKind;
using sample::SoundSample;

/// Files that are damaged in every way that a seed leads to; SONGSWEEP_ROUNDS tries more of them.
class HostileSoundTest : public ::testing::TestWithParam<int> {
  protected:
    SoundKind kind() const { return static_cast<SoundKind>(GetParam()); }
    std::string name() const { return "a." + std::string(sample::endingOf(kind())); }

    std::string goodBytes() {
        const SoundSample sample{.kind = kind(),
                                 .tags = {{"TITLE", "Song"}, {"ARTIST", "Artist"}, {"TRACKNUMBER", "1/2"}},
                                 .pictures = 1};
        EXPECT_TRUE(sample::writeSound(m_folder.path() + "/" + name(), sample));
        return m_folder.read(name());
    }

    /// Facts or a reason, and texts that a library can hold.
    void expectSense(const std::string& bytes) {
        const Result<SoundFacts> facts = readSoundFile(m_folder.write(name(), bytes), name());
        if (!facts) {
            EXPECT_FALSE(facts.error().message.empty());
            return;
        }
        for (const std::string* const text :
             {&facts.value().name, &facts.value().artist, &facts.value().album})
            EXPECT_TRUE(isUtf8(*text));
        EXPECT_GE(facts.value().duration, 0);
        EXPECT_EQ(facts.value().size, bytes.size());
    }

    std::size_t below(std::size_t bound) { return m_random() % bound; }

    static int rounds() {
        const char* const text = std::getenv("SONGSWEEP_ROUNDS");
        return text == nullptr ? 150 : std::atoi(text);
    }

    TemporaryFolder m_folder;
    std::mt19937 m_random{static_cast<std::uint32_t>(20'240'229 + GetParam())};
};

TEST_P(HostileSoundTest, IsCutOffAnywhere) {
    const std::string good = goodBytes();
    for (std::size_t size = 0; size < good.size(); size += 1 + below(64))
        expectSense(good.substr(0, size));
}

TEST_P(HostileSoundTest, HasWrongBytesAnywhere) {
    const std::string good = goodBytes();
    for (int round = 0; round < rounds(); ++round) {
        std::string bytes = good;
        for (std::size_t i = 1 + below(8); i > 0; --i)
            bytes[below(std::min<std::size_t>(bytes.size(), 2048))] = static_cast<char>(m_random());
        expectSense(bytes);
    }
}

TEST_P(HostileSoundTest, HasLengthsBeyondItsEnd) {
    const std::string good = goodBytes();
    for (int round = 0; round < rounds(); ++round) {
        std::string bytes = good;
        const std::size_t place = below(std::min<std::size_t>(bytes.size(), 2048) - 4);
        const char byte = round % 2 == 0 ? '\xFF' : '\x7F';
        bytes.replace(place, 4, std::string(1, byte) + "\xFF\xFF\xFF");
        expectSense(bytes);
    }
}

TEST_P(HostileSoundTest, IsNothingButNoise) {
    for (int round = 0; round < rounds() / 3; ++round) {
        std::string bytes = sample::bareSound({.kind = kind()}).substr(0, below(12));
        for (std::size_t size = below(5000); size > 0; --size)
            bytes += static_cast<char>(m_random());
        expectSense(bytes);
    }
}

INSTANTIATE_TEST_SUITE_P(EveryFormat, HostileSoundTest, ::testing::Range(0, sample::soundKinds));

TEST(HostilePlaylist, GivesAListWhateverItsBytes) {
    std::mt19937 random{7};
    const std::string alphabet = std::string("\0\r\n\\/#=<>&;%\xFF\xC3 File1location track", 37);
    for (int round = 0; round < 2000; ++round) {
        std::string bytes = round % 2 == 0 ? "<playlist><trackList><track><location>" : "";
        for (std::size_t size = random() % 300; size > 0; --size)
            bytes += alphabet[random() % alphabet.size()];
        for (const PlaylistFormat format : {PlaylistFormat::m3u, PlaylistFormat::pls, PlaylistFormat::xspf})
            for (const PlaylistEntry& entry : entriesOfPlaylist(bytes, format))
                for (const std::string& path : meaningsOf(entry.names.front(), "lists/a.m3u", "/music"))
                    EXPECT_FALSE(path.starts_with("../"));
    }
}

} // namespace

} // namespace songsweep::test
