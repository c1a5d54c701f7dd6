// SPDX-License-Identifier: MIT
#include "platform/Languages.h"

#include <gtest/gtest.h>

namespace songsweep {
namespace {

const std::vector<std::string> available = {"de", "ja"};

TEST(Languages, TakesTheFirstThatIsThere) {
    EXPECT_EQ(chosenLanguage({"fr-FR", "de-AT", "ja"}, available), "de");
    EXPECT_EQ(chosenLanguage({"ja_JP.UTF-8"}, available), "ja");
    EXPECT_EQ(chosenLanguage({"de@euro"}, available), "de");
}

TEST(Languages, StaysEnglishWhereEnglishComesFirst) {
    EXPECT_EQ(chosenLanguage({"en-GB", "de"}, available), std::nullopt);
    EXPECT_EQ(chosenLanguage({"C", "de"}, available), std::nullopt);
    EXPECT_EQ(chosenLanguage({"POSIX", "de"}, available), std::nullopt);
}

TEST(Languages, StaysEnglishWhereNoneIsThere) {
    EXPECT_EQ(chosenLanguage({"fr", "it"}, available), std::nullopt);
    EXPECT_EQ(chosenLanguage({"deu"}, available), std::nullopt);
    EXPECT_EQ(chosenLanguage({}, available), std::nullopt);
}

} // namespace
} // namespace songsweep
