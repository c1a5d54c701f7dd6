// SPDX-License-Identifier: MIT
#include "platform/FileUrl.h"

#include <QUrl>

#include <gtest/gtest.h>

namespace songsweep {
namespace {

TEST(FileUrl, EncodesEveryByteButPlainOnes) {
    EXPECT_EQ(fileUrl("/Music/a b.mp3"), "file:///Music/a%20b.mp3");
    EXPECT_EQ(fileUrl("/100%/who?#1;~x"), "file:///100%25/who%3F%231%3B~x");
    EXPECT_EQ(fileUrl("/caf\u00e9\xff\n"), "file:///caf%C3%A9%FF%0A");
}

TEST(FileUrl, ReadsBackAsThePath) {
    for (const char* path : {"/", "/a b", "/%41", "/a?b#c", "/cafe\u0301", "/\"q\"\\", "/a:b;c=d&e+f"}) {
        EXPECT_EQ(QUrl(QString::fromStdString(fileUrl(path))).toLocalFile().toStdString(), path);
    }
}

} // namespace
} // namespace songsweep
