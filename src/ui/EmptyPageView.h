// SPDX-License-Identifier: MIT
#pragma once

#include <QStringList>
#include <QWidget>

#include <vector>

class QLabel;
class QPushButton;
class QToolButton;
class QVBoxLayout;

namespace songsweep {

/// What stands in the table's place before there are results: what the program does, the library that it will
/// do it with, and the one button that leads on; where there is no library, where it was looked for.
///
/// Knows no library, only its words, so that whoever knows one writes them. Main thread.
class EmptyPageView : public QWidget {
    Q_OBJECT
  public:
    /// Which button leads on.
    enum class Way { search, openLibrary };

    explicit EmptyPageView(QWidget* parent = nullptr);

    /// The title, and the line below it, which wraps.
    void setFacts(const QString& title, const QString& facts);
    /// Small and secondary below the button; nothing leaves its room.
    void setHint(const QString& hint);
    void setWay(Way way);
    /// Other libraries, each a flat button; the tool tips tell their paths.
    void setChoices(const QStringList& names, const QStringList& toolTips);

    /// Presses the button that leads on.
    void goOn();

    QPushButton& searchButton() const { return *m_search; }
    QPushButton& openButton() const { return *m_open; }

  Q_SIGNALS:
    void choiceClicked(int index);

  private:
    void setUpLayout();
    void setUpButtons();
    void showBelow();

    QLabel* m_title;
    QLabel* m_facts;
    QLabel* m_promise;
    QPushButton* m_search;
    QPushButton* m_open;
    QWidget* m_below; ///< what stands under the button
    QVBoxLayout* m_choices;
    QLabel* m_hint;
    std::vector<QToolButton*> m_choiceButtons;
};

} // namespace songsweep
