// SPDX-License-Identifier: MIT
#pragma once

#include <QStringList>
#include <QWidget>

#include <vector>

class QHBoxLayout;
class QLabel;
class QPushButton;
class QToolButton;
class QVBoxLayout;

namespace songsweep {

/// What stands in the table's place while there are no rows: a picture, a title, a text, a row of buttons of
/// which one leads on, and below it other choices and a hint.
///
/// The empty state and what happened to the last rows are one page with different words. Knows nothing of
/// what its buttons do. Main thread.
class MessagePageView : public QWidget {
    Q_OBJECT
  public:
    struct Words {
        QString title;
        QString text; ///< wraps
        QString promise = {};
        QString hint = {}; ///< small, below everything

        bool operator==(const Words&) const = default;
    };
    struct Button {
        QString label;
        QString spoken = {}; ///< where the label alone says too little

        bool operator==(const Button&) const = default;
    };

    explicit MessagePageView(QWidget* parent = nullptr);

    /// Names the parts for tests and style: "emptyTitle", "emptyText", "emptyPromise", "emptyHint",
    /// "emptyButton0", "emptyChoice0". Once, before anything is shown.
    void nameParts(const QString& prefix);
    void setWords(const Words& words);
    /// In their order, of which the one of that number leads on.
    void setButtons(const std::vector<Button>& buttons, int leading);
    /// Other ways, each a flat button; the tool tips tell more of them.
    void setChoices(const QStringList& names, const QStringList& toolTips);

    /// The button that leads on; another one after `setButtons`.
    QPushButton& leadingButton() const;

  Q_SIGNALS:
    void buttonClicked(int index);
    void choiceClicked(int index);

  private:
    void setUpLayout();
    QPushButton* makeButton(const Button& button, int index);
    void showBelow();
    QString partName(const char* part) const;

    QLabel* m_title;
    QLabel* m_text;
    QLabel* m_promise;
    QHBoxLayout* m_row;
    QWidget* m_below; ///< what stands under the buttons
    QVBoxLayout* m_choices;
    QLabel* m_hint;
    QString m_prefix;
    std::vector<Button> m_shownButtons;
    std::vector<QPushButton*> m_buttons;
    int m_leading = 0;
    std::vector<QToolButton*> m_choiceButtons;
};

} // namespace songsweep
