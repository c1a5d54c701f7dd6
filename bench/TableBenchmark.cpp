// SPDX-License-Identifier: MIT
// What the results table costs with a million rows, against the limits that a user would feel. Prints one
// line for each measurement and the limit it is held against; the median of several rounds.
#include "library/DisplayedList.h"
#include "platform/Log.h"
#include "support/SampleRows.h"
#include "ui/SWTableView.h"
#include "ui/TrackTableModel.h"
#include "ui/theme/SongsweepStyle.h"

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

/// A table as large as the window's, with everything a frame needs painted at once.
class Table {
  public:
    Table() {
        view.setUp(model, m_log);
        view.resize(1280, 640);
        view.show();
        view.setFocus();
        QApplication::processEvents();
    }

    void paint() {
        QApplication::processEvents();
        view.viewport()->grab();
    }

    DisplayedList list = test::manyRows(groups, copies);
    TrackTableModel model;
    SWTableView view;

  private:
    SilentLog m_log;
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
        "first results painted", 100, [&] { table.view.reloadData({}); },
        [&] {
            realignShowID(table.list.rows);
            table.view.reloadData(table.list);
            table.paint();
        });
}

void measureScrolling(Table& table) {
    QScrollBar* bar = table.view.verticalScrollBar();
    constexpr int frames = 200;
    std::vector<double> times;
    for (int frame = 0; frame < frames; ++frame) {
        const int place = static_cast<int>(static_cast<qint64>(bar->maximum()) * frame / frames);
        times.push_back(milliseconds([&] {
            bar->setValue(place);
            table.view.viewport()->repaint();
        }));
    }
    print("a frame while scrolling, everything repainted", median(times), 16);
    print("  the slowest of 200", *std::max_element(times.begin(), times.end()), 16);
}

void measureSort(Table& table, const char* what, Column column) {
    bool ascending = false;
    measure(
        what, 1000, [&] { ascending = !ascending; },
        [&] {
            sortInsideGroups(table.list.rows, column, ascending);
            table.view.reloadData(table.list);
            table.paint();
        });
}

void measureMarks(Table& table) {
    const auto toggleAll = [&](bool value) {
        for (TrackRecord* record : table.list.rows)
            record->checkbox = value;
        table.view.reloadData(table.list);
        table.paint();
    };
    measure(
        "everything checked", 200, [&] { toggleAll(false); }, [&] { toggleAll(true); });
    table.view.selectAll();
    measure(
        "a selection of all rows toggled", 200, [] {},
        [&] {
            const std::vector<int> selected = table.view.selectedRows();
            for (const int row : selected)
                table.list.rows[static_cast<std::size_t>(row)]->checkbox ^= true;
            table.view.reloadData(table.list);
            table.paint();
        });
}

void selectHalf(Table& table) {
    std::vector<bool> half(table.list.rows.size(), false);
    std::fill(half.begin(), half.begin() + static_cast<std::ptrdiff_t>(half.size() / 2), true);
    table.view.selectRows(half);
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
    table.view.selectAll();
    measureSort(table, "sorted with all rows selected", Column::bitrate);
    selectHalf(table);
    measureSort(table, "sorted with half of the rows selected", Column::bitrate);
    measureMarks(table);
    return 0;
}
