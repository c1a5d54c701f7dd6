// SPDX-License-Identifier: MIT
#include "cli/ScriptText.h"

#include "scripting/interpreter/Limits.h"

#include <fcntl.h>
#include <unicode/utf16.h>
#include <unicode/utf8.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <vector>

namespace songsweep::cli {

namespace {

using std::string_view_literals::operator""sv;

constexpr std::size_t pieceSize = std::size_t{1} << 16;
/// In UTF-16 a text takes up to twice the bytes that it takes in UTF-8, and its mark.
constexpr std::size_t mostBytes = 2 * interpreter::maximumSourceBytes + 2;

enum class ByteOrder { littleEndian, bigEndian };

Error unknownEncoding(const std::string& encoding) {
    return {Error::Code::notSupported, encoding + "; save it as UTF-8"};
}

bool isUtf8(std::string_view bytes) {
    const auto length = static_cast<std::int32_t>(bytes.size());
    for (std::int32_t at = 0; at < length;) {
        UChar32 character = 0;
        U8_NEXT(bytes.data(), at, length, character);
        if (character < 0) return false;
    }
    return true;
}

std::vector<char16_t> unitsOf(std::string_view bytes, ByteOrder order) {
    std::vector<char16_t> units;
    for (std::size_t i = 0; i + 1 < bytes.size(); i += 2) {
        const auto first = static_cast<unsigned char>(bytes[i]);
        const auto second = static_cast<unsigned char>(bytes[i + 1]);
        units.push_back(static_cast<char16_t>(order == ByteOrder::littleEndian ? first | second << 8U
                                                                               : first << 8U | second));
    }
    return units;
}

Result<std::string> fromUtf16(std::string_view bytes, ByteOrder order) {
    const Error broken{Error::Code::invalid, "it begins as UTF-16 but is not"};
    if (bytes.size() % 2 != 0) return broken;
    const std::vector<char16_t> units = unitsOf(bytes, order);
    std::string text;
    for (std::size_t at = 0; at < units.size();) {
        UChar32 character = 0;
        U16_NEXT(units.data(), at, units.size(), character);
        if (U_IS_SURROGATE(character)) return broken;
        char encoded[U8_MAX_LENGTH] = {};
        std::int32_t length = 0;
        U8_APPEND_UNSAFE(encoded, length, character);
        text.append(encoded, static_cast<std::size_t>(length));
    }
    return text;
}

Result<std::string> readAll(int descriptor) {
    std::string bytes;
    for (;;) {
        const std::size_t before = bytes.size();
        bytes.resize(before + pieceSize);
        const ssize_t count = ::read(descriptor, bytes.data() + before, pieceSize);
        bytes.resize(before + static_cast<std::size_t>(std::max<ssize_t>(count, 0)));
        if (count < 0 && errno != EINTR) return Error{Error::Code::inputOutput, std::strerror(errno)};
        if (count == 0) return bytes;
        if (bytes.size() > mostBytes) return Error{Error::Code::invalid, "it is too long for a script"};
    }
}

Result<std::string> readFile(const std::string& file) {
    if (file == "-") return readAll(STDIN_FILENO);
    const int descriptor = ::open(file.c_str(), O_RDONLY | O_CLOEXEC);
    if (descriptor < 0) return Error{Error::Code::inputOutput, std::strerror(errno)};
    Result<std::string> bytes = readAll(descriptor);
    ::close(descriptor);
    return bytes;
}

} // namespace

Result<std::string> decodedScript(std::string_view bytes) {
    if (bytes.starts_with("\xEF\xBB\xBF")) bytes.remove_prefix(3);
    if (bytes.starts_with("FasdUAS ")) return unknownEncoding("it is a compiled script");
    if (bytes.starts_with("\xFF\xFE\0\0"sv) || bytes.starts_with("\0\0\xFE\xFF"sv))
        return unknownEncoding("it is in UTF-32");
    if (bytes.starts_with("\xFF\xFE")) return fromUtf16(bytes.substr(2), ByteOrder::littleEndian);
    if (bytes.starts_with("\xFE\xFF")) return fromUtf16(bytes.substr(2), ByteOrder::bigEndian);
    if (bytes.find('\0') != std::string_view::npos) return unknownEncoding("it is in UTF-16 without a mark");
    if (!isUtf8(bytes))
        return unknownEncoding("it is in an 8-bit encoding, such as Mac Roman or Windows-1252");
    return std::string(bytes);
}

Result<std::string> readScript(const std::string& file) {
    Result<std::string> text = readFile(file);
    if (text) text = decodedScript(text.value());
    const std::string name = file == "-" ? "standard input" : file;
    if (!text) return Error{text.error().code, "cannot read " + name + ": " + text.error().message};
    return text;
}

} // namespace songsweep::cli
