// SPDX-License-Identifier: MIT
#include "dupes/MarkRows.h"
#include "dupes/MarkVerdicts.h"
#include "dupes/MarkingRules.h"
#include "dupes/NaiveMarking.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>

namespace songsweep {
namespace {

using test::MarkRows;

/// Random groups of few different values, so that ties, dead tracks and unset values meet often.
class RandomGroups {
  public:
    explicit RandomGroups(std::uint32_t seed)
        : m_random(seed) {}

    MarkRows rows() {
        MarkRows rows;
        const int groups = upTo(4);
        for (int gid = 0; gid <= groups; ++gid) {
            const int copies = 1 + upTo(5);
            for (int copy = 0; copy < copies; ++copy)
                rows.add(gid, record());
        }
        return rows;
    }

  private:
    int upTo(int largest) { return std::uniform_int_distribution(0, largest)(m_random); }

    template <std::size_t count>
    const char* oneOf(const char* const (&texts)[count]) {
        return texts[upTo(static_cast<int>(count) - 1)];
    }

    TrackRecord record() {
        static constexpr const char* numbers[] = {"", "0", "128", "320", " 7x", "-1", "-5", "9999999999"};
        static constexpr const char* paths[] = {"",           "msng",     "/Music/Old/a.mp3",
                                                "/Music/Old", "/M/b.MP3", "/Music/Older/c",
                                                "/Music.d/e", "/M/x.m4a", "/M/.hidden"};
        static constexpr std::int64_t dates[] = {0, 0, -86400, 86400, 1237043366, 1237043367};
        TrackRecord record;
        record.isdead = upTo(3) == 0;
        record.bitrate = oneOf(numbers);
        record.size = oneOf(numbers);
        record.playcount = oneOf(numbers);
        record.location = oneOf(paths);
        record.timev = upTo(2);
        record.rating = upTo(2);
        record.dateaddedv = dates[upTo(5)];
        record.hasartwork = upTo(1) == 1;
        record.checkbox = upTo(1) == 1;
        return record;
    }

    std::mt19937 m_random;
};

std::vector<MarkChoice> everyChoice() {
    std::vector<MarkChoice> choices;
    for (const bool exceptOne : {false, true}) {
        for (int type = -2; type <= 14; ++type)
            choices.push_back({static_cast<MarkType>(type), exceptOne, ""});
        for (const char* const kind : {"MP3", "mp3", "M4A", ""})
            choices.push_back({MarkType::kind, exceptOne, kind});
        for (const char* const folder : {"/Music/Old", "/Music/Old/", "/Music", "/", ""})
            choices.push_back({MarkType::folder, exceptOne, folder});
    }
    return choices;
}

std::vector<bool> checks(const MarkRows& rows) {
    std::vector<bool> checks;
    for (const TrackRecord* const record : rows.rows())
        checks.push_back(record->checkbox);
    return checks;
}

class MarkingRulesPropertyTest : public testing::TestWithParam<std::uint32_t> {};

TEST_P(MarkingRulesPropertyTest, EveryRuleAgreesWithThePlainOne) {
    RandomGroups random(GetParam());
    for (int round = 0; round < 60; ++round) {
        const MarkRows rows = random.rows();
        for (const MarkChoice& choice : everyChoice()) {
            const std::vector<bool> expected = test::naiveMarks(rows.rows(), choice);
            applyMarkChoice(rows.rows(), choice);
            ASSERT_EQ(checks(rows), expected) << "type " << static_cast<int>(choice.markType)
                                              << ", except one " << choice.exceptOne << ", " << choice.text;
        }
    }
}

TEST_P(MarkingRulesPropertyTest, TheEffectIsWhatMarkingDoesAndLookingChangesNothing) {
    RandomGroups random(GetParam());
    for (int round = 0; round < 20; ++round) {
        const MarkRows rows = random.rows();
        for (const MarkChoice& choice : everyChoice()) {
            const std::vector<bool> before = checks(rows);
            const MarkEffect effect = markEffect(rows.rows(), choice);
            ASSERT_EQ(checks(rows), before);
            const std::vector<bool> marks = test::naiveMarks(rows.rows(), choice);
            ASSERT_EQ(effect.marked, std::count(marks.begin(), marks.end(), true));
            ASSERT_EQ(effect.inForce, before == marks);
        }
    }
}

TEST_P(MarkingRulesPropertyTest, ExactlyTheCheckedRowsHaveAReason) {
    RandomGroups random(GetParam());
    for (int round = 0; round < 20; ++round) {
        const MarkRows rows = random.rows();
        for (const MarkChoice& choice : everyChoice()) {
            const std::vector<bool> marks = test::naiveMarks(rows.rows(), choice);
            MarkVerdicts verdicts(rows.rows(), choice);
            for (std::size_t row = 0; row < marks.size(); ++row)
                ASSERT_EQ(!verdicts.of(row).reason.empty(), marks[row])
                    << "type " << static_cast<int>(choice.markType);
        }
    }
}

INSTANTIATE_TEST_SUITE_P(seeds, MarkingRulesPropertyTest, testing::Values(1U, 2U, 3U, 20261121U));

} // namespace
} // namespace songsweep
