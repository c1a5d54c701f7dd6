// SPDX-License-Identifier: MIT
#pragma once

#include "delete/DeleteConfirmationFacts.h"
#include "merge/MergeChoice.h"

#include <QDialog>

#include <memory>

class QPushButton;

namespace songsweep {

namespace Ui {
class DeleteConfirmation;
}

/// The sheet that asks before tracks are deleted.
///
/// Return and Escape both cancel; deleting needs a deliberate key or click. Whether files go to the Trash is
/// kept from one confirmation to the next; files that other tracks use are left each time again, unless
/// somebody opens the options and says otherwise. What copies that stay are given is kept from one to the
/// next, too. The room of the lines that there can be about files is kept, so that nothing moves when the box
/// is switched. Until the files have been looked at they cannot be deleted, but tracks can. Main thread.
class DeleteConfirmation : public QDialog {
    Q_OBJECT

  public:
    explicit DeleteConfirmation(QWidget* parent = nullptr);
    ~DeleteConfirmation() override;

    /// Words the sheet for these facts; to be called before each opening.
    void setFacts(const DeleteConfirmationFacts& facts);
    /// Changes the lines about files, which are known now, and nothing else.
    void updateFacts(const DeleteConfirmationFacts& facts);

    /// Whether a track is its file, so that there is nothing to choose about files.
    void setFilesAlwaysGo(bool always);

    bool deletesFiles() const;
    /// Whether files that tracks which stay use too are kept, as they are until somebody looks for the
    /// option.
    bool leavesSharedFiles() const;
    /// What the copies that stay are to be given of those that go.
    MergeChoice mergeChoice() const;

  Q_SIGNALS:
    /// The user confirmed. Cancelling is `rejected`.
    void deleteRequested(bool deleteFiles, bool leaveSharedFiles, songsweep::MergeChoice merge);
    /// The user wants to see the songs of the warning.
    void lostSongsRequested(songsweep::FilesToTrash files);

  protected:
    void showEvent(QShowEvent* event) override;

  private:
    void setUpButtons();
    void updateHeading();
    void updateLines();
    void updateMerge();
    void showOptions();
    bool hasSharedOption() const;
    FilesToTrash filesToTrash() const;
    void showWarning();
    QStringList linesWithFiles() const;
    void showLines();

    std::unique_ptr<Ui::DeleteConfirmation> m_ui;
    QPushButton* m_cancelButton = nullptr;
    QPushButton* m_deleteButton = nullptr;
    DeleteConfirmationFacts m_facts;
    bool m_filesAlwaysGo = false;
};

} // namespace songsweep
