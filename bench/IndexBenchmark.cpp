// SPDX-License-Identifier: MIT
//
// Measures the library document against floors of the same run: the index against a bare loop over libxml2's
// text reader (both in processor time), a rewrite against a copy of the file. Prints ratios; times are the
// best of several rounds.
//
//     index-benchmark [TRACKS]     (100000 unless told otherwise, about 150 MB)

#include "hosts/EmbeddedScripting.h"
#include "libraryfile/LibraryDocument.h"
#include "libraryfile/LibraryIndex.h"
#include "libraryfile/LibraryReplacement.h"
#include "libraryfile/WellFormedness.h"
#include "platform/Desktop.h"
#include "platform/Files.h"
#include "platform/Native.h"
#include "sample-library/BulkLibrary.h"

#include <fcntl.h>
#include <libxml/xmlreader.h>
#include <unistd.h>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <filesystem>
#include <fstream>
#include <functional>
#include <string>

namespace songsweep {
namespace {

constexpr int rounds = 5;

/// Seconds of the fastest of some rounds.
double best(
    const std::function<void()>& work, const std::function<void()>& prepare = [] {}) {
    double fastest = 1e9;
    for (int round = 0; round < rounds; ++round) {
        prepare();
        const auto begin = std::chrono::steady_clock::now();
        work();
        const std::chrono::duration<double> time = std::chrono::steady_clock::now() - begin;
        fastest = std::min(fastest, time.count());
    }
    return fastest;
}

/// The same in seconds of processor time, which a busy machine does not lengthen as much: for work that waits
/// for nothing.
double bestProcessorTime(const std::function<void()>& work) {
    double fastest = 1e9;
    for (int round = 0; round < rounds; ++round) {
        const std::clock_t begin = std::clock();
        work();
        fastest = std::min(fastest, static_cast<double>(std::clock() - begin) / CLOCKS_PER_SEC);
    }
    return fastest;
}

[[noreturn]] void stop(const std::string& reason) {
    std::fprintf(stderr, "%s\n", reason.c_str());
    std::exit(1);
}

/// Steps through the file and touches type, names of elements and values of texts, no more.
std::size_t readBarely(const std::string& path) {
    constexpr int options = XML_PARSE_NOCDATA | XML_PARSE_NOBLANKS | XML_PARSE_NOWARNING | XML_PARSE_NOERROR;
    xmlTextReaderPtr reader = xmlReaderForFile(path.c_str(), nullptr, options);
    std::size_t sum = 0;
    while (xmlTextReaderRead(reader) == 1) {
        const int type = xmlTextReaderNodeType(reader);
        if (type == XML_READER_TYPE_ELEMENT) sum += *xmlTextReaderConstName(reader);
        if (type == XML_READER_TYPE_TEXT) sum += *xmlTextReaderConstValue(reader);
    }
    xmlFreeTextReader(reader);
    return sum;
}

/// Copies as a plain tool does, and sees to it that the copy is on the disk, as a rewrite does.
void copyToDisk(const std::string& from, const std::string& to) {
    std::filesystem::copy_file(from, to, std::filesystem::copy_options::overwrite_existing);
    const int descriptor = ::open(to.c_str(), O_RDONLY);
    if (descriptor < 0 || ::fsync(descriptor) != 0) stop("cannot copy");
    ::close(descriptor);
}

void measureIndex(const std::string& path) {
    std::size_t sum = 0;
    const double reader = bestProcessorTime([&] { sum += readBarely(path); });
    const double index = bestProcessorTime([&] {
        const auto library = LibraryDocument::open(path);
        if (!library) stop(library.error().message);
        sum += static_cast<std::size_t>(library.value()->trackCount());
    });
    std::printf("index                 %8.1f ms, %.3f of the bare reader loop's %.1f ms (%zu)\n", index * 1e3,
                index / reader, reader * 1e3, sum % 10);
}

void measureSearch(LibraryDocument& library, const std::vector<std::string>& ids) {
    std::size_t found = 0;
    const double bare = best([&] {
        for (const std::string& id : ids)
            found += library.tracksWithPersistentId(id).size();
    });
    const double read = best([&] {
        for (const std::string& id : ids)
            for (const auto track : library.tracksWithPersistentId(id))
                found += library.fields(track).value()->text(LibraryKey::location).size();
    });
    const auto count = static_cast<double>(ids.size());
    std::printf("one track by its ID   %8.2f us; with its location %.2f us (%zu)\n", bare / count * 1e6,
                read / count * 1e6, found % 10);
}

std::string batchText(int first) {
    std::string text =
        "tell application \"iTunes\" \nset tindex to 1 \nset itunes_records to {} \nrepeat with i from " +
        std::to_string(first) + " to " + std::to_string(first + 49) + " \n";
    const std::pair<const char*, const char*> values[] = {{"tname", "name"},
                                                          {"tartist", "artist"},
                                                          {"talbum", "album"},
                                                          {"ttime", "time"},
                                                          {"tbitrate", "bit rate"},
                                                          {"tsize", "size"},
                                                          {"tdateadded", "date added"},
                                                          {"trating", "rating"},
                                                          {"tpid", "persistent ID"},
                                                          {"tplaycount", "played count"}};
    for (const auto& [variable, property] : values)
        text += std::string("set ") + variable + " to " + property + " of track i of playlist tindex \n";
    return text +
           "set tlocation2 to location of (tracks whose persistent ID is tpid) \ntry \nset tlocation to "
           "POSIX path of tlocation2 \non error \nset tlocation to tlocation2 \nend try \nset tartworks to "
           "artworks of track i of playlist tindex \nset end of itunes_records to {tname, tartist, talbum, "
           "ttime, tbitrate, tsize, tdateadded, trating, tpid, tplaycount, tlocation, tartworks} \nend "
           "repeat \n{itunes_records} \nend tell \n";
}

void measureBatch(const std::string& path) {
    const std::unique_ptr<Desktop> desktop = nativeDesktop();
    Files files;
    EmbeddedScripting scripts(path, *desktop, files);
    if (const auto read = scripts.readLibrary(); !read) stop(read.error().message);
    int first = 1;
    const double batch = best([&] {
        const auto result = scripts.executeAndReturnError(batchText(first));
        if (!result || result.value().descriptorAtIndex(1)->numberOfItems() != 50) stop("the batch failed");
        first += 50;
    });
    std::printf("a batch of 50 tracks  %8.2f ms\n", batch * 1e3);
}

void measureRewrite(const std::string& path, const std::vector<std::string>& ids) {
    const std::string copy = path + ".copy";
    const double copying = best([&] { copyToDisk(path, copy); });
    std::unique_ptr<LibraryDocument> library;
    const auto prepare = [&] {
        std::filesystem::copy_file(path, copy, std::filesystem::copy_options::overwrite_existing);
        ::sync();
        library = std::move(LibraryDocument::open(copy)).value();
        for (const std::string& id : ids)
            for (const auto track : library->tracksWithPersistentId(id))
                if (!library->remove(track)) stop("cannot delete");
    };
    const auto write = [&] {
        if (const auto written = library->flush(); !written) stop(written.error().message);
    };
    const double first = best(write, prepare);
    const auto prepareSecond = [&] {
        prepare();
        write();
        if (!library->remove(0)) stop("cannot delete");
    };
    const double second = best(write, prepareSecond);
    const auto file = LibraryFile::open(path);
    const auto index = LibraryIndex::read(file.value());
    std::vector<ByteRange> ranges;
    for (std::size_t track = 0; track < index.value().tracks.size(); track += 101)
        ranges.push_back(index.value().tracks[track].range());
    LibraryReplacement replacement(copy);
    const double copyingPart = best([&] {
        if (!replacement.write(file.value(), piecesWithout(file.value(), ranges))) stop("cannot copy");
    });
    const double check = best([&] {
        if (!checkWellFormedness(file.value())) stop("not well formed");
    });
    std::printf("copying but the gaps  %8.1f ms, %.2f of a copy's %.1f ms\n", copyingPart * 1e3,
                copyingPart / copying, copying * 1e3);
    std::printf("the full parser       %8.1f ms, once a file\n", check * 1e3);
    std::printf("the first rewrite     %8.1f ms, %.2f of a copy's %.1f ms, the full parser included\n",
                first * 1e3, first / copying, copying * 1e3);
    std::printf("a later rewrite       %8.1f ms, %.2f of a copy, read back and compared\n", second * 1e3,
                second / copying);
}

std::vector<std::string> someIds(const std::string& path) {
    std::vector<std::string> ids;
    const auto library = LibraryDocument::open(path);
    if (!library) stop(library.error().message);
    const auto count = static_cast<std::uint32_t>(library.value()->trackCount());
    for (std::uint32_t track = 0; track < count; track += 101)
        ids.emplace_back(library.value()->fields(track).value()->text(LibraryKey::persistentId));
    return ids;
}

void measure(int tracks) {
    const auto folder =
        std::filesystem::temp_directory_path() / ("index-benchmark-" + std::to_string(::getpid()));
    std::filesystem::create_directories(folder);
    sample::BulkOptions options;
    options.tracks = tracks;
    options.file = (folder / "library.xml").string();
    options.musicFolder = (folder / "music").string();
    options.files = sample::BulkFiles::none;
    if (const auto made = sample::makeBulkLibrary(options); !made) stop(made.error().message);
    std::printf("%d tracks, %.1f MB\n", tracks,
                static_cast<double>(std::filesystem::file_size(options.file)) / (1 << 20));
    const auto ids = someIds(options.file);
    measureIndex(options.file);
    measureSearch(*LibraryDocument::open(options.file).value(), ids);
    measureBatch(options.file);
    measureRewrite(options.file, ids);
    std::filesystem::remove_all(folder);
}

} // namespace
} // namespace songsweep

int main(int argc, char** argv) { songsweep::measure(argc > 1 ? std::atoi(argv[1]) : 100000); }
