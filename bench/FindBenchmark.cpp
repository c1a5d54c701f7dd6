// SPDX-License-Identifier: MIT
//
// What a whole search costs, reading, processing and grouping with its real events, beside a bare loop over
// the same reader calls on the same file: the loop asks for names on elements and for values on texts, and
// keeps nothing. Nine files of ten exist. Then the whole program, "songsweep find" with its index and its
// scripts, over a library whose files all exist. Every measurement is a process of its own, so that none
// warms the heap of another; of several the least is taken. CPU time is of all threads.
//
//   find-benchmark [FOLDER]       libraries are made in FOLDER (about 1.5 GB), or in a temporary one
#include "FindMeasurement.h"
#include "platform/Memory.h"
#include "sample-library/BulkLibrary.h"

#include <QCoreApplication>
#include <QDir>
#include <QProcess>
#include <QTemporaryDir>

#include <sys/resource.h>

#include <cstdio>
#include <cstdlib>
#include <exception>
#include <string>

namespace songsweep::bench {
namespace {

constexpr double aimedRatio = 1.35;
constexpr double failingRatio = 1.6;
constexpr double aimedGrowth = 11.5;
constexpr double aimedPeak = 400;
constexpr double failingPeak = 500;
constexpr double aimedProgramRatio = 1.8;

struct Library {
    std::string file;
    int tracks = 0;
};

struct Comparison {
    Measurement bare;
    Measurement search;
    double ratio() const { return search.cpuSeconds / bare.cpuSeconds; }
};

[[noreturn]] void fail(const std::string& message) {
    std::fprintf(stderr, "find-benchmark: %s\n", message.c_str());
    std::exit(1);
}

Library makeLibrary(const QDir& folder, int tracks, sample::BulkFiles files) {
    const QString file = folder.absoluteFilePath(QStringLiteral("library-%1.xml").arg(tracks));
    sample::BulkOptions options;
    options.tracks = tracks;
    options.file = file.toStdString();
    options.musicFolder = folder.absoluteFilePath(QStringLiteral("Music")).toStdString();
    options.files = files;
    const Result<void> made = sample::makeBulkLibrary(options);
    if (!made) fail(made.error().message);
    return {options.file, tracks};
}

/// Runs this program once more for one measurement.
Measurement measureInProcess(const char* what, const Library& library) {
    QProcess process;
    process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    process.start(
        QCoreApplication::applicationFilePath(),
        {QString::fromUtf8(what), QString::fromStdString(library.file), QString::number(library.tracks)});
    if (!process.waitForFinished(-1) || process.exitCode() != 0)
        fail(std::string("no measurement of ") + what);
    const QByteArray line = process.readAllStandardOutput();
    Measurement measurement;
    if (std::sscanf(line.constData(), "%lf %lf %lf %d", &measurement.cpuSeconds, &measurement.peakBytes,
                    &measurement.leftBytes, &measurement.rows) != 4)
        fail(std::string("no measurement of ") + what);
    return measurement;
}

void takeLess(Measurement& least, const Measurement& measurement) {
    if (least.cpuSeconds == 0 || measurement.cpuSeconds < least.cpuSeconds) least = measurement;
}

Comparison compare(const Library& library, int turns) {
    Comparison comparison;
    for (int turn = 0; turn < turns; ++turn) {
        takeLess(comparison.bare, measureInProcess("bare", library));
        takeLess(comparison.search, measureInProcess("search", library));
    }
    return comparison;
}

const char* verdict(double value, double aim, double failure) {
    if (value <= aim) return "reached";
    return value <= failure ? "missed" : "FAILED";
}

void print(const Library& library, const Comparison& comparison) {
    const double peak = comparison.search.peakBytes / library.tracks;
    std::printf("%9d  %8.3f s  %8.3f s  %6.3f %-7s  %7.1f %-7s  %7.1f  %9d\n", library.tracks,
                comparison.bare.cpuSeconds, comparison.search.cpuSeconds, comparison.ratio(),
                verdict(comparison.ratio(), aimedRatio, failingRatio), peak,
                verdict(peak, aimedPeak, failingPeak), comparison.search.leftBytes / library.tracks,
                comparison.search.rows);
}

void compareProgram(const Library& library, int turns) {
    Measurement bare;
    Measurement program;
    for (int turn = 0; turn < turns; ++turn) {
        takeLess(bare, measureInProcess("bare", library));
        takeLess(program, measureInProcess("program", library));
    }
    const double ratio = program.cpuSeconds / bare.cpuSeconds;
    std::printf("%9d  %8.3f s  %8.3f s  %6.3f %-7s  (%.1f) the whole program, all files exist\n",
                library.tracks, bare.cpuSeconds, program.cpuSeconds, ratio,
                ratio <= aimedProgramRatio ? "reached" : "missed", aimedProgramRatio);
}

int run(const QDir& folder) {
    std::setvbuf(stdout, nullptr, _IOLBF, 0); // lines come while the rest is measured
    std::printf("%9s  %10s  %10s  %-14s  %-15s  %7s  %9s\n", "tracks", "bare loop", "search", "ratio (1.35)",
                "bytes/trk (400)", "left", "rows");
    const Library small = makeLibrary(folder, 100'000, sample::BulkFiles::nineOfTen);
    const Comparison ofSmall = compare(small, 5);
    print(small, ofSmall);
    const Library large = makeLibrary(folder, 1'000'000, sample::BulkFiles::nineOfTen);
    const Comparison ofLarge = compare(large, 3);
    print(large, ofLarge);
    const double growth = ofLarge.search.cpuSeconds / ofSmall.search.cpuSeconds;
    std::printf("growth of the search %.2f (%.1f) %s\n", growth, aimedGrowth,
                growth <= aimedGrowth ? "reached" : "missed");
    QDir whole(folder.absoluteFilePath(QStringLiteral("whole")));
    whole.mkpath(QStringLiteral("."));
    compareProgram(makeLibrary(whole, 100'000, sample::BulkFiles::all), 7);
    return 0;
}

/// CPU seconds of the child processes that have ended.
double cpuSecondsOfChildren() {
    rusage usage{};
    getrusage(RUSAGE_CHILDREN, &usage);
    const auto seconds = [](const timeval& time) {
        return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_usec) * 1e-6;
    };
    return seconds(usage.ru_utime) + seconds(usage.ru_stime);
}

/// "songsweep find" over the library, from its start to its end.
Measurement measureProgram(const std::string& file) {
    Measurement measurement;
    QProcess process;
    process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    process.setStandardOutputFile(QProcess::nullDevice());
    process.start(QStringLiteral(SONGSWEEP_PROGRAM),
                  {QStringLiteral("find"), QStringLiteral("--library"), QString::fromStdString(file)});
    if (!process.waitForFinished(-1) || process.exitCode() != 0)
        fail("the program did not search: " + process.errorString().toStdString());
    measurement.cpuSeconds = cpuSecondsOfChildren();
    return measurement;
}

Measurement measureHere(const QString& what, const std::string& file, int tracks) {
    if (what == QStringLiteral("bare")) return measureBareLoop(file);
    if (what == QStringLiteral("program")) return measureProgram(file);
    return measureSearch(file, tracks);
}

/// What measureInProcess() runs: one measurement, as a line of numbers.
int measure(const QString& what, const std::string& file, int tracks) {
    try {
        const Measurement measurement = measureHere(what, file, tracks);
        std::printf("%.6f %.0f %.0f %d\n", measurement.cpuSeconds, measurement.peakBytes,
                    measurement.leftBytes, measurement.rows);
        return 0;
    } catch (const std::exception& exception) {
        fail(exception.what());
    }
}

} // namespace
} // namespace songsweep::bench

int main(int argumentCount, char** arguments) {
    using namespace songsweep::bench;
    songsweep::returnLargeBlocksAtOnce();
    const QCoreApplication application(argumentCount, arguments);
    const QStringList given = QCoreApplication::arguments();
    if (given.size() == 4) return measure(given[1], given[2].toStdString(), given[3].toInt());
    if (given.size() == 2) {
        QDir().mkpath(given[1]);
        return run(QDir(given[1]));
    }
    const QTemporaryDir folder;
    return run(QDir(folder.path()));
}
