// SPDX-License-Identifier: MIT
#include "libraryfile/WellFormedness.h"

#include <expat.h>

#include <memory>

namespace songsweep {

namespace {

constexpr int pieceSize = 256 << 10;

Error parserError(XML_Parser parser) {
    return {Error::Code::invalid, "line " + std::to_string(XML_GetCurrentLineNumber(parser)) + ": " +
                                      XML_ErrorString(XML_GetErrorCode(parser))};
}

} // namespace

Result<void> checkWellFormedness(const LibraryFile& file) {
    // The index was read from this file, so what it declares is UTF-8 or ASCII, by a name that this parser
    // might not know ("utf8").
    const std::unique_ptr<XML_ParserStruct, decltype(&XML_ParserFree)> parser(XML_ParserCreate("UTF-8"),
                                                                              &XML_ParserFree);
    if (!parser) return Error{Error::Code::failed, "there is no memory to check " + file.path()};
    std::uint64_t offset = 0;
    for (bool last = false; !last;) {
        void* buffer = XML_GetBuffer(parser.get(), pieceSize);
        if (buffer == nullptr) return parserError(parser.get());
        const auto count = file.read(offset, static_cast<char*>(buffer), pieceSize);
        if (!count) return count.error();
        last = count.value() < pieceSize;
        offset += count.value();
        const auto parsed = XML_ParseBuffer(parser.get(), static_cast<int>(count.value()), last ? 1 : 0);
        if (parsed != XML_STATUS_OK) return parserError(parser.get());
    }
    return {};
}

} // namespace songsweep
