// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <optional>
#include <string_view>

namespace songsweep {

/// The columns of the results table, in their first order.
enum class Column {
    checkbox,
    dtrack,
    name,
    artist,
    album,
    time,
    bitrate,
    sizestring,
    rating,
    playcount,
    dateadded,
    hasartwork,
    location,
};

inline constexpr std::array allColumns = {
    Column::checkbox,  Column::dtrack,     Column::name,       Column::artist, Column::album,
    Column::time,      Column::bitrate,    Column::sizestring, Column::rating, Column::playcount,
    Column::dateadded, Column::hasartwork, Column::location,
};

/// The record's key that the column shows ("dateadded"); "dtrack" is the one that is no key.
std::string_view identifier(Column column);

} // namespace songsweep
