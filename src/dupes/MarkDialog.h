// SPDX-License-Identifier: MIT
#pragma once

#include <QDialog>

#include <memory>
#include <string>
#include <vector>

class QComboBox;
class QRadioButton;

namespace songsweep {

struct MarkChoice; // its header holds more than Qt's meta-object compiler can read

namespace Ui {
class MarkDialog;
}

/// What the present choice would do, for the dialog's live line.
struct MarkPreview {
    int marked = 0;            ///< tracks that the choice marks
    int total = 0;             ///< tracks in the results
    bool inForce = false;      ///< the present marks are already these
    int byHand = 0;            ///< marks made by hand, which the choice replaces
    bool matches = true;       ///< some track is of the kind, or in the folder, that the choice names
    bool byRecordings = false; ///< sounds were compared, so that rules keep a copy of each recording

    bool operator==(const MarkPreview&) const = default;
};

/// The window in which one marking rule is chosen and applied; not modal, and open until it is closed.
///
/// It knows neither tracks nor rules: it gives a MarkChoice and is told what that would do. Its settings stay
/// between openings. Main thread.
class MarkDialog : public QDialog {
    Q_OBJECT

  public:
    explicit MarkDialog(QWidget* parent = nullptr);
    ~MarkDialog() override;

    MarkChoice choice() const;

    /// Selects the first item of every value combo box that has none selected; to be called before each
    /// opening.
    void selectMissingItems();
    /// Appends the kinds that the list does not hold yet, and selects "MP3", or else the first kind. Whoever
    /// opens the dialog calls it once in a run.
    void fillKinds(const std::vector<std::string>& kinds);
    /// Makes `folder` the folder to mark, as text and tool tip, and its rule the chosen one.
    void setFolder(const QString& folder);
    void setPreview(const MarkPreview& preview);
    /// Whether sounds can be compared here at all.
    void setSoundAvailable(bool available);
    /// Opens the chooser of a folder.
    void openFolderChooser();

  Q_SIGNALS:
    /// It comes to the screen now, and wants a preview.
    void opening();
    /// The rule, its value or the except-one switch is another one now.
    void choiceChanged();
    /// "Mark" was pressed; the dialog stays open.
    void markRequested();
    /// "Choose..." was pressed.
    void folderRequested();
    void compareSoundRequested();
    /// A folder was chosen; whoever knows how the library spells it answers with setFolder().
    void folderChosen(const QString& folder);

  protected:
    void showEvent(QShowEvent* event) override;

  private:
    void connectRule(QRadioButton* radio, QComboBox* combo);
    void connectKind();
    void connectFolder();
    void setUpButtons();
    void fitIntoScreen();
    void updateHelper();

    bool m_byRecordings = false;
    std::unique_ptr<Ui::MarkDialog> m_ui;
};

} // namespace songsweep
