// SPDX-License-Identifier: MIT
#pragma once

#include <QStringList>
#include <QWidget>

#include <vector>

class QHBoxLayout;
class QLabel;
class QToolButton;

namespace songsweep {

/// A calm line over the table that tells what has happened, with flat buttons and a cross that closes it.
///
/// A text that does not fit is cut at its end, with the whole in a tool tip. Knows nothing of what its
/// buttons do. Main thread.
class NoticeBarView : public QWidget {
    Q_OBJECT
  public:
    explicit NoticeBarView(QWidget* parent = nullptr);

    void setMessage(const QString& text, bool isWarning);
    void setActions(const QStringList& labels);
    QString message() const;

  Q_SIGNALS:
    void actionClicked(int index);
    void closed();

  protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void changeEvent(QEvent* event) override;

  private:
    void applyMetrics();
    void elide();

    QHBoxLayout* m_layout;
    QLabel* m_icon;
    QLabel* m_label;
    QToolButton* m_close;
    QString m_text;
    std::vector<QToolButton*> m_buttons;
};

} // namespace songsweep
