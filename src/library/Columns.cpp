// SPDX-License-Identifier: MIT
#include "library/Columns.h"

#include "library/Groups.h"
#include "library/KeySort.h"
#include "library/ValueFormats.h"
#include "platform/Words.h"

namespace songsweep {

namespace {

template <Text TrackRecord::*field>
std::string_view textOf(const TrackRecord& record, std::string& /*made*/) {
    return record.*field;
}

template <std::string (*format)(const TrackRecord& record)>
std::string_view made(const TrackRecord& record, std::string& made) {
    made = format(record);
    return made;
}

std::string_view yesOrNo(const TrackRecord& record, std::string& /*made*/) {
    return record.hasartwork ? translatable("Columns", "Yes") : translatable("Columns", "No");
}

std::string_view fileOf(const TrackRecord& record, std::string& /*made*/) { return fileName(record); }

/// What a column puts into a row's key, behind the group's place.
using AddValue = void(SortKey& key, const TrackRecord& record);

template <Text TrackRecord::*field>
void addText(SortKey& key, const TrackRecord& record) {
    key.text(record.*field);
}

template <auto field>
void addNumber(SortKey& key, const TrackRecord& record) {
    key.number(record.*field);
}

template <Text TrackRecord::*field>
void addInteger(SortKey& key, const TrackRecord& record) {
    key.number(integerValue(record.*field));
}

std::string_view soundOf(const TrackRecord& record, std::string& /*made*/) {
    return soundWord(record.sound.verdict);
}

void addSound(SortKey& key, const TrackRecord& record) {
    key.number(static_cast<std::int64_t>(record.sound.verdict)).number(record.sound.set);
}

void addFileName(SortKey& key, const TrackRecord& record) { key.text(fileName(record)); }

void addNothing(SortKey& /*key*/, const TrackRecord& /*record*/) {}

template <AddValue addValue>
void addKeys(KeySort& sort, const std::vector<TrackRecord*>& rows, bool ascending) {
    SortKey key;
    for (const RowGroup group : groupsOf(rows)) {
        for (std::size_t row = group.first; row < group.end; ++row) {
            key.clear().number(static_cast<std::int64_t>(group.first));
            const std::size_t start = key.size();
            addValue(key, *rows[row]);
            if (!ascending) key.reverse(start);
            sort.add(key.bytes());
        }
    }
}

using enum CellKind;
using enum Alignment;
using enum Elision;

// The size is a text and is compared as one: "9" stands behind "10". The missing files' pictures have no
// order.
constexpr std::array<ColumnInfo, allColumns.size()> columns = {{
    {Column::checkbox, "checkbox", "", translatable("Columns", "Marked for deletion"),
     translatable("Columns", "Marked for deletion"), checkBox, 32, centre, end, nullptr,
     addKeys<addNumber<&TrackRecord::checkbox>>},
    {Column::dtrack, "dtrack", "", translatable("Columns", "File missing"), "", image, 28, centre, end,
     nullptr, addKeys<addNothing>},
    {Column::name, "name", translatable("Columns", "Name"), translatable("Columns", "Name"), "", text, 184,
     left, end, textOf<&TrackRecord::name>, addKeys<addText<&TrackRecord::name>>},
    {Column::artist, "artist", translatable("Columns", "Artist"), translatable("Columns", "Artist"), "", text,
     144, left, end, textOf<&TrackRecord::artist>, addKeys<addText<&TrackRecord::artist>>},
    {Column::album, "album", translatable("Columns", "Album"), translatable("Columns", "Album"), "", text,
     148, left, end, textOf<&TrackRecord::album>, addKeys<addText<&TrackRecord::album>>},
    {Column::time, "time", translatable("Columns", "Time"), translatable("Columns", "Time"), "", text, 64,
     right, end, textOf<&TrackRecord::time>, addKeys<addNumber<&TrackRecord::timev>>},
    {Column::bitrate, "bitrate", translatable("Columns", "Bit rate"), translatable("Columns", "Bit rate"),
     "kbit/s", text, 76, right, end, textOf<&TrackRecord::bitrate>,
     addKeys<addInteger<&TrackRecord::bitrate>>},
    {Column::sizestring, "sizestring", translatable("Columns", "Size"), translatable("Columns", "Size"), "",
     text, 76, right, end, made<sizestring>, addKeys<addText<&TrackRecord::size>>},
    {Column::rating, "rating", translatable("Columns", "Rating"), translatable("Columns", "Rating"), "",
     stars, 88, left, end, nullptr, addKeys<addNumber<&TrackRecord::rating>>},
    {Column::playcount, "playcount", translatable("Columns", "Plays"), translatable("Columns", "Plays"), "",
     text, 56, right, end, textOf<&TrackRecord::playcount>, addKeys<addInteger<&TrackRecord::playcount>>},
    {Column::dateadded, "dateadded", translatable("Columns", "Date added"),
     translatable("Columns", "Date added"), "", text, 128, left, end, made<dateadded>,
     addKeys<addNumber<&TrackRecord::dateaddedv>>},
    {Column::hasartwork, "hasartwork", translatable("Columns", "Artwork"), translatable("Columns", "Artwork"),
     "", text, 72, centre, end, yesOrNo, addKeys<addNumber<&TrackRecord::hasartwork>>},
    {Column::sound, "sound", translatable("Columns", "Sound"), translatable("Columns", "Sound"),
     translatable("Columns", "Whether copies are the same recording"), text, 100, left, end, soundOf,
     addKeys<addSound>},
    {Column::file, "file", translatable("Columns", "File"), translatable("Columns", "File"), "", text, 180,
     left, middle, fileOf, addKeys<addFileName>},
    {Column::location, "location", translatable("Columns", "Location"), translatable("Columns", "Location"),
     "", text, 300, left, middle, textOf<&TrackRecord::location>, addKeys<addText<&TrackRecord::location>>},
}};

constexpr bool rowsStandAtTheirColumns() {
    for (std::size_t i = 0; i < columns.size(); ++i)
        if (columns[i].column != allColumns[i] || static_cast<std::size_t>(columns[i].column) != i)
            return false;
    return true;
}
static_assert(rowsStandAtTheirColumns());

} // namespace

std::string_view fileName(const TrackRecord& record) {
    const std::string_view location = record.location;
    return location.substr(location.rfind('/') + 1);
}

std::string_view fileFolder(const TrackRecord& record) {
    const std::string_view location = record.location;
    const std::size_t end = location.rfind('/');
    return end == std::string_view::npos ? std::string_view() : location.substr(0, end);
}

const ColumnInfo& columnInfo(Column column) { return columns.at(static_cast<std::size_t>(column)); }

} // namespace songsweep
