// SPDX-License-Identifier: MIT
#include "app/FileOpening.h"

#include <QCoreApplication>
#include <QFileOpenEvent>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <vector>

namespace songsweep {
namespace {

using ::testing::ElementsAre;

TEST(FileOpening, HearsOfWhatTheSystemOpens) {
    std::vector<std::string> opened;
    {
        const FileOpening opening([&](const std::string& path) { opened.push_back(path); });
        QFileOpenEvent library(QStringLiteral("/Users/ann/Music/Bibliothèque.xml"));
        EXPECT_TRUE(QCoreApplication::sendEvent(QCoreApplication::instance(), &library));
        QEvent other(QEvent::User);
        QCoreApplication::sendEvent(QCoreApplication::instance(), &other);
    }
    QFileOpenEvent late(QStringLiteral("/late.xml"));
    QCoreApplication::sendEvent(QCoreApplication::instance(), &late);
    EXPECT_THAT(opened, ElementsAre("/Users/ann/Music/Bibliothèque.xml"));
}

} // namespace
} // namespace songsweep
