// SPDX-License-Identifier: MIT
// A restore with files that is killed at random moments of its whole run, from the start of the process on.
#include "RecordedDeletion.h"

#include <gtest/gtest.h>

#include <chrono>
#include <iostream>
#include <random>

namespace songsweep {
namespace {

namespace fs = std::filesystem;
using std::chrono::microseconds;
using test::RunResult;

constexpr int songs = 12;
constexpr int fewKills = 50;

class KilledRestore : public test::RecordedDeletionTest, public testing::WithParamInterface<unsigned> {
  protected:
    KilledRestore()
        : RecordedDeletionTest(songs) {}

    void deleteAnew() {
        makeAnew();
        deleteTracks();
        m_deleted = library();
    }

    microseconds durationOfARun() {
        deleteAnew();
        const auto start = std::chrono::steady_clock::now();
        EXPECT_EQ(restore({"--yes"}).exitCode, 0);
        return std::chrono::duration_cast<microseconds>(std::chrono::steady_clock::now() - start);
    }

    /// The library is the old one or the new one, each file in its place or in the Trash with its record.
    void checkWhatIsThere() {
        const std::string present = library();
        ASSERT_TRUE(present == m_deleted || present == m_whole);
        m_isWritten = present == m_whole;
        m_filesBack = 0;
        for (const int id : m_gone) {
            const std::string sound = "music " + std::to_string(id);
            const bool isBack = m_folder.read(fileName(id)) == sound;
            ASSERT_NE(isBack, m_folder.read(inTrash(id)) == sound) << "file of track " << id;
            m_filesBack += isBack ? 1 : 0;
            EXPECT_TRUE(isBack ||
                        fs::exists(path("home/data/Trash/info/" + std::to_string(id) + ".mp3.trashinfo")));
        }
        EXPECT_TRUE(m_isWritten || m_filesBack == 0) << "the library comes first";
    }

    std::string m_deleted;    ///< the library without the tracks
    bool m_isWritten = false; ///< it has them again
    int m_filesBack = 0;
};

TEST_P(KilledRestore, IsBroughtToItsEndByTheNextOne) {
    std::mt19937 random(GetParam());
    const microseconds duration = durationOfARun();
    std::uniform_int_distribution<int> moment(0, static_cast<int>(duration.count()));
    int written = 0;
    int inTheMiddle = 0;
    const int kills = test::killsATest(fewKills);
    for (int kill = 0; kill < kills; ++kill) {
        const microseconds delay(moment(random));
        SCOPED_TRACE("seed " + std::to_string(GetParam()) + ", killed after " +
                     std::to_string(delay.count()) + " microseconds");
        deleteAnew();
        ASSERT_NO_FATAL_FAILURE(runAndKill(restoreCommand({"--yes"}), delay));
        ASSERT_NO_FATAL_FAILURE(checkWhatIsThere());
        written += m_isWritten ? 1 : 0;
        inTheMiddle += m_filesBack > 0 && m_filesBack < static_cast<int>(m_gone.size()) ? 1 : 0;
        const RunResult again = restore({"--yes"});
        // One that came to its end before the kill leaves nothing to do.
        EXPECT_EQ(again.exitCode, again.errors.ends_with("--list shows all\n") ? 1 : 0)
            << again.errors << again.output;
        expectAllBack();
        if (HasFailure()) break;
    }
    std::cout << "seed " << GetParam() << ": of " << kills << " kills within " << duration.count()
              << " microseconds " << written << " left the new library, " << inTheMiddle
              << " files in both places\n";
}

INSTANTIATE_TEST_SUITE_P(Seeds, KilledRestore, testing::Range(1U, 5U));

} // namespace
} // namespace songsweep
