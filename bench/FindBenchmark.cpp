// SPDX-License-Identifier: MIT
//
// What the program's commands cost from their start to their end, beside a bare loop over libxml2's text
// reader on the same file (BareLoop.cpp): processor time of all threads, and memory at its peak above the
// loop's. Every measurement is a process of its own; the least of several counts.
//
//   find-benchmark [FOLDER]       libraries are made in FOLDER (about 2 GB), or in a temporary one
#include "sample-library/BulkLibrary.h"

#include <fcntl.h>
#include <spawn.h>
#include <sys/resource.h>
#include <sys/wait.h>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <string>
#include <vector>

extern char** environ; // NOLINT(readability-redundant-declaration): POSIX has it nowhere else

namespace songsweep::bench {
namespace {

using sample::BulkFiles;

struct Bar {
    double aim = 0; ///< 0 for none
    double failure = 0;
};

constexpr Bar smallFind{0.45, 0.6};
constexpr Bar largeFind{0.5, 0.6};
constexpr Bar dryDelete{0.9, 0.9};
constexpr Bar memory{300, 400};
constexpr double mostForMarking = 0.05;
constexpr double mostForMissing = 0.5; // of the floor, for all files missing
constexpr double mostGrowth = 10.5;

struct Cost {
    double cpuSeconds = 0;
    double peakBytes = 0;
};

struct Library {
    std::string file;
    int tracks = 0;
    int turns = 0;
};

[[noreturn]] void fail(const std::string& message) {
    std::fprintf(stderr, "find-benchmark: %s\n", message.c_str());
    std::exit(1);
}

double seconds(const timeval& time) {
    return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_usec) * 1e-6;
}

Cost costOf(const std::vector<std::string>& command) {
    std::vector<char*> arguments;
    for (const std::string& argument : command)
        arguments.push_back(const_cast<char*>(argument.c_str()));
    arguments.push_back(nullptr);
    posix_spawn_file_actions_t silent;
    posix_spawn_file_actions_init(&silent);
    posix_spawn_file_actions_addopen(&silent, STDOUT_FILENO, "/dev/null", O_WRONLY, 0);
    posix_spawn_file_actions_addopen(&silent, STDERR_FILENO, "/dev/null", O_WRONLY, 0);
    pid_t process = 0;
    const int error = posix_spawn(&process, arguments[0], &silent, nullptr, arguments.data(), environ);
    posix_spawn_file_actions_destroy(&silent);
    int status = 0;
    rusage usage{};
    if (error != 0 || wait4(process, &status, 0, &usage) != process || status != 0)
        fail(command[0] + " " + command[1] + " does not run");
    return {seconds(usage.ru_utime) + seconds(usage.ru_stime), static_cast<double>(usage.ru_maxrss) * 1024};
}

void takeLess(Cost& least, const Cost& cost) {
    if (least.cpuSeconds == 0 || cost.cpuSeconds < least.cpuSeconds) least.cpuSeconds = cost.cpuSeconds;
    if (least.peakBytes == 0 || cost.peakBytes < least.peakBytes) least.peakBytes = cost.peakBytes;
}

std::string verdict(double value, Bar bar) {
    if (bar.aim == 0) return "";
    return value <= bar.aim ? "reached" : value <= bar.failure ? "missed" : "FAILED";
}

/// A command of the program, and what it may cost.
struct Run {
    const char* name;
    std::vector<std::string> arguments;
    Bar bar;
};

/// Prints a line for each run; their ratios to the floor, which is measured between them.
std::vector<double> measure(const Library& library, const std::vector<Run>& runs, double& findSeconds) {
    Cost floor;
    std::vector<Cost> costs(runs.size());
    for (int turn = 0; turn < library.turns; ++turn) {
        takeLess(floor, costOf({SONGSWEEP_BARE_LOOP, library.file}));
        for (std::size_t i = 0; i < runs.size(); ++i) {
            std::vector<std::string> command{SONGSWEEP_PROGRAM, runs[i].arguments[0], "--library",
                                             library.file};
            command.insert(command.end(), runs[i].arguments.begin() + 1, runs[i].arguments.end());
            takeLess(costs[i], costOf(command));
        }
    }
    std::vector<double> ratios;
    for (std::size_t i = 0; i < runs.size(); ++i) {
        const double ratio = ratios.emplace_back(costs[i].cpuSeconds / floor.cpuSeconds);
        const double bytes = (costs[i].peakBytes - floor.peakBytes) / library.tracks;
        std::printf("%-28s %9d  %8.3f s  %8.3f s  %6.3f %-8s %6.0f %s\n", runs[i].name, library.tracks,
                    floor.cpuSeconds, costs[i].cpuSeconds, ratio, verdict(ratio, runs[i].bar).c_str(), bytes,
                    verdict(bytes, memory).c_str());
    }
    findSeconds = costs[0].cpuSeconds;
    return ratios;
}

Library makeLibrary(const std::filesystem::path& folder, int tracks, BulkFiles files, int turns) {
    std::filesystem::remove_all(folder);
    std::filesystem::create_directories(folder);
    sample::BulkOptions options;
    options.tracks = tracks;
    options.file = (folder / "library.xml").string();
    options.musicFolder = (folder / "Music").string();
    options.files = files;
    if (const Result<void> made = sample::makeBulkLibrary(options); !made) fail(made.error().message);
    return {options.file, tracks, turns};
}

void printDifference(const char* what, double value, double most) {
    std::printf("%s %.3f (%.3f) %s\n", what, value, most, value <= most ? "reached" : "missed");
}

int run(const std::filesystem::path& folder) {
    std::setvbuf(stdout, nullptr, _IOLBF, 0); // lines come while the rest is measured
    std::printf("%-28s %9s  %10s  %10s  %-15s %s\n", "", "tracks", "bare loop", "program", "ratio",
                "bytes a track");
    const std::vector<std::string> markArguments{"--rule", "smallest", "--except-one"};
    std::vector<std::string> mark{"mark"};
    mark.insert(mark.end(), markArguments.begin(), markArguments.end());
    std::vector<std::string> remove{"delete", "--dry-run"};
    remove.insert(remove.end(), markArguments.begin(), markArguments.end());
    double small = 0;
    double large = 0;
    double other = 0;
    const auto usual = measure(makeLibrary(folder, 100'000, BulkFiles::nineOfTen, 7),
                               {{"find, nine files of ten", {"find"}, smallFind},
                                {"mark", mark, {}},
                                {"delete, dry", remove, dryDelete}},
                               small);
    printDifference("mark above find", usual[1] - usual[0], mostForMarking);
    const auto whole = measure(makeLibrary(folder, 100'000, BulkFiles::all, 5),
                               {{"find, all files there", {"find"}, smallFind}}, other);
    const auto missing = measure(makeLibrary(folder, 100'000, BulkFiles::none, 5),
                                 {{"find, all files missing", {"find"}, {}}}, other);
    printDifference("missing files", missing[0] - whole[0], mostForMissing);
    measure(makeLibrary(folder, 1'000'000, BulkFiles::nineOfTen, 3),
            {{"find, nine files of ten", {"find"}, largeFind}}, large);
    printDifference("growth", large / small, mostGrowth);
    std::filesystem::remove_all(folder);
    return 0;
}

} // namespace
} // namespace songsweep::bench

int main(int argumentCount, char** arguments) {
    const std::filesystem::path folder =
        argumentCount > 1 ? std::filesystem::path(arguments[1]) : std::filesystem::temp_directory_path();
    return songsweep::bench::run(folder / "songsweep-find-benchmark");
}
