// SPDX-License-Identifier: MIT
#include "ui/ColumnLook.h"

#include <QCoreApplication>

namespace songsweep {

namespace {

using Looks = std::array<ColumnLook, allColumns.size()>;

/// The table's texts end with a zero, being literals.
QString inWords(std::string_view text) { return QCoreApplication::translate("Columns", text.data()); }

Qt::Alignment toQt(Alignment alignment) {
    switch (alignment) {
    case Alignment::left:
        return Qt::AlignLeft | Qt::AlignVCenter;
    case Alignment::centre:
        return Qt::AlignCenter;
    case Alignment::right:
        return Qt::AlignRight | Qt::AlignVCenter;
    }
    return {};
}

ColumnLook lookOf(const ColumnInfo& info) {
    return {.title = inWords(info.title),
            .toolTip = inWords(info.toolTip),
            .spokenTitle = inWords(info.spokenTitle),
            .width = info.width,
            .alignment = toQt(info.alignment),
            .elision = info.elision == Elision::middle ? Qt::ElideMiddle : Qt::ElideRight,
            .kind = info.kind};
}

Looks makeLooks() {
    Looks looks;
    for (std::size_t i = 0; i < looks.size(); ++i)
        looks[i] = lookOf(columnInfo(allColumns[i]));
    return looks;
}

} // namespace

const ColumnLook& columnLook(Column column) {
    static const Looks looks = makeLooks();
    return looks.at(static_cast<std::size_t>(column));
}

} // namespace songsweep
