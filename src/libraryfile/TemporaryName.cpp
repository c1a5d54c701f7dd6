// SPDX-License-Identifier: MIT
#include "libraryfile/TemporaryName.h"

#include <array>
#include <charconv>
#include <cstdint>

namespace songsweep {

namespace {

constexpr std::string_view extension = ".tmp";
constexpr char exchangeMark = 'x';

void appendHex(std::string& text, std::uint64_t number) {
    std::array<char, 16> digits{};
    const auto end = std::to_chars(digits.data(), digits.data() + digits.size(), number, 16).ptr;
    text.append(digits.data(), end);
}

/// The same in every build (FNV-1a), as another version of the program may look for the file.
std::uint64_t hashOf(std::string_view text) {
    std::uint64_t hash = 0xCBF29CE484222325;
    for (const char c : text)
        hash = (hash ^ static_cast<unsigned char>(c)) * 0x100000001B3;
    return hash;
}

std::string beginningFor(std::string_view library) {
    std::string name = ".songsweep-";
    appendHex(name, hashOf(library));
    return name + "-";
}

using Numbers = std::array<std::uint64_t, 8>;

Numbers numbersOf(const TemporaryName::Exchange& exchange) {
    const auto& [own, expected] = exchange;
    return {own.device,      own.inode,
            own.size,        static_cast<std::uint64_t>(own.modificationNanoseconds),
            expected.device, expected.inode,
            expected.size,   static_cast<std::uint64_t>(expected.modificationNanoseconds)};
}

} // namespace

std::string TemporaryName::forWriting(std::string_view library, unsigned number) {
    std::string name = beginningFor(library);
    appendHex(name, number);
    return name.append(extension);
}

std::string TemporaryName::forExchange(std::string_view library, const Exchange& exchange) {
    std::string name = beginningFor(library);
    name += exchangeMark;
    for (const std::uint64_t number : numbersOf(exchange)) {
        name += '-';
        appendHex(name, number);
    }
    return name.append(extension);
}

std::string TemporaryName::ofLock(std::string_view library) { return beginningFor(library) + "lock"; }

bool TemporaryName::isOf(std::string_view library, std::string_view name) {
    return name.starts_with(beginningFor(library)) && name.ends_with(extension);
}

std::optional<TemporaryName::Exchange> TemporaryName::exchangeOf(std::string_view library,
                                                                 std::string_view name) {
    const std::string beginning = beginningFor(library) + exchangeMark;
    if (!isOf(library, name) || !name.starts_with(beginning)) return {};
    const char* at = name.data() + beginning.size();
    const char* const end = name.data() + name.size() - extension.size();
    Numbers numbers{};
    for (std::uint64_t& number : numbers) {
        if (at == end || *at != '-') return {};
        const auto read = std::from_chars(at + 1, end, number, 16);
        if (read.ec != std::errc()) return {};
        at = read.ptr;
    }
    if (at != end) return {};
    const auto stamp = [&](std::size_t first) {
        return FileStamp{numbers[first], numbers[first + 1], numbers[first + 2],
                         static_cast<std::int64_t>(numbers[first + 3])};
    };
    return Exchange{stamp(0), stamp(4)};
}

} // namespace songsweep
