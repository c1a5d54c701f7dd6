// SPDX-License-Identifier: MIT
//
// What the scan of a folder costs, beside two bare loops in the same run: one that opens each file by TagLib
// and reads its properties at its fastest setting, and one that walks through the folder with one stat a
// file.
//
//   scan-benchmark [FOLDER [FILES]]   the files are made in FOLDER (7 kB each), or in a temporary one
#include "sample-library/SoundFolder.h"
#include "scan/FolderScan.h"

#include <QTemporaryDir>

#include <dirent.h>
#include <fcntl.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <functional>
#include <string>
#include <vector>

namespace songsweep::bench {
namespace {

namespace fs = std::filesystem;

constexpr int fewFiles = 28; // each format twice

/// What a piece of work cost that had a process of its own.
struct Cost {
    double cpuSeconds = 1e9;
    double seconds = 1e9;
    double peakBytes = 0;
};

double secondsOf(const timeval& time) { return double(time.tv_sec) + double(time.tv_usec) / 1e6; }

Cost costOf(const std::function<void()>& work) {
    const auto begin = std::chrono::steady_clock::now();
    const pid_t child = ::fork();
    if (child == 0) {
        work();
        ::_exit(0);
    }
    int status = 0;
    struct rusage usage {};
    ::wait4(child, &status, 0, &usage);
    if (!WIFEXITED(status) || WEXITSTATUS(status) != 0) std::exit(EXIT_FAILURE);
    const std::chrono::duration<double> passed = std::chrono::steady_clock::now() - begin;
    return {secondsOf(usage.ru_utime) + secondsOf(usage.ru_stime), passed.count(),
            double(usage.ru_maxrss) * 1024};
}

/// The best of a few, as other programs only ever add to the cost.
Cost bestOf(int rounds, const std::function<void()>& prepare, const std::function<void()>& work) {
    Cost best;
    for (int round = 0; round < rounds; ++round) {
        prepare();
        const Cost cost = costOf(work);
        best.cpuSeconds = std::min(best.cpuSeconds, cost.cpuSeconds);
        best.seconds = std::min(best.seconds, cost.seconds);
        best.peakBytes = std::max(best.peakBytes, cost.peakBytes);
    }
    return best;
}

std::vector<std::string> filesIn(const std::string& folder) {
    std::vector<std::string> files;
    for (const auto& entry : fs::recursive_directory_iterator(folder))
        if (entry.is_regular_file()) files.push_back(entry.path());
    return files;
}

/// A program of its own, whose allocator is the C library's.
void readBare(const std::string& folder) {
    ::execl(SONGSWEEP_BARE_TAGS, SONGSWEEP_BARE_TAGS, folder.c_str(), nullptr);
    ::_exit(1);
}

void walkBare(const std::string& folder) {
    DIR* const open = ::opendir(folder.c_str());
    if (open == nullptr) ::_exit(1);
    while (const struct dirent* const entry = ::readdir(open)) {
        if (entry->d_name[0] == '.') continue;
        struct stat status {};
        if (entry->d_type == DT_DIR) {
            walkBare(folder + "/" + entry->d_name);
        } else if (::fstatat(::dirfd(open), entry->d_name, &status, AT_SYMLINK_NOFOLLOW) != 0) {
            ::_exit(1);
        }
    }
    ::closedir(open);
}

void scan(const FolderLibrary& place) {
    const Result<ScanReport> report = scanFolder(place, {});
    if (!report || !report.value().unread.empty()) ::_exit(1);
}

[[noreturn]] void stop(const std::string& reason) {
    std::fprintf(stderr, "%s\n", reason.c_str());
    std::exit(EXIT_FAILURE);
}

/// One that an earlier run made is good for this one, too, unless it has more files.
void makeFolder(const std::string& folder, std::size_t files) {
    const std::size_t there = fs::exists(folder) ? filesIn(folder).size() : 0;
    if (there > files) stop(folder + " has more files than are to be measured");
    if (there == files) return;
    if (const Result<void> made = sample::makeSoundFolder(folder, static_cast<int>(files)); !made)
        stop(made.error().message);
}

/// Each folder is made in the one before it, so that files are made once. Memory is what a scan takes more
/// than that of a few files, which writes a library, too.
void measure(const std::string& folder, const std::string& data, int files) {
    makeFolder(folder, static_cast<std::size_t>(files));
    makeFolder(folder + " of few", fewFiles);
    const int rounds = files > 50'000 ? 2 : 5;
    const FolderLibrary place = FolderLibrary::of(folder, data).value();
    const auto nothing = [] {};
    costOf([&] { readBare(folder); });
    const FolderLibrary few = FolderLibrary::of(folder + " of few", data).value();
    const Cost writing = bestOf(
        3, [&] { fs::remove_all(data); }, [&] { scan(few); });
    const Cost floor = bestOf(rounds, nothing, [&] { readBare(folder); });
    const Cost first = bestOf(
        rounds, [&] { fs::remove_all(data); }, [&] { scan(place); });
    const Cost walk = bestOf(rounds + 5, nothing, [&] { walkBare(folder); });
    const Cost again = bestOf(rounds + 5, nothing, [&] { scan(place); });
    std::printf(
        "%7d files: TagLib alone %.3f s; first scan %.2f of its CPU, %.2f of its time, %.0f bytes a track\n",
        files, floor.cpuSeconds, first.cpuSeconds / floor.cpuSeconds, first.seconds / floor.seconds,
        (first.peakBytes - writing.peakBytes) / files);
    std::printf("               bare walk %.4f s; second scan %.2f of its time, %.2f of its CPU\n",
                walk.seconds, again.seconds / walk.seconds, again.cpuSeconds / walk.cpuSeconds);
}

} // namespace
} // namespace songsweep::bench

int main(int argumentCount, char** arguments) {
    const QTemporaryDir temporary;
    const std::string folder = argumentCount > 1 ? arguments[1] : temporary.path().toStdString();
    const std::vector<int> counts = argumentCount > 2 ? std::vector<int>{std::atoi(arguments[2])}
                                                      : std::vector<int>{1000, 10'000, 100'000};
    for (const int files : counts)
        songsweep::bench::measure(folder + "/music", folder + "/data", files);
    return 0;
}
