// SPDX-License-Identifier: MIT
#include "app/SearchSummary.h"
#include "delete/ConfirmationTexts.h"
#include "library/TimeLeft.h"
#include "translations/Speaking.h"

#include <gtest/gtest.h>

namespace songsweep {
namespace {

DeleteConfirmationFacts tracks(int count) {
    DeleteConfirmationFacts facts;
    facts.tracks = count;
    facts.embeddedLibrary = true;
    return facts;
}

TEST(TranslatedWords, SayOneAndManyInGerman) {
    const test::Speaking german("de");
    EXPECT_EQ(timeLeftText(45), "noch etwa 50 Sekunden");
    EXPECT_EQ(timeLeftText(60), "noch etwa 1 Minute");
    EXPECT_EQ(confirmationTexts::filesGo(tracks(1)), QStringLiteral("Seine Datei kommt in den Papierkorb."));
    EXPECT_EQ(confirmationTexts::filesGo(tracks(2)),
              QStringLiteral("Ihre Dateien kommen in den Papierkorb."));
}

TEST(TranslatedWords, SayAllCountsAlikeInJapanese) {
    const test::Speaking japanese("ja");
    EXPECT_EQ(confirmationTexts::heading(tracks(1)),
              QStringLiteral("1 個のトラックをライブラリから削除しますか?"));
    EXPECT_EQ(confirmationTexts::heading(tracks(3)),
              QStringLiteral("3 個のトラックをライブラリから削除しますか?"));
}

TEST(TranslatedWords, KeepTheOrderOfEachLanguage) {
    SearchParameters parameters;
    parameters.issamename = parameters.issameartist = true;
    parameters.playlist = "Jazz";
    const test::Speaking japanese("ja");
    EXPECT_EQ(searchSummary(parameters, ChosenPlaylist::searched), "Jazz: 名前, アーティストが同じ");
}

} // namespace
} // namespace songsweep
