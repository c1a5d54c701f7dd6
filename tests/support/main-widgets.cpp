// SPDX-License-Identifier: MIT
#include <QApplication>
#include <QSettings>

#include <gtest/gtest.h>

int main(int argumentCount, char** arguments) {
    ::testing::InitGoogleTest(&argumentCount, arguments);
    // CTest asks for the list of tests without their environment, and no display is needed in any case.
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    // File choosers would leave a settings file behind.
    QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, QStringLiteral("/dev/null"));
    const QApplication application(argumentCount, arguments);
    return RUN_ALL_TESTS();
}
