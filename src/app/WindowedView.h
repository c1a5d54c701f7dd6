// SPDX-License-Identifier: MIT
#pragma once

#include "app/AboutDialog.h"
#include "app/ControllerView.h"
#include "app/MainWindow.h"
#include "app/ParametersDialog.h"
#include "app/ProgressSheet.h"
#include "delete/DeleteConfirmation.h"
#include "dupes/MarkDialog.h"

#include <functional>

class QMessageBox;

namespace songsweep {

/// The controller's view made of windows: it owns them all and hands every call to the one that it is for.
///
/// Alerts, sheets and dialogs are opened and never executed. What users do in the windows is no matter of
/// this class, see WindowActions. Main thread.
class WindowedView final : public ControllerView {
  public:
    explicit WindowedView(Log& log);
    ~WindowedView() override;

    MainWindow& mainWindow() { return m_mainWindow; }
    ParametersDialog& paramWindow() { return m_paramWindow; }
    MarkDialog& markWindow() { return m_markWindow; }
    DeleteConfirmation& deleteConfirmation() { return m_deleteConfirmation; }
    ProgressSheet& progressWindow() { return m_progressWindow; }
    AboutDialog& aboutWindow() { return m_aboutWindow; }

    /// The list that a reload of the table shows; it outlives the view's use.
    void setTableDataSource(const DisplayedList& list) { m_tableDataSource = &list; }
    /// Called after every reload of the table, since marks or rows may be others then.
    void setReloadHandler(std::function<void()> handler) { m_reloaded = std::move(handler); }
    /// Receives the return code of the alert that iTunes does not answer.
    void setCantAccessHandler(std::function<void(int)> handler) { m_cantAccessEnded = std::move(handler); }

    /// Tells that a library cannot be read, and why.
    void alertCantOpen(const std::string& reason);
    /// That the library file was not written. Gives the alert, which goes away when answered.
    QMessageBox* alertCantWrite(const std::string& reason);

    // ControllerView
    void showMainWindow() override;
    void showAboutWindow() override;
    void setAboutLabel(const std::string& text) override;
    void showParamWindow() override;
    void closeParamWindow() override;
    void clearPlaylists() override;
    void addPlaylist(const std::string& name) override;
    void selectPlaylist(int index) override;
    void reloadTable() override;
    void setTableVisible(bool visible) override;
    void setPerformLabelVisible(bool visible) override;
    void setHorizontalScroller(bool shown) override;
    void setSortIndicator(Column column, bool ascending) override;
    void clearSortIndicator() override;
    std::vector<int> selectedRows() const override;
    int selectedRow() const override;
    void beginProgress(ProgressBar bar) override;
    void endProgress(ProgressBar bar) override;
    void setProgressValue(double percent) override;
    void setProgressInfo(const std::string& phase) override;
    void setProgressTitle(const std::string& title) override;
    void setStatusText(const std::string& text) override;
    void setSearchedText(const std::string& text) override;
    void setStatusVisible(bool visible) override;
    void setSearchEnabled(bool enabled) override;
    void setMarkEnabled(bool enabled) override;
    void setDeleteEnabled(bool enabled) override;
    void beep() override;
    void alertCantAccess(const std::string& message, const std::string& reason) override;
    void alertNoDuplicates() override;
    void alertCantBeginDelete(const std::string& reason) override;
    void fillKinds(const std::vector<std::string>& kinds) override;
    void showMarkWindow() override;
    void closeMarkWindow() override;
    void chooseMarkFolder() override;
    void beginDeleteConfirmation(const DeleteConfirmationFacts& facts) override;
    void updateDeleteConfirmation(const DeleteConfirmationFacts& facts) override;
    void endDeleteConfirmation() override;

  private:
    void endDeletion();

    MainWindow m_mainWindow;
    ParametersDialog m_paramWindow;
    MarkDialog m_markWindow;
    DeleteConfirmation m_deleteConfirmation;
    ProgressSheet m_progressWindow;
    AboutDialog m_aboutWindow;
    const DisplayedList* m_tableDataSource = nullptr;
    std::function<void()> m_reloaded;
    std::function<void(int)> m_cantAccessEnded;
};

} // namespace songsweep
