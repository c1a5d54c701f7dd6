// SPDX-License-Identifier: MIT
#include "platform/ReasonWithPath.h"

#include <gtest/gtest.h>

#include <filesystem>

namespace songsweep {
namespace {

TEST(ReasonWithPath, NamesTheFileOnce) {
    EXPECT_EQ(reasonWithPath("/a/b.xml", "line 3: no end"), "/a/b.xml: line 3: no end");
    EXPECT_EQ(reasonWithPath("/a/b.xml", "cannot open /a/b.xml: gone"), "cannot open /a/b.xml: gone");
    EXPECT_EQ(reasonWithPath("/a/../b.xml", "/b.xml is a folder"), "/b.xml is a folder");
    EXPECT_EQ(reasonWithPath("/a/../b.xml", "/a/../b.xml is a folder"), "/a/../b.xml is a folder");
}

TEST(ReasonWithPath, StandsAloneWithoutAPath) { EXPECT_EQ(reasonWithPath("", "why"), "why"); }

TEST(ReasonWithPath, KnowsARelativePathByWhereItLeads) {
    const std::string absolute = std::filesystem::absolute("b.xml").string();
    EXPECT_EQ(reasonWithPath("b.xml", absolute + " is a folder"), absolute + " is a folder");
    EXPECT_EQ(reasonWithPath("line", "line 3: no end"), "line: line 3: no end");
}

} // namespace
} // namespace songsweep
