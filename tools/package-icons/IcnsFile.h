// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QList>

namespace songsweep {

/// One drawing of an icon file of macOS: a PNG of some size, under the four letters that tell which.
struct IcnsEntry {
    const char* type; ///< "ic07"
    int pixels;       ///< of its side
};

/// Every size that macOS asks for, those of fine displays among them.
const QList<IcnsEntry>& icnsEntries();

/// The file: "icns" and its length, and each entry's type, length and PNG; lengths in four bytes, the highest
/// first. `drawings` are the PNGs in the order of `icnsEntries`. Pure; any thread.
QByteArray icnsFile(const QList<QByteArray>& drawings);

} // namespace songsweep
