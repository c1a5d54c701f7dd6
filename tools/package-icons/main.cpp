// SPDX-License-Identifier: MIT
// songsweep-icons LARGE.svg SMALL.svg FOLDER: the application's icon in every size of a desktop's icon theme,
// and as an icon file of macOS. The small drawing is for the sizes of lists and menus.
#include "package-icons/IcnsFile.h"

#include <QBuffer>
#include <QDir>
#include <QFile>
#include <QImage>
#include <QPainter>
#include <QSvgRenderer>

#include <cstdio>

namespace {

using namespace songsweep;

constexpr int largestSmallIcon = 24; // as in the window

struct Drawings {
    QString large;
    QString small;
};

QByteArray png(const Drawings& drawings, int pixels) {
    QSvgRenderer renderer(pixels <= largestSmallIcon ? drawings.small : drawings.large);
    QImage image(pixels, pixels, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    renderer.render(&painter);
    painter.end();
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    image.save(&buffer, "PNG");
    return renderer.isValid() ? buffer.data() : QByteArray();
}

bool write(const QString& path, const QByteArray& contents) {
    QFile file(path);
    return !contents.isEmpty() && file.open(QIODevice::WriteOnly) && file.write(contents) == contents.size();
}

bool writeTheme(const Drawings& drawings, const QDir& folder) {
    for (const int pixels : {16, 22, 24, 32, 48, 64, 96, 128, 256, 512}) {
        const QString place = QStringLiteral("%1x%1/apps").arg(pixels);
        if (!folder.mkpath(place)) return false;
        if (!write(folder.filePath(place + QStringLiteral("/songsweep.png")), png(drawings, pixels)))
            return false;
    }
    return true;
}

bool writeIcns(const Drawings& drawings, const QDir& folder) {
    QList<QByteArray> pngs;
    for (const IcnsEntry& entry : icnsEntries())
        pngs.append(png(drawings, entry.pixels));
    return write(folder.filePath(QStringLiteral("Songsweep.icns")), icnsFile(pngs));
}

} // namespace

int main(int argumentCount, char** arguments) {
    if (argumentCount != 4) {
        std::fputs("usage: songsweep-icons LARGE.svg SMALL.svg FOLDER\n", stderr);
        return 2;
    }
    const Drawings drawings{QFile::decodeName(arguments[1]), QFile::decodeName(arguments[2])};
    const QDir folder(QFile::decodeName(arguments[3]));
    if (writeTheme(drawings, folder) && writeIcns(drawings, folder)) return 0;
    std::fprintf(stderr, "songsweep-icons: %s cannot be filled\n", arguments[3]);
    return 1;
}
