// SPDX-License-Identifier: MIT
#pragma once

#include "app/views/SearchView.h"
#include "library/SearchParameters.h"

#include <QDialog>

#include <memory>
#include <string>

class QCheckBox;

namespace songsweep {

namespace Ui {
class ParametersDialog;
}

/// The window that a search starts from: which fields must agree, and which playlist is searched.
///
/// It gives SearchParameters and keeps its settings between openings, as they were before one that was
/// cancelled; it stays open until it is told to close, so that whoever starts the search decides when. Main
/// thread.
class ParametersDialog : public QDialog, public SearchView {
    Q_OBJECT

  public:
    explicit ParametersDialog(QWidget* parent = nullptr);
    ~ParametersDialog() override;

    SearchParameters parameters() const;
    /// Takes the choice of one field back, of those that are chosen the one that tells least of a song.
    void dropField();

    // SearchView
    void showParamWindow() override;
    void closeParamWindow() override;
    void setPlaylistsPending(bool pending) override;
    void clearPlaylists() override;
    /// At the end, in UTF-8; nothing gets selected by it.
    void addPlaylist(const std::string& name) override;
    /// By position from 0; -1 for none.
    void selectPlaylist(int index) override;

  Q_SIGNALS:
    /// "Search" was pressed. Cancelling is `rejected`.
    void searchRequested(const songsweep::SearchParameters& parameters);

  protected:
    void showEvent(QShowEvent* event) override;

  private:
    void setUpButtons();
    void updateWarning();
    void putBack();

    std::unique_ptr<Ui::ParametersDialog> m_ui;
    QCheckBox* m_dropped = nullptr; ///< has the focus at the next opening
    SearchParameters m_atOpening;   ///< what Cancel goes back to
};

} // namespace songsweep
