// SPDX-License-Identifier: MIT
#include "WindowsFixture.h"

#include <QAction>

namespace songsweep::test {
namespace {

/// The program as it is built without the codecs: nothing that listens lies beside it.
class SoundMissingTest : public WindowsFixture {
  protected:
    SoundMissingTest() {
        actions.reset();
        actions = std::make_unique<WindowActions>(
            windows, *controller, [](const std::string&) { return OpenedLibrary{}; }, log,
            folder.path() + "/none");
    }
};

TEST_F(SoundMissingTest, WithoutTheListenerTheWindowOffersNoComparison) {
    EXPECT_FALSE(window().findChild<QAction*>(QStringLiteral("compareSoundMenuitem"))->isVisible());
    EXPECT_TRUE(windows.markWindow().findChild<QWidget*>(QStringLiteral("markSoundRow"))->isHidden());
}

} // namespace
} // namespace songsweep::test
