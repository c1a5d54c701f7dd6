// SPDX-License-Identifier: MIT
#include "scripting/InterpretedAppleScript.h"

#include <gtest/gtest.h>

namespace songsweep {
namespace {

TEST(InterpretedAppleScriptTest, ReadsAOneItemListAsItsItem) {
    InterpretedAppleScript script({});
    EXPECT_EQ(script.executeAndReturnError("{{\"a\"}}").value().stringValue(), "a");
    EXPECT_EQ(script.executeAndReturnError("{{}}").value().stringValue(), std::nullopt);
    EXPECT_EQ(script.executeAndReturnError("{{missing value}}").value().stringValue(), "msng");
}

TEST(InterpretedAppleScriptTest, GivesTheMissingValueForAScriptWithoutResult) {
    InterpretedAppleScript script({});
    const Result<Descriptor> result = script.executeAndReturnError("if false then 1");
    ASSERT_TRUE(result);
    EXPECT_EQ(result.value(), Descriptor());
}

} // namespace
} // namespace songsweep
