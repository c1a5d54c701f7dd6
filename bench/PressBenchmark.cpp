// SPDX-License-Identifier: MIT
//
// How long the window stands still when Delete is pressed over a million tracks, beside a bare pass over the
// rows; and how long it stands still at most while the files are looked at. Nine files of ten exist.
//
//   press-benchmark [FOLDER]       the library is made in FOLDER (about 1.5 GB), or in a temporary one
#include "app/AppController.h"
#include "app/Program.h"
#include "app/views/ApplicationView.h"
#include "app/views/ControllerViews.h"
#include "app/views/DeleteView.h"
#include "app/views/LibraryView.h"
#include "app/views/MarkView.h"
#include "app/views/NoticeView.h"
#include "app/views/ProgressView.h"
#include "app/views/RestoreView.h"
#include "app/views/ResultsView.h"
#include "app/views/SearchView.h"
#include "dupes/MarkingRules.h"
#include "platform/Log.h"
#include "sample-library/BulkLibrary.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QEventLoop>
#include <QTemporaryDir>
#include <QTimer>

#include <algorithm>
#include <cstdio>

namespace songsweep::bench {
namespace {

constexpr int tracks = 1'000'000;

double milliseconds(const QElapsedTimer& timer) { return static_cast<double>(timer.nsecsElapsed()) / 1e6; }

/// Waits for the answer of a look at the files.
class WaitingView final : public DeleteView {
  public:
    void wait() { m_loop.exec(); }
    void updateDeleteConfirmation(const DeleteConfirmationFacts&) override { m_loop.quit(); }

  private:
    QEventLoop m_loop;
};

/// Views that show nothing, but for the one that waits.
struct Views {
    WaitingView waiting;
    ApplicationView application;
    LibraryView library;
    SearchView search;
    ResultsView results;
    MarkView mark;
    RestoreView restore;
    NoticeView notice;
    ProgressView progress;

    ControllerViews all() {
        return {application, library, search, results, mark, waiting, restore, notice, progress, progress};
    }
};

void waitUntilIdle(AppController& controller) {
    QEventLoop loop;
    controller.setIdleHandler([&] { loop.quit(); });
    loop.exec();
}

double passOverRows(const AppController& controller) {
    QElapsedTimer timer;
    timer.start();
    const int count = controller.getCheckedCount();
    const double passed = milliseconds(timer);
    std::printf("%d of %zu rows are marked\n", count, controller.tableDataSource().rows.size());
    return passed;
}

/// The longest time for which no event was handled until the survey has answered.
double longestStandstill(WaitingView& view) {
    double longest = 0;
    QElapsedTimer since;
    since.start();
    QTimer tick;
    QObject::connect(&tick, &QTimer::timeout, &tick, [&] {
        longest = std::max(longest, milliseconds(since));
        since.start();
    });
    tick.start(0);
    view.wait();
    return std::max(longest, milliseconds(since));
}

int measure(const std::string& folder) {
    const std::string file = folder + "/library.xml";
    const auto made =
        sample::makeBulkLibrary({.tracks = tracks, .file = file, .musicFolder = folder + "/Music"});
    if (!made) return std::fprintf(stderr, "press-benchmark: %s\n", made.error().message.c_str()), 1;
    SilentLog log;
    Program program({.library = file, .map = {}, .version = "1.0"}, log);
    Views views;
    AppController controller(program.controllerServices(), views.all());
    controller.awakeFromNib();
    controller.paramOkButtonClick({.issamename = true, .issameartist = true, .playlist = "Library"});
    waitUntilIdle(controller);
    controller.markOkButtonClick({.markType = MarkType::highestBitrate, .text = {}});

    const double floor = passOverRows(controller);
    QElapsedTimer timer;
    timer.start();
    controller.deleteButtonClick();
    const double press = milliseconds(timer);
    timer.start();
    const double standstill = longestStandstill(views.waiting);
    std::printf("press of Delete       %8.1f ms, a bare pass over the rows %.1f ms: ratio %.1f\n", press,
                floor, press / floor);
    std::printf("files looked at after %8.1f ms, the longest standstill meanwhile %.1f ms\n",
                milliseconds(timer), standstill);
    return 0;
}

} // namespace
} // namespace songsweep::bench

int main(int argumentCount, char** arguments) {
    const QCoreApplication application(argumentCount, arguments);
    const QTemporaryDir temporary;
    return songsweep::bench::measure(argumentCount > 1 ? arguments[1] : temporary.path().toStdString());
}
