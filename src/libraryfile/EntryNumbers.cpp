// SPDX-License-Identifier: MIT
#include "libraryfile/EntryNumbers.h"

#include "library/ValueFormats.h"

namespace songsweep {

namespace {

constexpr std::string_view trackIdKey = "<key>Track ID</key>";

struct Place {
    std::size_t begin = 0;
    std::size_t length = 0;
};

/// The number between the tags behind `from`, where nothing else stands before them.
std::optional<Place> numberBetween(std::string_view bytes, std::size_t from, std::string_view open,
                                   std::string_view close) {
    const std::size_t tag = bytes.find('<', from);
    if (tag == std::string_view::npos || bytes.compare(tag, open.size(), open) != 0) return {};
    const std::size_t begin = tag + open.size();
    const std::size_t end = bytes.find('<', begin);
    if (end == std::string_view::npos || bytes.compare(end, close.size(), close) != 0) return {};
    if (!wholeNumber(bytes.substr(begin, end - begin))) return {};
    return Place{begin, end - begin};
}

std::optional<Place> trackIdIn(std::string_view bytes) {
    const std::size_t key = bytes.find(trackIdKey);
    if (key == std::string_view::npos) return {};
    return numberBetween(bytes, key + trackIdKey.size(), "<integer>", "</integer>");
}

} // namespace

std::optional<std::string> itemWithTrackId(std::string_view item, std::int64_t trackId) {
    const auto place = trackIdIn(item);
    if (!place) return {};
    return std::string(item).replace(place->begin, place->length, std::to_string(trackId));
}

std::optional<std::string> entryWithTrackId(std::string_view entry, std::int64_t trackId) {
    auto changed = itemWithTrackId(entry, trackId);
    const auto key = numberBetween(entry, 0, "<key>", "</key>");
    if (!changed || !key) return {};
    return changed->replace(key->begin, key->length, std::to_string(trackId));
}

} // namespace songsweep
