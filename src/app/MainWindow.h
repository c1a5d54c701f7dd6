// SPDX-License-Identifier: MIT
#pragma once

#include "app/CopyLook.h"
#include "app/LayoutLengths.h"
#include "app/views/LibraryView.h"
#include "app/views/NoticeView.h"
#include "app/views/ProgressView.h"
#include "app/views/ResultsView.h"
#include "library/DisplayedList.h"
#include "library/LibraryOverview.h"
#include "library/ListGain.h"

#include <QMainWindow>
#include <QStringList>

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <unordered_set>
#include <vector>

class QAction;
class QActionGroup;

namespace songsweep {

namespace Ui {
class MainWindow;
}

class CopiesPanelView;
class Log;
class SlicedGain;
class SWTableView;
class TableFilter;
class TrackTableModel;

/// The main window: toolbar, menus, the content page (results, empty state, progress or blank) and the strip.
///
/// Knows no controller. It is the view of the results and of a search's progress, and says by signals what
/// the user asks for, each signal named after the action it asks for; who makes the window connects them.
/// Toolbar and strip never change their size, so that the states differ in their content alone. Main thread.
class MainWindow : public QMainWindow,
                   public LibraryView,
                   public ResultsView,
                   public ProgressView,
                   public NoticeView {
    Q_OBJECT
  public:
    explicit MainWindow(Log& log, QWidget* parent = nullptr);
    ~MainWindow() override;

    SWTableView& tableview() const;
    TrackTableModel& tableModel() const { return *m_model; }
    /// The menu item whose keys are to work in sheets, too, which cover this window.
    QAction& quitMenuitem() const;
    /// Asked before the file chooser opens and before a dragged library is taken; while it says no, the menu
    /// item beeps.
    void setOpenLibraryGuard(std::function<bool()> guard) { m_mayOpenLibrary = std::move(guard); }
    /// Says why a copy is marked, or stays; "" for nothing.
    void setCopyReason(std::function<QString(const TrackRecord&)> reason) {
        m_copyReason = std::move(reason);
    }
    /// Whether sounds can be compared here at all.
    void setSoundAvailable(bool available);
    /// Says how each copy of a song differs from the plainest one, "1 s longer"; "" for nothing.
    using CopyDifferences = std::function<QStringList(const std::vector<TrackRecord*>& copies)>;
    /// What was found of the copies that the panel shows, one for each.
    void showCopyFindings(std::vector<CopyFinding> findings);
    void setCopyDifferences(CopyDifferences differences) { m_copyDifferences = std::move(differences); }
    /// Shows only the songs of which no copy would be left: these, or where there are none, those that the
    /// marks say.
    void showSongsLosingEveryCopy(std::unordered_set<std::int32_t> songs = {});
    /// Whether the item of a menu may be used now.
    bool validateMenuItem(const QAction& item) const;

    /// Asks where files of another machine are now.
    void chooseFilesFolder();

    // LibraryView: in the title, and in the empty state
    void showLibrary(const LibraryOverview& library) override;
    void chooseLibrary() override;

    // ResultsView
    void reloadTable(const DisplayedList& tableDataSource) override;
    void setTableVisible(bool visible) override;
    void setPerformLabelVisible(bool visible) override;
    void setHorizontalScroller(bool shown) override;
    void setSortIndicator(Column column, bool ascending) override;
    void clearSortIndicator() override;
    void setSoundsCompared(bool compared) override;
    std::vector<int> selectedRows() const override;
    int selectedRow() const override;
    void setStatusText(const std::string& text) override;
    void setStatusVisible(bool visible) override;
    void setSearchedText(const std::string& text) override;
    void setUndoNames(const std::string& undo, const std::string& redo) override;
    void setMarkEnabled(bool enabled) override;
    void setDeleteEnabled(bool enabled) override;

    // ProgressView, of a search: no other can begin meanwhile
    void beginProgress() override;
    void endProgress() override;
    /// What is no percentage shows as 0.
    void setProgressValue(double percent) override;
    void setProgressCounts(const ProgressCounts& counts) override;
    void setProgressText(const std::string& phase) override;

    // NoticeView: a line over the content, or the page where there is no row left
    void showNotice(const Notice& notice) override;
    void hideNotice() override;
    void showNoticeDetails(const std::vector<std::string>& lines) override;

    /// Opens at 1280 by 760, or so large that it lies on the screen with its frame where that is less.
    void openAtFirstSize();
    /// Brings the window to the front.
    void present();

  Q_SIGNALS:
    void startButtonClick();
    void markButtonClick();
    void deleteButtonClick();
    void deleteMarkedMenuClick();
    void restoreMenuClick();
    void compareSoundMenuClick();
    void cancelformButtonClick();
    void openLibrary(const std::string& path);
    void markMenuClick(std::int32_t tag);
    void undoMarksClick();
    void redoMarksClick();
    void playMenuClick();
    void showinFinderMenuClick();
    void mainWindowMenuClick();
    void aboutButtonClick();
    void websiteButtonClick();
    void exportChosen(const std::string& path);
    void guideMenuClick();
    void helpButtonClick();
    void contactButtonClick();
    /// The keys that the window knows, one to a line.
    void keyboardMenuClick(const std::vector<std::string>& lines);
    void tableviewSpacebar();
    void tableviewDoubleClick();
    void didClickTableColumn(songsweep::Column column);
    void setObjectValue(bool value, songsweep::Column column, int row);
    /// Marks or rows may be others now.
    void tableReloaded();
    void noticeActionClick(songsweep::NoticeAction action);
    /// Where files of another machine are now.
    void filesFolderChosen(const std::string& folder);
    void noticeClosed();
    void noticeDetails(const std::vector<std::string>& lines);
    /// The panel shows those of another song, or none.
    void otherCopiesShown(const std::vector<songsweep::CopyLook::Copy>& copies);
    void closed();
    void quit();

  protected:
    bool event(QEvent* event) override;
    void closeEvent(QCloseEvent* event) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dropEvent(QDropEvent* event) override;
    void changeEvent(QEvent* event) override;

  private:
    void keepOnScreen();
    void chooseFolder();
    void chooseExport();
    template <typename Chosen>
    void openFolderChooser(const QString& title, const QString& start, Chosen chosen);
    void setUpToolbar();
    void setUpToolTips();
    void setUpEmptyPage();
    void showPageWords();
    void fillRecentMenu();
    void setUpPageKeys();
    void setUpTable(Log& log);
    void setUpContextMenu();
    void setUpNotice();
    bool isNoticePage() const;
    void setUpFilter();
    void filterRows();
    void clearFilterControls();
    void endFilter();
    void showFilteredRows();
    void setUpDetails();
    void updateDetails();
    void noteCopies(const std::vector<TrackRecord*>& copies);
    void connectFileMenu();
    void connectMarkAndTrackMenu();
    void connectWindowAndHelpMenu();
    void applyMetrics();
    void validateMenuItems();
    void showPage();
    void updateSearchedLabel();
    void updateGainLabel();
    void showGain(const ListGain& gain);
    void fillSortMenu();
    void copyRows() const;
    std::vector<std::string> keyboardLines() const;
    void setSearchEnabled(bool enabled);

    std::unique_ptr<Ui::MainWindow> m_ui;
    std::optional<LayoutLengths> m_lengths;
    TrackTableModel* m_model;
    TableFilter* m_filter;
    SlicedGain* m_gain;
    QActionGroup* m_filterKinds = nullptr;
    QAction* m_sortBySound = nullptr;
    std::unordered_set<std::int32_t>
        m_lostSongs; ///< that the filter shows where it shows such; see RowFilter
    CopiesPanelView* m_details = nullptr;
    std::vector<CopyLook::Copy> m_copies; ///< in the panel
    int m_firstOfDetails = 0;             ///< the shown row of the first copy in the panel
    std::function<QString(const TrackRecord&)> m_copyReason = [](const TrackRecord&) { return QString(); };
    CopyDifferences m_copyDifferences = [](const auto&) { return QStringList(); };
    std::function<bool()> m_mayOpenLibrary = [] { return true; };
    LibraryOverview m_library;
    QString m_searchedText;
    std::optional<Notice> m_notice;
    bool m_fitsIntoScreen = true; ///< once the frame was known
    bool m_tableVisible = false;
    bool m_performLabelVisible = true;
    bool m_progressVisible = false;
};

} // namespace songsweep
