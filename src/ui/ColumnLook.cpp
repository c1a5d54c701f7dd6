// SPDX-License-Identifier: MIT
#include "ui/ColumnLook.h"

namespace songsweep {

namespace {

using Looks = std::array<ColumnLook, allColumns.size()>;

QString fromText(std::string_view text) {
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

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
    return {.title = fromText(info.title),
            .toolTip = fromText(info.toolTip),
            .spokenTitle = fromText(info.spokenTitle),
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
