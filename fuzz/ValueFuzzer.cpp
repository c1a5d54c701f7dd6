// SPDX-License-Identifier: MIT
//
// Any bytes as a value: numbers, times and dates are read or refused; and what is written as a URL, as text
// of XML or as a path of the Finder reads back as what it was.
#include "Check.h"
#include "library/LocationUrl.h"
#include "library/ValueFormats.h"
#include "libraryfile/XmlText.h"
#include "platform/FileUrl.h"
#include "platform/HfsPath.h"
#include "platform/PathMap.h"

namespace {

using namespace songsweep;

void readAsValues(const std::string& text) {
    static_cast<void>(TimestringToSec(text));
    static_cast<void>(integerValue(text));
    static_cast<void>(wholeNumber(text));
    if (const auto seconds = parseLibraryDate(text)) {
        const auto written = libraryDate(*seconds);
        fuzz::check(written && parseLibraryDate(*written) == seconds, "a date reads back as another");
    }
}

void checkUrls(const std::string& text) {
    static_cast<void>(pathOfFileUrl(text));
    if (const auto path = pathOfUrl(text)) {
        std::string copy = text;
        const auto length = makePathOfUrl(copy);
        fuzz::check(length && copy.substr(0, *length) == *path, "a path in place is another");
    }
    const std::string path = "/" + text;
    if (text.empty() || text.ends_with('/') || text.find('\0') != std::string::npos) return;
    fuzz::check(pathOfFileUrl(fileUrl(path)) == path, "a path reads back as another from its URL");
}

void checkXml(const std::string& text) {
    const auto encoded = encodeXmlText(text);
    if (!encoded) return;
    fuzz::check(decodeXmlText(*encoded, {}) == text, "a text reads back as another from XML");
}

void checkFinderPath(const std::string& text) {
    static_cast<void>(posixPath(text));
    const std::string path = "/" + text;
    if (text.empty() || text.ends_with('/') || text.find("//") != std::string::npos) return;
    if (const auto hfs = hfsPath(path)) static_cast<void>(posixPath(*hfs));
}

void checkMap(const std::string& text) {
    const std::size_t half = text.size() / 2;
    PathMap map;
    map.add("/" + text.substr(0, half), "/" + text.substr(half));
    static_cast<void>(map.map("/" + text));
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string text(fuzz::textOf(data, size));
    readAsValues(text);
    checkUrls(text);
    checkXml(text);
    checkFinderPath(text);
    checkMap(text);
    return 0;
}
