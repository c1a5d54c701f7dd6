// SPDX-License-Identifier: MIT
#include "libraryfile/LibraryIndex.h"

#include <gtest/gtest.h>

#include <array>
#include <string_view>
#include <vector>

namespace songsweep {
namespace {

TEST(PersistentIdTable, FindsEveryTrackOfAnIdInOrder) {
    std::vector<TrackSlot> tracks(5);
    const std::array<std::string_view, 5> ids{"00000000000000A1", "x", "", "00000000000000A1", "X"};
    for (std::size_t i = 0; i < ids.size(); ++i) {
        const PersistentId id = PersistentId::of(ids[i]);
        tracks[i].persistentId = id.value;
        tracks[i].persistentIdKind = id.kind;
    }
    PersistentIdTable table;
    table.build(tracks);
    const auto found = [&](std::string_view id) {
        const auto span = table.find(tracks, PersistentId::of(id));
        return std::vector<std::uint32_t>(span.begin(), span.end());
    };
    EXPECT_EQ(found("00000000000000a1"), (std::vector<std::uint32_t>{0, 3}));
    EXPECT_EQ(found("x"), (std::vector<std::uint32_t>{1, 4}));
    EXPECT_TRUE(found("").empty());
    EXPECT_TRUE(found("A1").empty());
}

} // namespace
} // namespace songsweep
