// SPDX-License-Identifier: MIT
#pragma once

#include <QMessageBox>

namespace songsweep {

/// A message box as wide as its text needs, up to the width of the other dialogs, where the text wraps.
/// QMessageBox alone wraps only beyond a width of its own and sets its icon off by a fixed number of pixels.
/// Main thread.
class AlertBox : public QMessageBox {
    Q_OBJECT

  public:
    AlertBox(Icon icon, const QString& text, QWidget* parent);

  protected:
    bool event(QEvent* event) override;
    void showEvent(QShowEvent* event) override;

  private:
    void fit();
    void setWrapped(bool wrapped);
};

} // namespace songsweep
