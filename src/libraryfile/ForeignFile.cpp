// SPDX-License-Identifier: MIT
#include "libraryfile/ForeignFile.h"

#include "libraryfile/LibraryFile.h"

#include <array>
#include <filesystem>
#include <string_view>

namespace songsweep {

namespace {

using namespace std::string_view_literals;

constexpr auto database = "is the database of iTunes, which only iTunes itself can read. "sv;
constexpr auto musicDatabase = "is the database of Music, which only Music itself can read. "sv;
constexpr auto archive = "is an archive. Unpack it, and open the library's XML file from it."sv;
constexpr auto binaryList = "is a property list in its binary form. "sv;

struct Beginning {
    std::string_view bytes;
    std::string_view whatItIs;
    bool needsWay;
};

constexpr std::array beginnings = {
    Beginning{"hdfm"sv, database, true},        Beginning{"hfma"sv, musicDatabase, true},
    Beginning{"bplist"sv, binaryList, true},    Beginning{"PK\x03\x04"sv, archive, false},
    Beginning{"\x1f\x8b"sv, archive, false},    Beginning{"7z\xbc\xaf\x27\x1c"sv, archive, false},
    Beginning{"Rar!"sv, archive, false},        Beginning{"BZh"sv, archive, false},
    Beginning{"\xfd\x37zXZ"sv, archive, false},
};

std::string named(const std::string& path, std::string_view whatItIs) {
    return "“" + std::filesystem::path(path).filename().string() + "” " + std::string(whatItIs);
}

bool isMusicBundle(const std::filesystem::path& path) {
    std::error_code error;
    return path.extension() == ".musiclibrary" && std::filesystem::is_directory(path, error);
}

} // namespace

std::string wayToLibraryFile() {
    return "In iTunes or Music, choose File > Library > Export Library..., and open the XML file that it "
           "saves.";
}

std::optional<std::string> foreignFile(const std::string& path) {
    if (isMusicBundle(path)) return named(path, musicDatabase) + wayToLibraryFile();
    const Result<LibraryFile> file = LibraryFile::open(path);
    if (!file) return std::nullopt;
    std::array<char, 16> bytes{};
    const Result<std::size_t> count = file.value().read(0, bytes.data(), bytes.size());
    if (!count) return std::nullopt;
    const std::string_view start(bytes.data(), count.value());
    if (start.empty()) return named(path, "is empty. ") + "It may still be copied, or have been cut off.";
    for (const Beginning& each : beginnings)
        if (start.starts_with(each.bytes))
            return named(path, each.whatItIs) + (each.needsWay ? wayToLibraryFile() : "");
    return std::nullopt;
}

} // namespace songsweep
