// SPDX-License-Identifier: MIT
#include <QCoreApplication>

#include <gtest/gtest.h>

int main(int argumentCount, char** arguments) {
    ::testing::InitGoogleTest(&argumentCount, arguments);
    const QCoreApplication application(argumentCount, arguments);
    return RUN_ALL_TESTS();
}
