// SPDX-License-Identifier: MIT
#include "WindowsFixture.h"

#include <QAction>

namespace songsweep::test {
namespace {

class SoundMissingTest : public WindowsFixture {};

TEST_F(SoundMissingTest, WithoutTheListenerTheWindowOffersNoComparison) {
    EXPECT_FALSE(window().findChild<QAction*>(QStringLiteral("compareSoundMenuitem"))->isVisible());
    EXPECT_TRUE(windows.markWindow().findChild<QWidget*>(QStringLiteral("markSoundRow"))->isHidden());
}

} // namespace
} // namespace songsweep::test
