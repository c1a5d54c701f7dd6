// SPDX-License-Identifier: MIT
#include "cli/ScriptText.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace songsweep::cli {
namespace {

using std::string_view_literals::operator""sv;
using ::testing::HasSubstr;

std::string decoded(std::string_view bytes) {
    const Result<std::string> text = decodedScript(bytes);
    return text ? text.value() : "error: " + text.error().message;
}

TEST(ScriptText, ReadsUtf8WithAndWithoutAMark) {
    EXPECT_EQ(decoded("say \"ö\""), "say \"ö\"");
    EXPECT_EQ(decoded("\xEF\xBB\xBFsay \"ö\""), "say \"ö\"");
    EXPECT_EQ(decoded(""), "");
}

TEST(ScriptText, ReadsUtf16WithAMark) {
    EXPECT_EQ(decoded("\xFF\xFEh\0\xF6\0"sv), "hö");
    EXPECT_EQ(decoded("\xFE\xFF\0h\0\xF6"sv), "hö");
    EXPECT_EQ(decoded("\xFF\xFE\x3D\xD8\x00\xDE"sv), "\U0001F600") << "two units for one character";
    EXPECT_EQ(decoded("\xFF\xFE"sv), "");
}

TEST(ScriptText, RefusesBrokenUtf16) {
    EXPECT_THAT(decoded("\xFF\xFEh"sv), HasSubstr("UTF-16"));
    EXPECT_THAT(decoded("\xFF\xFE\x3D\xD8"sv), HasSubstr("UTF-16")) << "half a character";
}

TEST(ScriptText, NamesAnyOtherEncoding) {
    EXPECT_THAT(decoded("h\0i\0"sv), HasSubstr("UTF-16 without a mark; save it as UTF-8"));
    EXPECT_THAT(decoded("\xFF\xFE\0\0h\0\0\0"sv), HasSubstr("UTF-32"));
    EXPECT_THAT(decoded("\0\0\xFE\xFF\0\0\0h"sv), HasSubstr("UTF-32"));
    EXPECT_THAT(decoded("caf\xE9"), HasSubstr("8-bit encoding"));
    EXPECT_THAT(decoded("FasdUAS 1.101.10"), HasSubstr("a compiled script"));
}

} // namespace
} // namespace songsweep::cli
