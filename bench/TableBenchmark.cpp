// SPDX-License-Identifier: MIT
// What the results table costs with a million rows, against the limits that a user would feel. Prints one
// line for each measurement and the limit it is held against; the median of several rounds.
#include "app/AppController.h"
#include "app/Program.h"
#include "app/WindowActions.h"
#include "app/Windows.h"
#include "library/WorkerEvent.h"
#include "platform/Log.h"
#include "support/SampleRows.h"
#include "theme/SongsweepStyle.h"
#include "ui/SWTableView.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QImage>
#include <QScrollBar>

#include <algorithm>
#include <cstdio>
#include <functional>
#include <vector>

using namespace songsweep;

namespace {

constexpr int groups = 333'333;
constexpr int copies = 3;
constexpr int rounds = 5;

double milliseconds(const std::function<void()>& work) {
    QElapsedTimer timer;
    timer.start();
    work();
    return static_cast<double>(timer.nsecsElapsed()) / 1e6;
}

double median(std::vector<double> values) {
    std::nth_element(values.begin(), values.begin() + static_cast<std::ptrdiff_t>(values.size() / 2),
                     values.end());
    return values[values.size() / 2];
}

void print(const char* what, double time, double limit) {
    std::printf("%-52s %9.2f ms   limit %6.0f ms   %s\n", what, time, limit, time <= limit ? "ok" : "MISSED");
}

/// The main window over its controller, as users have it, with everything a frame needs painted at once.
class Table {
  public:
    Table() {
        windows.mainWindow().resize(1280, 760);
        controller.awakeFromNib();
        windows.showMainWindow();
        QApplication::processEvents();
    }

    SWTableView& view() { return windows.mainWindow().tableview(); }

    void paint() {
        QApplication::processEvents();
        view().viewport()->grab();
    }

    /// Puts the rows where the grouping puts them; nothing shows them yet.
    void fill() {
        controller.resetForLibrary();
        for (TrackRecord* record : m_list.rows)
            controller.notificationCenter().post({EventName::step2, record, nullptr});
    }

    void showResults() { controller.notificationCenter().post({EventName::buildFinish, {}, nullptr}); }

  private:
    SilentLog m_log;
    DisplayedList m_list = test::manyRows(groups, copies);
    Program m_program{{.library = {}, .map = {}, .version = "1.0"}, m_log};

  public:
    Windows windows{m_log};
    AppController controller{m_program.controllerServices(), windows.views()};

  private:
    WindowActions m_actions{
        windows, controller, [](const std::string&) { return OpenedLibrary(); }, m_log, {}};
};

void measure(const char* what, double limit, const std::function<void()>& prepare,
             const std::function<void()>& work) {
    std::vector<double> times;
    for (int round = 0; round < rounds; ++round) {
        prepare();
        times.push_back(milliseconds(work));
    }
    print(what, median(times), limit);
}

void measureFirstResults(Table& table) {
    measure(
        "first results painted", 100, [&] { table.fill(); },
        [&] {
            table.showResults();
            table.paint();
        });
}

void measureScrolling(Table& table) {
    QScrollBar* bar = table.view().verticalScrollBar();
    constexpr int frames = 200;
    std::vector<double> times;
    for (int frame = 0; frame < frames; ++frame) {
        const int place = static_cast<int>(static_cast<qint64>(bar->maximum()) * frame / frames);
        times.push_back(milliseconds([&] {
            bar->setValue(place);
            table.view().viewport()->repaint();
        }));
    }
    print("a frame while scrolling, everything repainted", median(times), 16);
    print("  the slowest of 200", *std::max_element(times.begin(), times.end()), 16);
}

void measureSort(Table& table, const char* what, Column column) {
    measure(
        what, 1000, [] {},
        [&] {
            table.controller.didClickTableColumn(column);
            table.paint();
        });
}

void measureMarks(Table& table, const char* checking, const char* toggling) {
    constexpr std::int32_t checkAll = 2;
    constexpr std::int32_t uncheckAll = 3;
    const auto press = [&](std::int32_t tag) {
        table.controller.markMenuClick(tag);
        table.paint();
    };
    measure(
        checking, 200, [&] { press(uncheckAll); }, [&] { press(checkAll); });
    table.view().selectAll();
    measure(
        toggling, 200, [] {},
        [&] {
            table.controller.tableviewSpacebar();
            table.paint();
        });
}

void selectHalf(Table& table) {
    std::vector<bool> half(static_cast<std::size_t>(table.view().model()->rowCount()), false);
    std::fill(half.begin(), half.begin() + static_cast<std::ptrdiff_t>(half.size() / 2), true);
    table.view().selectRows(half);
}

} // namespace

int main(int argumentCount, char** arguments) {
    QApplication application(argumentCount, arguments);
    applyTheme(application);
    Table table;
    std::printf("%d rows in groups of %d\n", groups * copies, copies);
    measureFirstResults(table);
    measureScrolling(table);
    measureSort(table, "sorted inside the groups by bit rate", Column::bitrate);
    measureSort(table, "sorted inside the groups by name", Column::name);
    table.view().selectAll();
    measureSort(table, "sorted with all rows selected", Column::bitrate);
    selectHalf(table);
    measureSort(table, "sorted with half of the rows selected", Column::bitrate);
    measureMarks(table, "everything checked", "a selection of all rows toggled");
    table.windows.markWindow().showMarkWindow();
    measureMarks(table, "everything checked, the mark dialog open", "all rows toggled, the mark dialog open");
    return 0;
}
