// SPDX-License-Identifier: MIT
#include "app/DialogOpeners.h"
#include "support/ThemedTest.h"
#include "translations/Speaking.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <tuple>

namespace songsweep {
namespace {

using Case = std::tuple<std::string, test::Opener>;

class TranslatedDialogs : public test::ThemedTest, public testing::WithParamInterface<Case> {
  protected:
    const test::Speaking m_language{std::get<0>(GetParam())};
    const test::Opener& m_opener = std::get<1>(GetParam());
};

TEST_P(TranslatedDialogs, ClipNothing) {
    const auto dialog = m_opener.make();
    dialog->show();
    QCoreApplication::sendPostedEvents();
    EXPECT_EQ(test::clippedControls(*dialog), QStringList());
}

TEST_P(TranslatedDialogs, FitIntoTheSmallestMainWindow) {
    const auto dialog = m_opener.make();
    dialog->show();
    QCoreApplication::sendPostedEvents();
    EXPECT_LE(dialog->width(), 760);
}

TEST_P(TranslatedDialogs, HaveEachMnemonicOnce) {
    const auto dialog = m_opener.make();
    dialog->show();
    QString letters = test::mnemonics(*dialog);
    const QString all = letters;
    letters.erase(std::unique(letters.begin(), letters.end()), letters.end());
    EXPECT_EQ(letters, all);
}

INSTANTIATE_TEST_SUITE_P(, TranslatedDialogs,
                         testing::Combine(testing::Values("de", "ja"), testing::ValuesIn(test::allDialogs)),
                         [](const testing::TestParamInfo<Case>& each) {
                             return std::get<0>(each.param) + std::get<1>(each.param).name;
                         });

} // namespace
} // namespace songsweep
