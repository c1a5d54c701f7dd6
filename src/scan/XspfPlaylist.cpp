// SPDX-License-Identifier: MIT
#include "scan/XspfPlaylist.h"

#include <expat.h>

#include <algorithm>
#include <memory>

namespace songsweep {

namespace {

/// What the parser is in, and what it found.
struct Reading {
    std::vector<std::string> names;
    std::string text;
    bool inTrack = false;
    bool inLocation = false;
};

Reading& readingOf(void* data) { return *static_cast<Reading*>(data); }

void XMLCALL begin(void* data, const XML_Char* name, const XML_Char**) {
    Reading& reading = readingOf(data);
    const std::string_view element(name);
    if (element == "track") reading.inTrack = true;
    if (element == "location" && reading.inTrack) {
        reading.inLocation = true;
        reading.text.clear();
    }
}

void XMLCALL end(void* data, const XML_Char* name) {
    Reading& reading = readingOf(data);
    const std::string_view element(name);
    if (element == "track") reading.inTrack = false;
    if (element != "location" || !reading.inLocation) return;
    reading.inLocation = false;
    const std::size_t first = reading.text.find_first_not_of(" \t\r\n");
    if (first == std::string::npos) return;
    const std::size_t last = reading.text.find_last_not_of(" \t\r\n");
    reading.names.push_back(reading.text.substr(first, last - first + 1));
}

void XMLCALL characters(void* data, const XML_Char* text, int length) {
    Reading& reading = readingOf(data);
    if (reading.inLocation) reading.text.append(text, static_cast<std::size_t>(length));
}

} // namespace

std::vector<std::string> namesInXspf(std::string_view bytes) {
    constexpr std::size_t largestPiece = std::size_t{1} << 20;
    const std::unique_ptr<std::remove_pointer_t<XML_Parser>, decltype(&XML_ParserFree)> parser(
        XML_ParserCreate(nullptr), &XML_ParserFree);
    Reading reading;
    XML_SetUserData(parser.get(), &reading);
    XML_SetElementHandler(parser.get(), begin, end);
    XML_SetCharacterDataHandler(parser.get(), characters);
    // Without an expansion of its own entities, a small file stays small.
    XML_SetDefaultHandler(parser.get(), [](void*, const XML_Char*, int) {});
    while (!bytes.empty()) {
        const std::size_t count = std::min(bytes.size(), largestPiece);
        const bool isLast = count == bytes.size();
        if (XML_Parse(parser.get(), bytes.data(), static_cast<int>(count), isLast ? 1 : 0) ==
            XML_STATUS_ERROR)
            break;
        bytes.remove_prefix(count);
    }
    return std::move(reading.names);
}

} // namespace songsweep
