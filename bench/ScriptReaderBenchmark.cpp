// SPDX-License-Identifier: MIT
//
// What reading by scripts costs against the embedded iTunes: a whole playlist in batches, beyond its scripts
// and with them, and one location that is asked for again. CPU time of the reading thread; posting calls the
// observer directly, so that the hand-over to another thread is not in it.
//
//   script-reader-benchmark [FOLDER]       libraries are made in FOLDER (200 MB), or in a temporary one
#include "app/AddProc.h"
#include "hosts/EmbeddedScripting.h"
#include "library/SWXMLParser.h"
#include "library/WorkerEvent.h"
#include "operations/NotificationCenter.h"
#include "platform/Files.h"
#include "platform/Log.h"
#include "platform/Native.h"
#include "platform/Sleeper.h"
#include "sample-library/BulkLibrary.h"

#include <QCoreApplication>
#include <QDir>
#include <QTemporaryDir>

#include <cstdio>
#include <cstdlib>
#include <ctime>

namespace songsweep::bench {
namespace {

constexpr double aimedBeyondScripts = 10;
constexpr double aimedRefresh = 30;

double cpuSecondsOfThread() {
    timespec time{};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
    return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_nsec) * 1e-9;
}

/// Passes texts on and adds up what they cost.
class MeteredScripts final : public AppleScript {
  public:
    explicit MeteredScripts(AppleScript& scripts)
        : m_scripts(scripts) {}

    Result<Descriptor> executeAndReturnError(std::string_view source) override {
        const double start = cpuSecondsOfThread();
        auto result = m_scripts.executeAndReturnError(source);
        seconds += cpuSecondsOfThread() - start;
        if (!result) ++failures;
        return result;
    }

    double seconds = 0;
    int failures = 0;

  private:
    AppleScript& m_scripts;
};

[[noreturn]] void fail(const std::string& message) {
    std::fprintf(stderr, "script-reader-benchmark: %s\n", message.c_str());
    std::exit(1);
}

std::string makeLibrary(const QDir& folder, int tracks) {
    sample::BulkOptions options;
    options.tracks = tracks;
    options.file = folder.absoluteFilePath(QStringLiteral("library-%1.xml").arg(tracks)).toStdString();
    options.musicFolder = folder.absoluteFilePath(QStringLiteral("Music")).toStdString();
    options.files = sample::BulkFiles::none;
    if (const auto made = sample::makeBulkLibrary(options); !made) fail(made.error().message);
    return options.file;
}

/// One library with an iTunes over it, and what readers need besides.
class Bench {
  public:
    explicit Bench(const std::string& library)
        : m_embedded(library, *m_desktop, m_files) {
        m_center.setObserver([](const WorkerEvent&) {});
        if (const auto read = m_embedded.readLibrary(); !read) fail(read.error().message);
    }

    /// Reads playlist 1; seconds in all and in scripts.
    void read(int tracks) {
        const double start = cpuSecondsOfThread();
        AddProc(m_list, {}, 1, services()).main();
        const double seconds = cpuSecondsOfThread() - start;
        if (m_list->records.size() != static_cast<std::size_t>(tracks) || m_scripts.failures > 0)
            fail("the playlist was not read whole");
        const double beyond = (seconds - m_scripts.seconds) / tracks * 1e6;
        std::printf("%9d tracks by batches  %7.2f us a track, %6.2f of them beyond scripts (%.0f) %s\n",
                    tracks, seconds / tracks * 1e6, beyond, aimedBeyondScripts,
                    beyond <= aimedBeyondScripts ? "reached" : "missed");
    }

    /// Asks for the location of every track that was read.
    void refresh() {
        SWXMLParser parser(services());
        const double start = cpuSecondsOfThread();
        for (TrackRecord* const record : m_list->records)
            parser.refreshLocationApplescript(*record);
        const double seconds = cpuSecondsOfThread() - start;
        const double each = seconds / static_cast<double>(m_list->records.size()) * 1e6;
        std::printf("%9zu locations          %7.2f us each (%.0f) %s\n", m_list->records.size(), each,
                    aimedRefresh, each <= aimedRefresh ? "reached" : "missed");
    }

  private:
    ReaderServices services() { return {m_center, m_scripts, m_files, *m_preferences, m_sleeper, m_log}; }

    NotificationCenter<WorkerEvent> m_center;
    Files m_files;
    std::unique_ptr<Desktop> m_desktop = nativeDesktop();
    std::unique_ptr<Preferences> m_preferences = nativePreferences();
    Sleeper m_sleeper;
    SilentLog m_log;
    EmbeddedScripting m_embedded;
    MeteredScripts m_scripts{m_embedded};
    std::shared_ptr<TrackList> m_list = std::make_shared<TrackList>();
};

void run(const QDir& folder) {
    for (const int tracks : {10'000, 100'000}) {
        Bench bench(makeLibrary(folder, tracks));
        bench.read(tracks);
        bench.refresh();
    }
}

} // namespace
} // namespace songsweep::bench

int main(int argumentCount, char** arguments) {
    const QCoreApplication application(argumentCount, arguments);
    const QTemporaryDir temporary;
    const QDir folder(argumentCount > 1 ? QString::fromLocal8Bit(arguments[1]) : temporary.path());
    QDir().mkpath(folder.path());
    songsweep::bench::run(folder);
}
