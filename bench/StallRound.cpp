// SPDX-License-Identifier: MIT
#include "StallRound.h"

#include "delete/ConfirmationTexts.h"
#include "ui/SWTableView.h"
#include "ui/TrackTableModel.h"

#include <QAction>
#include <QActionGroup>
#include <QApplication>
#include <QCheckBox>
#include <QElapsedTimer>
#include <QLabel>
#include <QLineEdit>

#include <unistd.h>

#include <cstdio>
#include <ctime>
#include <fstream>
#include <optional>
#include <utility>

namespace songsweep::bench {

namespace {

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

void runFor(int milliseconds) {
    QElapsedTimer timer;
    timer.start();
    while (timer.elapsed() < milliseconds)
        QApplication::processEvents(QEventLoop::WaitForMoreEvents);
}

/// Until the condition holds and what it led to is on the screen.
void runUntil(const std::function<bool()>& holds) {
    while (!holds())
        QApplication::processEvents(QEventLoop::WaitForMoreEvents);
    constexpr int frames = 60;
    runFor(frames);
}

template <typename Object>
Object* find(QObject& of, const char* name) {
    return of.findChild<Object*>(QString::fromLatin1(name));
}

} // namespace

StallRound::StallRound(const std::string& library, std::string other, Log& log)
    : m_program({.library = library, .map = {}, .version = "1.0"}, log)
    , m_windows(log)
    , m_controller(std::make_unique<AppController>(m_program.controllerServices(), m_windows.views()))
    , m_actions(std::make_unique<WindowActions>(
          m_windows, *m_controller, [this](const std::string& path) { return m_program.openLibrary(path); },
          log, std::string()))
    , m_other(std::move(other)) {}

void StallRound::run() {
    start();
    measureSearch("search by artist");
    sort();
    mark();
    lookAtCopies();
    filter();
    remove();
    openOther();
    close();
}

void StallRound::measure(const char* what, const Action& act, const Condition& holds) {
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

void StallRound::start() {
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
    m_windows.paramWindow().close();
}

/// By artist alone, so that nearly all tracks are rows.
void StallRound::measureSearch(const char* what) {
    measure(
        what, [this] { m_controller->paramOkButtonClick({.issameartist = true, .playlist = "Library"}); },
        [this] { return m_controller->isIdle() && !m_controller->isSearching(); });
}

void StallRound::sort() {
    measure("sort by name", [this] { m_controller->didClickTableColumn(Column::name); });
    measure("sort by bit rate", [this] { m_controller->didClickTableColumn(Column::bitrate); });
    window().tableview().selectAll();
    measure("sort by size, all rows selected",
            [this] { m_controller->didClickTableColumn(Column::sizestring); });
}

void StallRound::mark() {
    measure("space over all rows", [this] { m_controller->tableviewSpacebar(); });
    measure("undo", [this] { m_controller->undoMarks(); });
    measure("the mark dialog opens", [this] { m_controller->markButtonClick(); });
    measure("mark by rule",
            [this] { m_controller->markOkButtonClick({.markType = MarkType::highestBitrate, .text = {}}); });
    m_windows.markWindow().close();
    measure("mark one row", [this] { m_controller->setObjectValue(true, Column::checkbox, 5); });
}

void StallRound::lookAtCopies() {
    SWTableView& table = window().tableview();
    auto* item = find<QAction>(window(), "detailsMenuitem");
    measure("details of the last song", [&] {
        table.selectRow(window().tableModel().rowCount() - 1);
        item->trigger();
    });
    measure("details of one in the middle", [&] { table.selectRow(window().tableModel().rowCount() / 2); });
    item->trigger();
}

void StallRound::filter() {
    auto* field = find<QLineEdit>(window(), "filterField");
    // A filter is worked out in slices of the event loop, and nothing tells that it is through.
    const auto settle = [] {
        constexpr int enough = 2000;
        runFor(enough);
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

void StallRound::remove() {
    DeleteSheet& sheet = m_windows.deleteConfirmation();
    auto* files = find<QCheckBox>(sheet, "delConfFileCK");
    auto* line = find<QLabel>(sheet, "delConfTrashLabel");
    files->setChecked(true);
    measure(
        "Delete, until the files were seen", [this] { m_controller->deleteButtonClick(); },
        [=] { return line->text() != confirmationTexts::filesPendingLine(); });
    measure(
        "deletion of the marked", [this] { m_controller->delConfOkButtonClick(false); },
        [this] { return m_controller->isIdle() && m_controller->mayOpenLibrary(); });
}

/// Another library of as many tracks, which is searched, so that the window closes over as many rows.
void StallRound::openOther() {
    measure(
        "open another library", [this] { m_actions->open(m_other); },
        [this] { return m_controller->mayOpenLibrary(); });
    measureSearch("search in that");
    measure(
        "open it anew, over all its rows", [this] { m_actions->open(m_other); },
        [this] { return m_controller->mayOpenLibrary(); });
    measureSearch("search once more");
}

void StallRound::close() {
    QElapsedTimer timer;
    timer.start();
    m_controller->applicationShouldTerminate();
    window().hide();
    QApplication::processEvents();
    Stalls stalls;
    stalls.add(static_cast<double>(timer.nsecsElapsed()) / 1e6);
    tell("close, until it is hidden", stalls.longest, stalls);
}

} // namespace songsweep::bench
