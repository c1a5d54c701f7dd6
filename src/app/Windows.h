// SPDX-License-Identifier: MIT
#pragma once

#include "app/AboutDialog.h"
#include "app/DeleteSheet.h"
#include "app/MainWindow.h"
#include "app/MarkWindow.h"
#include "app/ParametersDialog.h"
#include "app/ProgressSheet.h"
#include "app/RestoreSheet.h"
#include "app/views/ApplicationView.h"
#include "app/views/ControllerViews.h"

#include <functional>
#include <string>
#include <vector>

class QMessageBox;

namespace songsweep {

struct MapGuess;

/// Owns all windows, each a view of its own, and opens the alerts over them.
///
/// Alerts, sheets and dialogs are opened and never executed. What users do in the windows is no matter of
/// this class, see WindowActions. Main thread.
class Windows final : public ApplicationView {
  public:
    explicit Windows(Log& log);
    ~Windows() override;

    ControllerViews views();

    MainWindow& mainWindow() { return m_mainWindow; }
    ParametersDialog& paramWindow() { return m_paramWindow; }
    MarkWindow& markWindow() { return m_markWindow; }
    DeleteSheet& deleteConfirmation() { return m_deleteConfirmation; }
    RestoreSheet& restoreSheet() { return m_restoreSheet; }
    ProgressSheet& progressWindow() { return m_progressWindow; }
    AboutDialog& aboutWindow() { return m_aboutWindow; }

    /// Receives the return code of the alert that iTunes does not answer.
    void setCantAccessHandler(std::function<void(int)> handler) { m_cantAccessEnded = std::move(handler); }

    /// Asks whether another library may be opened though that many marks are lost; `proceed` is the answer
    /// yes.
    void askBeforeMarksAreLost(int marks, std::function<void()> proceed);
    /// Shows where files would be found, and asks whether to look there; `proceed` is the answer yes.
    void askToSearchWithMap(const MapGuess& guess, std::function<void()> proceed);
    void alertCantExport(const std::string& reason);
    void alertNoFilesIn(const std::string& folder);
    /// A list of lines over the front window.
    void showDetails(const QString& title, const std::vector<std::string>& lines);
    /// That the library file was not written. Gives the alert, which goes away when answered.
    QMessageBox* alertCantWrite(const std::string& reason);

    // ApplicationView
    void showMainWindow() override;
    void showAboutWindow() override;
    void setAboutLabel(const std::string& text) override;
    void beep() override;
    void alertCantOpen(const std::string& reason) override;
    void alertCantAccess(const std::string& message, const std::string& reason) override;
    void alertNoDuplicates(const std::vector<std::string>& notes) override;
    void alertCantBeginDelete(const std::string& reason) override;
    void alertCantGoOnDeleting(const std::string& reason) override;

  private:
    MainWindow m_mainWindow;
    ParametersDialog m_paramWindow;
    MarkWindow m_markWindow;
    DeleteSheet m_deleteConfirmation;
    RestoreSheet m_restoreSheet;
    ProgressSheet m_progressWindow;
    AboutDialog m_aboutWindow;
    std::function<void(int)> m_cantAccessEnded;
};

} // namespace songsweep
