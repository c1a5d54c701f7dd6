// SPDX-License-Identifier: MIT
#pragma once

#include "app/MainWindow.h"
#include "support/RecordingLog.h"
#include "support/SampleRows.h"
#include "support/Widgets.h"

#include <QAction>
#include <QApplication>
#include <QStackedWidget>

#include <gtest/gtest.h>

namespace songsweep::test {

/// The main window by itself, shown and active, with some results to show.
class MainWindowFixture : public ::testing::Test {
  protected:
    MainWindowFixture() {
        window.resize(1100, 680);
        window.show();
        QApplication::setActiveWindow(&window);
    }

    template <typename Widget>
    Widget& control(const char* name) {
        return child<Widget>(window, name);
    }
    QAction& item(const char* name) { return control<QAction>(name); }
    QString page() { return control<QStackedWidget>("contentStack").currentWidget()->objectName(); }
    QString focus() { return window.focusWidget() ? window.focusWidget()->objectName() : QString(); }

    void showSearching() {
        window.setTableVisible(false);
        window.setPerformLabelVisible(false);
        window.setStatusText("");
        window.beginProgress();
    }
    void showResults(const DisplayedList& shown) {
        window.endProgress();
        window.setTableVisible(true);
        window.reloadTable(shown);
        window.setStatusVisible(!shown.rows.empty());
        window.setMarkEnabled(!shown.rows.empty());
        window.setStatusText("12 songs");
        window.setPerformLabelVisible(false);
        window.setSearchedText("Music: same name");
    }

    RecordingLog log;
    MainWindow window{log};
    DisplayedList list = sampleRows();
};

} // namespace songsweep::test
