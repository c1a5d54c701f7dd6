// SPDX-License-Identifier: MIT
#pragma once

#include "restore/CleanupSearch.h"
#include "restore/RestoreProc.h"

#include <QDialog>

#include <memory>
#include <string>
#include <vector>

class QPushButton;

namespace songsweep {

namespace Ui {
class RestoreDialog;
}

/// The sheet in which a user chooses a deletion and undoes it.
///
/// What can come back and what cannot stands below the list before anything is done, and what came back in
/// the same place afterwards; while neither is known, nothing can be restored. The room for the lines and the
/// bar is reserved. Escape and closing it are Cancel, which stops a restore that runs and closes the sheet
/// otherwise. Main thread.
class RestoreDialog : public QDialog {
    Q_OBJECT

  public:
    explicit RestoreDialog(QWidget* parent = nullptr);
    ~RestoreDialog() override;

    /// Nothing is known yet.
    void setUnknown();
    void setListing(const CleanupListing& listing, int chosen);
    void setForeseeing();
    void setForeseen(const RestoreAnswer& answer);
    void setRestoring();
    void setProgress(int percent);
    void setRestored(const RestoreAnswer& answer);

    LostFiles lostFiles() const;

    /// Cancel, unless the sheet is hidden by `hide`.
    void reject() override;

  Q_SIGNALS:
    /// Another clean-up, or what comes of tracks whose files are lost.
    void chosen(int index, songsweep::LostFiles lostFiles);
    void restoreRequested();
    void cancelRequested();
    /// What became of each track, to be shown as a list.
    void detailsRequested(const std::vector<std::string>& lines);

  private:
    void setUpList();
    void setUpButtons();
    void choose();
    void showLines(const std::vector<std::string>& lines);
    void showAnswer(const RestoreAnswer& answer, const std::vector<std::string>& lines);

    std::unique_ptr<Ui::RestoreDialog> m_ui;
    QPushButton* m_cancelButton = nullptr;
    QPushButton* m_restoreButton = nullptr;
    QPushButton* m_detailsButton = nullptr;
    std::vector<std::string> m_details;
};

} // namespace songsweep
