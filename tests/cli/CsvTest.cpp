// SPDX-License-Identifier: MIT
#include "cli/Csv.h"

#include <gtest/gtest.h>

namespace songsweep::cli {
namespace {

TEST(Csv, QuotesFieldsThatHoldSeparators) {
    EXPECT_EQ(csvField("plain text"), "plain text");
    EXPECT_EQ(csvField(""), "");
    EXPECT_EQ(csvField("a,b"), "\"a,b\"");
    EXPECT_EQ(csvField("say \"a\""), "\"say \"\"a\"\"\"");
    EXPECT_EQ(csvField("a\r\nb"), "\"a\r\nb\"");
}

} // namespace
} // namespace songsweep::cli
