// SPDX-License-Identifier: MIT
//
// For how long the window stands still over a library of a million tracks, all of them rows of the results:
// while it opens, searches, sorts, marks, filters, deletes, opens another library and closes. The median of
// three rounds, each in a process of its own, since a start is measured, too.
//
//   stall-benchmark [FOLDER [TRACKS]]  the library is made in FOLDER, or in a temporary one
//
// It needs a display; the figures of bench/README.md are those of Xvfb with a window manager.
#include "EventLoopWatch.h"
#include "app/AppController.h"
#include "app/Program.h"
#include "app/WindowActions.h"
#include "app/Windows.h"
#include "delete/ConfirmationTexts.h"
#include "platform/BufferedLog.h"
#include "platform/LogFile.h"
#include "sample-library/BulkLibrary.h"
#include "theme/SongsweepStyle.h"
#include "ui/SWTableView.h"

#include <QActionGroup>
#include <QApplication>
#include <QCheckBox>
#include <QElapsedTimer>
#include <QLabel>
#include <QLineEdit>
#include <QProcess>
#include <QTemporaryDir>

#include <unistd.h>

#include <algorithm>
#include <cstdio>
#include <ctime>
#include <fstream>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace songsweep::bench {
namespace {

constexpr int defaultTracks = 1'000'000;
constexpr int rounds = 3;
constexpr double firstPaintLimit = 300;
constexpr double stallLimit = 100;
constexpr const char* firstPaint = "start to first paint";

std::string libraryIn(const std::string& folder) { return folder + "/library.xml"; }

/// Milliseconds since the process was made, to a hundredth of a second.
double processAge() {
    std::ifstream stat("/proc/self/stat");
    std::string text;
    std::getline(stat, text);
    const std::size_t name = text.rfind(')');
    constexpr int fieldsToStart = 20;
    std::size_t place = name + 1;
    for (int field = 0; field < fieldsToStart - 1; ++field)
        place = text.find(' ', place + 1);
    const double started = std::stod(text.substr(place)) / static_cast<double>(sysconf(_SC_CLK_TCK));
    timespec now{};
    clock_gettime(CLOCK_BOOTTIME, &now);
    return (static_cast<double>(now.tv_sec) + static_cast<double>(now.tv_nsec) / 1e9 - started) * 1e3;
}

/// One measurement of a round, as a line that the process of all rounds reads.
void tell(const char* what, double took, const Stalls& stalls) {
    std::printf("%s\t%f\t%f\t%d\t%d\n", what, took, stalls.longest, stalls.over16, stalls.over100);
    std::fflush(stdout);
}

/// Says when the window was painted first.
class FirstPaint final : public QObject {
  public:
    bool eventFilter(QObject* object, QEvent* event) override {
        const bool paint = event->type() == QEvent::Paint && !m_age;
        object->removeEventFilter(paint ? this : nullptr);
        if (paint)
            QMetaObject::invokeMethod(
                this, [this] { m_age = processAge(); }, Qt::QueuedConnection);
        return false;
    }
    const std::optional<double>& age() const { return m_age; }

  private:
    std::optional<double> m_age;
};

/// The program with its windows, as it is started.
class Round {
  public:
    Round(const std::string& library, Log& log)
        : m_program({.library = library, .map = {}, .version = "1.0"}, log)
        , m_windows(log)
        , m_controller(std::make_unique<AppController>(m_program.controllerServices(), m_windows.views()))
        , m_actions(std::make_unique<WindowActions>(
              m_windows, *m_controller,
              [this](const std::string& path) { return m_program.openLibrary(path); }, log, std::string()))
        , m_library(library) {}

    void run() {
        start();
        search();
        sort();
        mark();
        filter();
        remove();
        openAgain();
        close();
    }

  private:
    using Condition = std::function<bool()>;

    MainWindow& window() { return m_windows.mainWindow(); }
    template <typename Widget>
    Widget* find(QWidget& of, const char* name) {
        return of.findChild<Widget*>(QString::fromLatin1(name));
    }

    /// Until the condition holds and what it led to is on the screen.
    static void runUntil(const Condition& holds) {
        while (!holds())
            QApplication::processEvents(QEventLoop::WaitForMoreEvents);
        constexpr int frames = 60;
        QElapsedTimer settled;
        settled.start();
        while (settled.elapsed() < frames)
            QApplication::processEvents(QEventLoop::WaitForMoreEvents);
    }

    void measure(
        const char* what, const std::function<void()>& act, const Condition& holds = [] { return true; }) {
        QElapsedTimer timer;
        m_watch.begin();
        timer.start();
        QTimer::singleShot(0, act);
        bool begun = false;
        QTimer::singleShot(0, [&] { begun = true; });
        runUntil([&] { return begun && holds(); });
        const Stalls stalls = m_watch.end();
        tell(what, static_cast<double>(timer.nsecsElapsed()) / 1e6, stalls);
    }

    void start() {
        FirstPaint paint;
        window().installEventFilter(&paint);
        m_controller->awakeFromNib();
        window().openAtFirstSize();
        m_windows.showMainWindow();
        m_controller->beginLibrary(CurrentLibrary::Telling::page);
        m_controller->lookForInterruption();
        m_watch.begin();
        runUntil([&] { return paint.age().has_value(); });
        tell(firstPaint, *paint.age(), m_watch.end());
        measure(
            "the first Search dialog", [this] { m_controller->startButtonClick(); },
            [this] { return m_windows.paramWindow().isVisible(); });
        measure(
            "the library read", [] {}, [this] { return m_controller->mayOpenLibrary(); });
    }

    void search() {
        measure(
            "search by artist",
            [this] {
                m_windows.paramWindow().close();
                m_controller->paramOkButtonClick({.issameartist = true, .playlist = "Library"});
            },
            [this] { return m_controller->isIdle() && !m_controller->isSearching(); });
    }

    void sort() {
        measure("sort by name", [this] { m_controller->didClickTableColumn(Column::name); });
        measure("sort by bit rate", [this] { m_controller->didClickTableColumn(Column::bitrate); });
        window().tableview().selectAll();
        measure("sort by size, all rows selected",
                [this] { m_controller->didClickTableColumn(Column::sizestring); });
    }

    void mark() {
        measure("space over all rows", [this] { m_controller->tableviewSpacebar(); });
        measure("undo", [this] { m_controller->undoMarks(); });
        measure("the mark dialog opens", [this] { m_controller->markButtonClick(); });
        measure("mark by rule", [this] {
            m_controller->markOkButtonClick({.markType = MarkType::highestBitrate, .text = {}});
        });
        m_windows.markWindow().close();
        measure("mark one row", [this] { m_controller->setObjectValue(true, Column::checkbox, 5); });
    }

    void filter() {
        auto* field = find<QLineEdit>(window(), "filterField");
        // A filter is worked out in slices of the event loop, and nothing tells that it is through.
        const auto settle = [] {
            constexpr int enough = 2000;
            QElapsedTimer timer;
            timer.start();
            while (timer.elapsed() < enough)
                QApplication::processEvents(QEventLoop::WaitForMoreEvents);
            return true;
        };
        measure(
            "filter by a text", [=] { field->setText(QStringLiteral("song 1")); }, settle);
        measure(
            "no filter", [=] { field->clear(); }, settle);
        const auto* kinds = window().findChild<QActionGroup*>();
        measure(
            "filter: marked", [=] { kinds->actions().at(1)->trigger(); }, settle);
        measure(
            "no filter again", [=] { kinds->actions().first()->trigger(); }, settle);
    }

    void remove() {
        DeleteSheet& sheet = m_windows.deleteConfirmation();
        auto* files = find<QCheckBox>(sheet, "delConfFileCK");
        auto* line = find<QLabel>(sheet, "delConfTrashLabel");
        files->setChecked(true);
        measure(
            "Delete, until the files were seen", [this] { m_controller->deleteButtonClick(); },
            [=] { return line->text() != confirmationTexts::filesPendingLine(); });
        measure(
            "deletion of the marked", [this] { m_controller->delConfOkButtonClick(false); },
            [this] { return m_controller->isIdle(); });
    }

    void openAgain() {
        measure(
            "open another library", [this] { m_actions->open(m_library); },
            [this] { return m_controller->mayOpenLibrary(); });
    }

    void close() {
        measure(
            "search again",
            [this] { m_controller->paramOkButtonClick({.issameartist = true, .playlist = "Library"}); },
            [this] { return m_controller->isIdle() && !m_controller->isSearching(); });
        QElapsedTimer timer;
        timer.start();
        m_controller->applicationShouldTerminate();
        window().hide();
        QApplication::processEvents();
        Stalls stalls;
        stalls.add(static_cast<double>(timer.nsecsElapsed()) / 1e6);
        tell("close, until it is hidden", stalls.longest, stalls);
    }

    Program m_program;
    Windows m_windows;
    std::unique_ptr<AppController> m_controller;
    std::unique_ptr<WindowActions> m_actions;
    std::string m_library;
    EventLoopWatch m_watch;
};

int runRound(int argumentCount, char** arguments) {
    QApplication application(argumentCount, arguments);
    applyTheme(application);
    const std::string folder = arguments[2];
    const auto file = openLogFile(folder + "/log");
    if (!file) return std::fprintf(stderr, "%s\n", file.error().message.c_str()), 1;
    constexpr std::uint64_t mostLogBytes = 20'000'000;
    BufferedLog log(*file.value(), mostLogBytes);
    log.begin();
    Round(libraryIn(folder), log).run();
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

int runRounds(const char* program, const std::string& folder, int tracks) {
    Table table;
    for (int round = 0; round < rounds; ++round) {
        // Each deletes tracks, so that each has a library of its own.
        const auto made = sample::makeBulkLibrary(
            {.tracks = tracks, .file = libraryIn(folder), .musicFolder = folder + "/Music"});
        if (!made) return std::fprintf(stderr, "%s\n", made.error().message.c_str()), 1;
        QProcess process;
        process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
        process.start(QString::fromLocal8Bit(program),
                      {QStringLiteral("--round"), QString::fromStdString(folder)});
        process.waitForFinished(-1);
        if (process.exitStatus() != QProcess::NormalExit || process.exitCode() != 0) return 1;
        table.take(process.readAllStandardOutput());
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
    const QTemporaryDir temporary;
    return runRounds(arguments[0], argumentCount > 1 ? arguments[1] : temporary.path().toStdString(),
                     argumentCount > 2 ? std::stoi(arguments[2]) : defaultTracks);
}
