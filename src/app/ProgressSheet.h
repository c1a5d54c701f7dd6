// SPDX-License-Identifier: MIT
#pragma once

#include "app/views/ProgressView.h"

#include <QDialog>
#include <QTimer>

#include <memory>
#include <string>

namespace songsweep {

namespace Ui {
class ProgressSheet;
}

/// The sheet over the main window while tracks are deleted. Its button, Escape and closing it are all Cancel,
/// told by `rejected`.
///
/// A deletion may take less time than a window server takes to hand the keyboard to a new window. A sheet
/// that were hidden before would get the keyboard afterwards and keep it, since no window takes it from one
/// that nobody sees; so the end waits until the sheet is active, or is not made so. Main thread.
class ProgressSheet : public QDialog, public ProgressView {
    Q_OBJECT

  public:
    explicit ProgressSheet(QWidget* parent = nullptr);
    ~ProgressSheet() override;

    // ProgressView
    void beginProgress() override;
    /// Hides the sheet, later if it is not active yet: `ended` tells when.
    void endProgress() override;
    /// What is no number shows as 0, what lies outside 0 to 100 as the nearer end.
    void setProgressValue(double percent) override;
    void setProgressCounts(const ProgressCounts& counts) override;
    void setProgressText(const std::string& title) override;

  Q_SIGNALS:
    void ended();

  public Q_SLOTS:
    void reject() override;

  protected:
    void showEvent(QShowEvent* event) override;
    void changeEvent(QEvent* event) override;

  private:
    void putAway();

    std::unique_ptr<Ui::ProgressSheet> m_ui;
    QTimer m_end; ///< runs from an end that was asked for before the sheet was active
};

} // namespace songsweep
