// SPDX-License-Identifier: MIT
#pragma once

#include "hosts/ITunesTerms.h"
#include "libraryfile/TrackFields.h"
#include "scripting/interpreter/Value.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string_view>

namespace songsweep {

class Files;

/// The value of a track's property as iTunes gives it, made so that a record put together from these equals
/// the one read from the file: numbers as numbers, but as text where the file writes them in some other way,
/// "" where it has none; a rating and a played count of 0 and a persistent ID of "0" where it has none. The
/// location is the missing value where no file is there. Nothing for a property that tracks do not have.
std::optional<interpreter::Value> trackValue(const TrackFields& fields, ITunesProperty property,
                                             const Files& files);

/// The number of a track's artworks.
std::size_t artworkCount(const TrackFields& fields);

/// A number where its text is the one that the number would be written with; else the text, so that nothing
/// of it is lost.
interpreter::Value numberOrText(std::string_view text);

/// The local time of a library date; the missing value where it is none.
interpreter::Value dateOrMissing(std::string_view text);

} // namespace songsweep
