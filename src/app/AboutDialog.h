// SPDX-License-Identifier: MIT
#pragma once

#include <QDialog>

#include <memory>
#include <string>

namespace songsweep {

namespace Ui {
class AboutDialog;
}

/// The About box: name, version and three links, which it asks to be opened. Return and Escape close it.
/// Main thread.
class AboutDialog : public QDialog {
    Q_OBJECT

  public:
    explicit AboutDialog(QWidget* parent = nullptr);
    ~AboutDialog() override;

    /// "Songsweep 1.0"
    void setLabel(const std::string& nameAndVersion);

  Q_SIGNALS:
    void websiteRequested();
    void helpRequested();
    void contactRequested();

  protected:
    void showEvent(QShowEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

  private:
    std::unique_ptr<Ui::AboutDialog> m_ui;
};

} // namespace songsweep
