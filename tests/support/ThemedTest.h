// SPDX-License-Identifier: MIT
#pragma once

#include "theme/SongsweepStyle.h"

#include <QApplication>

#include <gtest/gtest.h>

namespace songsweep::test {

/// A test of windows as a user sees them: in the program's style, with a font of 13 px.
class ThemedTest : public testing::Test {
  protected:
    ThemedTest()
        : m_font(QApplication::font()) {
        applyTheme(*qApp);
        setFont(1, 100);
    }
    ~ThemedTest() override { QApplication::setFont(m_font); }

    /// `scale` of the size, `stretch` of the width in percent.
    static void setFont(double scale, int stretch) {
        constexpr int designPixelSize = 13;
        QFont font(QStringLiteral("Noto Sans"));
        font.setPixelSize(qRound(designPixelSize * scale));
        font.setStretch(stretch);
        QApplication::setFont(font);
    }

  private:
    QFont m_font;
};

} // namespace songsweep::test
