// SPDX-License-Identifier: MIT
#pragma once

#include <QDialog>

#include <memory>

namespace songsweep {

namespace Ui {
class SoundDialog;
}

/// Asks whose sound is to be compared: all songs of the results, or those of which rows are selected.
///
/// It knows neither; it is told how many copies each choice has, so that its user can tell how long that may
/// take. Main thread.
class SoundDialog : public QDialog {
    Q_OBJECT

  public:
    enum class Scope { listed, selected };

    explicit SoundDialog(QWidget* parent = nullptr);
    ~SoundDialog() override;

    /// Opens with the selected songs chosen where there are some.
    void ask(int listedCopies, int selectedCopies);

  Q_SIGNALS:
    void compareRequested(songsweep::SoundDialog::Scope scope);

  private:
    std::unique_ptr<Ui::SoundDialog> m_ui;
};

} // namespace songsweep
