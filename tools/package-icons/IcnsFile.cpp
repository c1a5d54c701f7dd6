// SPDX-License-Identifier: MIT
#include "package-icons/IcnsFile.h"

#include <QtEndian>

namespace songsweep {

namespace {

constexpr qsizetype headLength = 8;

QByteArray chunk(const char* type, const QByteArray& data) {
    const quint32 length = qToBigEndian(static_cast<quint32>(data.size() + headLength));
    return QByteArray(type, 4) + QByteArray(reinterpret_cast<const char*>(&length), sizeof length) + data;
}

} // namespace

const QList<IcnsEntry>& icnsEntries() {
    static const QList<IcnsEntry> entries = {{"icp4", 16},  {"icp5", 32},   {"ic07", 128}, {"ic08", 256},
                                             {"ic09", 512}, {"ic10", 1024}, {"ic11", 32},  {"ic12", 64},
                                             {"ic13", 256}, {"ic14", 512}};
    return entries;
}

QByteArray icnsFile(const QList<QByteArray>& drawings) {
    QByteArray entries;
    for (qsizetype index = 0; index < drawings.size(); ++index)
        entries += chunk(icnsEntries().at(index).type, drawings.at(index));
    return chunk("icns", entries);
}

} // namespace songsweep
