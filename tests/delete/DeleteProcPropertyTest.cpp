// SPDX-License-Identifier: MIT
#include "delete/DeleteFixture.h"

#include <gtest/gtest.h>

#include <random>
#include <stdexcept>
#include <tuple>

namespace songsweep {
namespace {

/// How a deletion of random rows ends after some tracks.
enum class End { completed, cancelled, thrown };

class DeleteProcPropertyTest : public test::DeleteFixture,
                               public testing::WithParamInterface<std::tuple<std::uint32_t, End>> {
  protected:
    void addRandomRows(std::mt19937& random) {
        std::bernoulli_distribution marked(0.4);
        const int count = std::uniform_int_distribution(1, 40)(random);
        for (int row = 0; row < count; ++row)
            add(row / 3, ("P" + std::to_string(row)).c_str(), marked(random));
    }

    /// The rows left when each marked row but those after `deletions` is erased by itself.
    std::vector<TrackRecord*> erasedOneByOne(int deletions) const {
        std::vector<TrackRecord*> rows = m_list.rows;
        for (std::size_t i = 0; i < rows.size() && deletions > 0;) {
            if (!rows[i]->checkbox) {
                ++i;
                continue;
            }
            rows.erase(rows.begin() + static_cast<std::ptrdiff_t>(i));
            --deletions;
        }
        return rows;
    }
};

TEST_P(DeleteProcPropertyTest, TheListIsWholeHoweverTheLoopEnds) {
    const auto [seed, end] = GetParam();
    std::mt19937 random(seed);
    addRandomRows(random);
    const int limit = std::uniform_int_distribution(1, 8)(random);
    int tracks = 0;
    setHook([&, kind = end](const std::string& entry) {
        if (!entry.starts_with("track ") || ++tracks != limit) return;
        if (kind == End::cancelled) cancel();
        if (kind == End::thrown) throw std::runtime_error("broken");
    });
    const int deletions = end == End::completed ? 1000 : end == End::cancelled ? limit : limit - 1;
    const std::vector<TrackRecord*> expected = erasedOneByOne(deletions);
    try {
        run(false);
    } catch (const std::runtime_error&) {
        EXPECT_EQ(end, End::thrown);
    }
    EXPECT_EQ(m_list.rows, expected);
}

INSTANTIATE_TEST_SUITE_P(seeds, DeleteProcPropertyTest,
                         testing::Combine(testing::Range(0U, 20U),
                                          testing::Values(End::completed, End::cancelled, End::thrown)));

} // namespace
} // namespace songsweep
