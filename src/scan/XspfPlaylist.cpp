// SPDX-License-Identifier: MIT
#include "scan/XspfPlaylist.h"

#include <expat.h>

#include <algorithm>
#include <memory>
#include <string>
#include <utility>

namespace songsweep {

namespace {

/// What the parser is in, and what it found.
struct Reading {
    XML_Parser parser = nullptr;
    std::string_view bytes;
    std::vector<PlaylistEntry> entries;
    std::uint64_t trackBegin = 0;
    std::vector<std::string> names; ///< of the track in hand
    std::string text;
    bool inTrack = false;
    bool inLocation = false;
};

Reading& readingOf(void* data) { return *static_cast<Reading*>(data); }

std::uint64_t placeIn(const Reading& reading) {
    return static_cast<std::uint64_t>(XML_GetCurrentByteIndex(reading.parser));
}

void XMLCALL begin(void* data, const XML_Char* name, const XML_Char**) {
    Reading& reading = readingOf(data);
    const std::string_view element(name);
    if (element == "track") {
        reading.inTrack = true;
        reading.trackBegin = placeIn(reading);
        reading.names.clear();
    }
    if (element == "location" && reading.inTrack) {
        reading.inLocation = true;
        reading.text.clear();
    }
}

void endLocation(Reading& reading) {
    reading.inLocation = false;
    const std::size_t first = reading.text.find_first_not_of(" \t\r\n");
    if (first == std::string::npos) return;
    const std::size_t last = reading.text.find_last_not_of(" \t\r\n");
    reading.names.push_back(reading.text.substr(first, last - first + 1));
}

/// The lines of an element where nothing else stands on them, else the element alone.
ByteRange linesOf(std::string_view bytes, ByteRange element) {
    std::size_t begin = element.begin;
    while (begin > 0 && (bytes[begin - 1] == ' ' || bytes[begin - 1] == '\t'))
        --begin;
    std::size_t end = bytes.find_first_not_of(" \t", element.end());
    if (end == std::string_view::npos || (begin > 0 && bytes[begin - 1] != '\n')) return element;
    if (bytes[end] == '\r') ++end;
    if (end >= bytes.size() || bytes[end] != '\n') return element;
    return {begin, end + 1 - begin};
}

void endTrack(Reading& reading) {
    reading.inTrack = false;
    const auto tagLength = static_cast<std::uint64_t>(XML_GetCurrentByteCount(reading.parser));
    const ByteRange element{reading.trackBegin, placeIn(reading) + tagLength - reading.trackBegin};
    if (!reading.names.empty())
        reading.entries.push_back({std::exchange(reading.names, {}), {linesOf(reading.bytes, element)}});
}

void XMLCALL end(void* data, const XML_Char* name) {
    Reading& reading = readingOf(data);
    const std::string_view element(name);
    if (element == "location" && reading.inLocation) endLocation(reading);
    if (element == "track" && reading.inTrack) endTrack(reading);
}

void XMLCALL characters(void* data, const XML_Char* text, int length) {
    Reading& reading = readingOf(data);
    if (reading.inLocation) reading.text.append(text, static_cast<std::size_t>(length));
}

/// Reads as far as the file is well-formed; whether that is to its end.
bool readXspf(Reading& reading) {
    constexpr std::size_t largestPiece = std::size_t{1} << 20;
    const std::unique_ptr<std::remove_pointer_t<XML_Parser>, decltype(&XML_ParserFree)> parser(
        XML_ParserCreate(nullptr), &XML_ParserFree);
    reading.parser = parser.get();
    XML_SetUserData(parser.get(), &reading);
    XML_SetElementHandler(parser.get(), begin, end);
    XML_SetCharacterDataHandler(parser.get(), characters);
    // Without an expansion of its own entities, a small file stays small.
    XML_SetDefaultHandler(parser.get(), [](void*, const XML_Char*, int) {});
    std::string_view left = reading.bytes;
    do {
        const std::size_t count = std::min(left.size(), largestPiece);
        const bool isLast = count == left.size();
        if (XML_Parse(parser.get(), left.data(), static_cast<int>(count), isLast ? 1 : 0) == XML_STATUS_ERROR)
            return false;
        left.remove_prefix(count);
    } while (!left.empty());
    return true;
}

} // namespace

std::vector<PlaylistEntry> entriesOfXspf(std::string_view bytes) {
    Reading reading;
    reading.bytes = bytes;
    static_cast<void>(readXspf(reading));
    return std::move(reading.entries);
}

bool isWholeXspf(std::string_view bytes) {
    Reading reading;
    reading.bytes = bytes;
    return readXspf(reading);
}

} // namespace songsweep
