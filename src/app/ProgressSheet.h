// SPDX-License-Identifier: MIT
#pragma once

#include "app/views/ProgressView.h"

#include <QDialog>

#include <memory>
#include <string>

namespace songsweep {

namespace Ui {
class ProgressSheet;
}

/// The sheet over the main window while tracks are deleted. Its button, Escape and closing it are all Cancel,
/// told by `rejected`. Main thread.
class ProgressSheet : public QDialog, public ProgressView {
    Q_OBJECT

  public:
    explicit ProgressSheet(QWidget* parent = nullptr);
    ~ProgressSheet() override;

    // ProgressView
    void beginProgress() override;
    void endProgress() override;
    /// What is no number shows as 0, what lies outside 0 to 100 as the nearer end.
    void setProgressValue(double percent) override;
    void setProgressText(const std::string& title) override;

  Q_SIGNALS:
    void ended();

  protected:
    void showEvent(QShowEvent* event) override;

  private:
    std::unique_ptr<Ui::ProgressSheet> m_ui;
};

} // namespace songsweep
