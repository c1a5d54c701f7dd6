// SPDX-License-Identifier: MIT
#pragma once

#include "hosts/ITunesTerms.h"
#include "libraryfile/EntryValues.h"
#include "scripting/interpreter/Value.h"

#include <cstdint>
#include <string_view>

namespace songsweep {

/// A property of a track by the value of the library that holds it: one row of a table.
struct TrackProperty {
    enum class Form : std::uint8_t {
        text,         ///< "" where there is none
        number,       ///< 0 where there is none
        milliseconds, ///< given in seconds; none is the missing value
        date,         ///< local time; none is the missing value
        presence,     ///< true where the value is `<true/>`
        absence       ///< true where it is not
    };

    ITunesProperty property;
    std::string_view key;
    Form form;
};

/// The row of a property that is a value of a track's entry and that no search needs; null for any other.
const TrackProperty* trackProperty(ITunesProperty property);

/// The value of the property. Numbers come as numbers, but as text where the file writes them in some other
/// way.
interpreter::Value valueOf(const TrackProperty& property, const EntryValues& values);

} // namespace songsweep
