// SPDX-License-Identifier: MIT
#pragma once

#include <QStringList>
#include <QWidget>

#include <vector>

class QHBoxLayout;
class QLabel;
class QPushButton;

namespace songsweep {

/// What has happened, in the empty state's place: a title, a line, and buttons. Knows nothing of what its
/// buttons do. Main thread.
class NoticePageView : public QWidget {
    Q_OBJECT
  public:
    explicit NoticePageView(QWidget* parent = nullptr);

    void setMessage(const QString& title, const QString& text);
    void setActions(const QStringList& labels);
    /// The button that a new search begins with.
    QPushButton& searchButton() const { return *m_search; }

  Q_SIGNALS:
    void actionClicked(int index);

  private:
    QLabel* m_title;
    QLabel* m_text;
    QHBoxLayout* m_row;
    QPushButton* m_search;
    std::vector<QPushButton*> m_buttons;
};

} // namespace songsweep
