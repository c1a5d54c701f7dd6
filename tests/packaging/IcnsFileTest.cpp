// SPDX-License-Identifier: MIT
#include "package-icons/IcnsFile.h"

#include <QFile>
#include <QImage>
#include <QtEndian>

#include <gtest/gtest.h>

namespace songsweep {
namespace {

quint32 number(const QByteArray& bytes, qsizetype at) {
    return qFromBigEndian<quint32>(bytes.constData() + at);
}

TEST(IcnsFile, TellsTypeAndLengthOfEachDrawing) {
    const QByteArray file = icnsFile({"abc", "de"});
    EXPECT_EQ(file, QByteArray("icns\0\0\0\x1d"
                               "icp4\0\0\0\x0b"
                               "abc"
                               "icp5\0\0\0\x0a"
                               "de",
                               29));
}

TEST(IcnsFile, HoldsADrawingOfEverySize) {
    QFile file(QStringLiteral(SONGSWEEP_ICONS "/Songsweep.icns"));
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    const QByteArray bytes = file.readAll();
    EXPECT_EQ(number(bytes, 4), static_cast<quint32>(bytes.size()));
    qsizetype at = 8;
    for (const IcnsEntry& entry : icnsEntries()) {
        ASSERT_EQ(bytes.mid(at, 4), QByteArray(entry.type));
        const auto length = static_cast<qsizetype>(number(bytes, at + 4));
        const QImage drawing = QImage::fromData(bytes.mid(at + 8, length - 8), "PNG");
        EXPECT_EQ(drawing.size(), QSize(entry.pixels, entry.pixels));
        EXPECT_EQ(drawing.pixelColor(drawing.rect().center()).alpha(), 255);
        EXPECT_EQ(drawing.pixelColor(0, 0).alpha(), 0);
        at += length;
    }
    EXPECT_EQ(at, bytes.size());
}

TEST(IconTheme, HasEverySizeOfADesktop) {
    for (const int size : {16, 22, 24, 32, 48, 64, 96, 128, 256, 512}) {
        const QImage drawing(QStringLiteral(SONGSWEEP_ICONS "/%1x%1/apps/songsweep.png").arg(size));
        EXPECT_EQ(drawing.size(), QSize(size, size));
    }
}

} // namespace
} // namespace songsweep
