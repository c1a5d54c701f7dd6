// SPDX-License-Identifier: MIT
#pragma once

#include <QDialog>
#include <QStringList>
#include <QTimer>

#include <string>
#include <vector>

class QPlainTextEdit;

namespace songsweep {

/// A plain list of lines that can be read, selected and copied: what became of each track. Goes away when
/// closed. Main thread.
class DetailsDialog : public QDialog {
    Q_OBJECT

  public:
    DetailsDialog(const QString& title, const std::vector<std::string>& lines, QWidget* parent);

    /// All lines, as they are copied.
    QString text() const;

  private:
    void setUpButtons();
    void showMore();

    QPlainTextEdit* m_list;
    QStringList m_lines;
    qsizetype m_shown = 0; ///< of the lines
    QTimer m_slices;
};

} // namespace songsweep
