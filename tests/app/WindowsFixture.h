// SPDX-License-Identifier: MIT
#pragma once

#include "app/AppController.h"
#include "app/Program.h"
#include "app/WindowActions.h"
#include "app/Windows.h"
#include "support/RecordingLog.h"
#include "support/TemporaryFolder.h"

#include <QAbstractButton>

#include <gtest/gtest.h>

#include <memory>
#include <string>

class QMessageBox;

namespace songsweep::test {

/// The whole program with its windows, over a library with duplicates that every test gets fresh.
class WindowsFixture : public ::testing::Test {
  protected:
    WindowsFixture(); ///< over the sample library
    explicit WindowsFixture(const std::string& libraryText);
    ~WindowsFixture() override;

    MainWindow& window() { return windows.mainWindow(); }
    std::vector<TrackRecord*> rows() const { return controller->tableDataSource().rows; }

    /// Opens another library, and waits until it is read.
    void openLibrary(const std::string& path);
    /// Opens the parameters dialog by the toolbar and presses its Search button.
    void startSearch();
    /// The same, and waits for the results.
    void search();
    void select(int first, int last);
    bool isChecked(int row) const { return rows().at(static_cast<std::size_t>(row))->checkbox; }
    int checkedRows() const;

    QAbstractButton& button(const char* name);
    void press(const char* name) { button(name).click(); }
    QString label(const char* name);
    QString page();
    /// The alert that is open, null where none is.
    QMessageBox* alert();
    /// Clicks into a cell.
    void click(int row, Column column);
    void clickTitle(Column column);

    TemporaryFolder folder;
    std::string library;
    RecordingLog log;
    std::unique_ptr<Program> program;
    Windows windows{log};
    std::unique_ptr<AppController> controller;
    std::unique_ptr<WindowActions> actions;

  private:
    template <typename Widget>
    Widget* find(const char* name);
};

} // namespace songsweep::test
