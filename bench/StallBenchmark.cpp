// SPDX-License-Identifier: MIT
//
// For how long the window stands still over a library of a million tracks, all of them rows of the results:
// while it opens, searches, sorts, marks, filters, deletes, opens another library and closes. The median of
// three rounds, each in a process of its own, since a start is measured, too.
//
//   stall-benchmark [FOLDER [TRACKS]]  the libraries are made in a folder in FOLDER, which goes at the end
//
// It needs a display; the figures of bench/README.md are those of Xvfb with a window manager.
#include "EventLoopWatch.h"
#include "StallRound.h"
#include "platform/BufferedLog.h"
#include "platform/LogFile.h"
#include "sample-library/BulkLibrary.h"
#include "theme/SongsweepStyle.h"

#include <QApplication>
#include <QDir>
#include <QProcess>
#include <QTemporaryDir>

#include <algorithm>
#include <cstdio>
#include <map>
#include <string>
#include <string_view>
#include <vector>

namespace songsweep::bench {
namespace {

constexpr int defaultTracks = 1'000'000;
constexpr int rounds = 3;
constexpr double firstPaintLimit = 300;
constexpr double stallLimit = 100;

/// In it each round finds its library, and the other one that it opens.
std::string libraryIn(const std::string& folder) { return folder + "/library.xml"; }
std::string otherIn(const std::string& folder) { return folder + "/other.xml"; }

int runRound(int argumentCount, char** arguments) {
    QApplication application(argumentCount, arguments);
    applyTheme(application);
    const std::string folder = arguments[2];
    const auto file = openLogFile(folder + "/log");
    if (!file) return std::fprintf(stderr, "%s\n", file.error().message.c_str()), 1;
    constexpr std::uint64_t mostLogBytes = 20'000'000;
    BufferedLog log(*file.value(), mostLogBytes);
    log.begin();
    StallRound(libraryIn(folder), otherIn(folder), log).run();
    return 0;
}

/// The measurements of all rounds, by their names in their order.
class Table {
  public:
    void take(const QByteArray& output) {
        for (const QByteArray& line : output.trimmed().split('\n')) {
            const QList<QByteArray> fields = line.split('\t');
            const std::string what = fields.front().toStdString();
            if (!m_rows.contains(what)) m_order.push_back(what);
            std::vector<double> values;
            for (const QByteArray& field : fields.mid(1))
                values.push_back(field.toDouble());
            m_rows[what].push_back(std::move(values));
        }
    }

    void print() const {
        std::printf("%-34s %9s %14s %8s %8s\n", "median of the rounds, ms", "took", "longest stall", "> 16",
                    "> 100");
        for (const std::string& what : m_order) {
            const auto of = [&](std::size_t field) { return median(m_rows.at(what), field); };
            const bool isOk = what == firstPaint ? of(0) <= firstPaintLimit : of(1) <= stallLimit;
            std::printf("%-34s %9.0f %14.1f %8.0f %8.0f   %s\n", what.c_str(), of(0), of(1), of(2), of(3),
                        isOk ? "ok" : "MISSED");
        }
    }

  private:
    static double median(const std::vector<std::vector<double>>& rows, std::size_t field) {
        std::vector<double> values;
        for (const std::vector<double>& row : rows)
            values.push_back(row.at(field));
        std::sort(values.begin(), values.end());
        return values[values.size() / 2];
    }

    std::vector<std::string> m_order;
    std::map<std::string, std::vector<std::vector<double>>> m_rows;
};

Result<void> makeLibrary(const std::string& file, const std::string& folder, int tracks) {
    return sample::makeBulkLibrary({.tracks = tracks, .file = file, .musicFolder = folder + "/Music"});
}

/// Deletions keep the library as it was, and put files into the Trash.
void removeTraces(const QString& folder) {
    QDir(folder).removeRecursively();
    QDir().mkpath(folder);
}

bool runInProcess(const char* program, const std::string& folder, Table& table) {
    QProcess process;
    process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    process.start(QString::fromLocal8Bit(program),
                  {QStringLiteral("--round"), QString::fromStdString(folder)});
    process.waitForFinished(-1);
    if (process.exitStatus() != QProcess::NormalExit || process.exitCode() != 0) return false;
    table.take(process.readAllStandardOutput());
    return true;
}

int runRounds(const char* program, const QString& folder, int tracks) {
    const std::string path = folder.toStdString();
    Table table;
    for (int round = 0; round < rounds; ++round) {
        // Each deletes tracks, so that each has a library of its own.
        removeTraces(folder);
        qputenv("XDG_DATA_HOME", (folder + QStringLiteral("/data")).toLocal8Bit());
        for (const std::string& file : {libraryIn(path), otherIn(path)})
            if (const auto made = makeLibrary(file, path, tracks); !made)
                return std::fprintf(stderr, "%s\n", made.error().message.c_str()), 1;
        if (!runInProcess(program, path, table)) return 1;
    }
    table.print();
    return 0;
}

} // namespace
} // namespace songsweep::bench

int main(int argumentCount, char** arguments) {
    using namespace songsweep::bench;
    if (argumentCount == 3 && std::string_view(arguments[1]) == "--round")
        return runRound(argumentCount, arguments);
    const QCoreApplication application(argumentCount, arguments);
    const QString parent = argumentCount > 1 ? QString::fromLocal8Bit(arguments[1]) : QDir::tempPath();
    const QTemporaryDir folder(parent + QStringLiteral("/stall-XXXXXX"));
    return runRounds(arguments[0], folder.path(),
                     argumentCount > 2 ? std::stoi(arguments[2]) : defaultTracks);
}
