// SPDX-License-Identifier: MIT
#pragma once

#include <QDialog>

#include <memory>
#include <string>

namespace songsweep {

namespace Ui {
class ProgressSheet;
}

/// The sheet over the main window while tracks are deleted. Its button, Escape and closing it are all Cancel,
/// told by `rejected`. Main thread.
class ProgressSheet : public QDialog {
    Q_OBJECT

  public:
    explicit ProgressSheet(QWidget* parent = nullptr);
    ~ProgressSheet() override;

    void setTitle(const std::string& title);
    /// A percentage; what is no number shows as 0, what lies outside 0 to 100 as the nearer end.
    void setValue(double percent);

  protected:
    void showEvent(QShowEvent* event) override;

  private:
    std::unique_ptr<Ui::ProgressSheet> m_ui;
};

} // namespace songsweep
