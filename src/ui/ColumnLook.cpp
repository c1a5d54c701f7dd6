// SPDX-License-Identifier: MIT
#include "ui/ColumnLook.h"

namespace songsweep {

namespace {

using Looks = std::array<ColumnLook, allColumns.size()>;

ColumnLook text(const QString& title, int width, Qt::Alignment alignment, const QString& toolTip = {}) {
    return {title, toolTip, title, width, alignment | Qt::AlignVCenter, Qt::ElideRight, CellKind::text};
}

ColumnLook drawn(const QString& title, const QString& spoken, int width, Qt::Alignment alignment,
                 CellKind kind) {
    return {title, {}, spoken, width, alignment | Qt::AlignVCenter, Qt::ElideRight, kind};
}

Looks makeLooks() {
    Looks looks = {
        drawn({}, QStringLiteral("Marked for deletion"), 32, Qt::AlignHCenter, CellKind::checkBox),
        drawn({}, QStringLiteral("File missing"), 28, Qt::AlignHCenter, CellKind::image),
        text(QStringLiteral("Name"), 184, Qt::AlignLeft),
        text(QStringLiteral("Artist"), 144, Qt::AlignLeft),
        text(QStringLiteral("Album"), 148, Qt::AlignLeft),
        text(QStringLiteral("Time"), 64, Qt::AlignRight),
        text(QStringLiteral("Bit rate"), 76, Qt::AlignRight, QStringLiteral("kbit/s")),
        text(QStringLiteral("Size"), 76, Qt::AlignRight),
        drawn(QStringLiteral("Rating"), QStringLiteral("Rating"), 88, Qt::AlignLeft, CellKind::stars),
        text(QStringLiteral("Plays"), 56, Qt::AlignRight),
        text(QStringLiteral("Date added"), 128, Qt::AlignLeft),
        text(QStringLiteral("Artwork"), 64, Qt::AlignHCenter),
        text(QStringLiteral("Location"), 360, Qt::AlignLeft),
    };
    looks.front().toolTip = looks.front().spokenTitle;
    looks.back().elision = Qt::ElideMiddle;
    return looks;
}

} // namespace

const ColumnLook& columnLook(Column column) {
    static const Looks looks = makeLooks();
    return looks.at(static_cast<std::size_t>(column));
}

} // namespace songsweep
