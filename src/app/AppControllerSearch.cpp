// SPDX-License-Identifier: MIT
// How a search begins: the parameters dialog, the questions to iTunes, the first worker.
#include "app/AddProc.h"
#include "app/AppController.h"
#include "app/Links.h"
#include "platform/Log.h"

#include <exception>

namespace songsweep {

namespace {

/// The first version whose library file is read instead of asking iTunes track by track.
constexpr std::int32_t firstVersionWithLibraryFile = 10;
constexpr std::int32_t readDelay = 5;
constexpr std::int32_t readDelayMax = readDelay + 5;

/// The code of an alert's second button.
constexpr int alertSecondButtonReturn = 1001;

constexpr const char* cantAccessMessage = "Can't access iTunes. If there is a dialog window (eg. update "
                                          "notification, song info, preferences) showing "
                                          "on iTunes, please close it first.";

/// What a text that is not there reads as where a text is built from it.
const std::string missingText = "(null)";

} // namespace

void AppController::startButtonClick() {
    if (isDeleting() || m_searching) return;
    populatePlaylist();
    m_view.showParamWindow();
}

void AppController::populatePlaylist() {
    if (m_playlistCount > 0) return;
    std::vector<std::string> names;
    if (const auto music = m_queries.getMusicPlaylistName()) names.push_back(*music);
    try {
        for (std::string& name : m_queries.userPlaylistNames())
            names.push_back(std::move(name));
    } catch (const std::exception& exception) {
        // The list then holds the library's playlist alone.
        m_services.log.line(std::string("Playlists could not be read: ") + exception.what());
    }
    for (const std::string& name : names)
        m_view.addPlaylist(name);
    m_playlistCount = static_cast<int>(names.size());
    if (m_playlistCount > 0) m_view.selectPlaylist(0);
}

void AppController::paramCancelButtonClick() { closeParamWindow(); }
void AppController::closeParamWindow() { m_view.closeParamWindow(); }

void AppController::paramOkButtonClick(SearchParameters choices) {
    if (isDeleting() || m_searching) return;
    if (m_sortIndicatorShown) m_view.clearSortIndicator();
    m_sortIndicatorShown = false;
    m_params = std::move(choices);
    const std::string playlist = m_params.playlist.value_or(missingText);
    m_services.log.line("Location: " + playlist);
    closeParamWindow();
    m_progress.prc = 0;
    const std::int32_t index = m_queries.getMusicLibraryInt(playlist);
    m_playlistIndex = index > 0 ? index : 1;
    m_progress.total = m_queries.getTracksCount();
    if (m_progress.total < 0) {
        m_view.alertCantAccess(cantAccessMessage, m_services.unreachableReason());
        return;
    }
    m_libraryCount = m_progress.total;
    const std::int32_t majorVersion = m_queries.majorVersion();
    emptyResults();
    m_useLibraryXML = majorVersion >= firstVersionWithLibraryFile;
    m_progress.progressSpan = m_useLibraryXML ? 50 : 90;
    startReader();
    showSearching();
}

void AppController::emptyResults() {
    m_list1 = std::make_shared<TrackList>();
    m_tableDataSource = {{}, m_list1->storage};
    m_listedCount = 0;
    m_lastMark.reset();
    m_view.reloadTable();
    m_view.setHorizontalScroller(false);
    m_horizontalScrollbarShowCount = 0;
    m_view.setProgressValue(0);
    m_progress.progressBase = 0;
}

void AppController::startReader() {
    std::unique_ptr<Operation> reader;
    if (m_useLibraryXML) {
        reader = std::make_unique<SWXMLParser>(m_list1, m_params, m_progress.total, m_libraryModifiedDate,
                                               m_deletedSinceRead, readDelay, readDelayMax, readerServices());
    } else {
        reader = std::make_unique<AddProc>(m_list1, m_params, m_playlistIndex, readerServices());
    }
    m_searchSerial = reader->serial();
    m_searching = true;
    m_queue.add(std::move(reader));
}

void AppController::startAddProc() {
    m_queue.add(std::make_unique<AddProc>(m_list1, m_params, m_playlistIndex, readerServices()));
}

void AppController::xmlStartClick() { m_queue.add(std::make_unique<SWXMLParser>(readerServices())); }

void AppController::showSearching() {
    m_view.setTableVisible(false);
    m_view.setPerformLabelVisible(false);
    m_view.setProgressTitle("Searching...");
    setStatusLabel();
    m_view.setStatusText("");
    m_view.setSearchedText("");
    showProgressWindow(ProgressBar::formprogress);
}

void AppController::alertCantAccessDidEnd(int returnCode) {
    if (returnCode == alertSecondButtonReturn) launchURL(links::cantAccessITunes);
}

bool AppController::resetForLibrary() {
    if (!isIdle()) return false;
    closeParamWindow(); // its list of playlists is filled when it opens
    m_tableDataSource = {};
    m_list1 = std::make_shared<TrackList>();
    m_playlistCount = 0;
    m_deletedSinceRead = false;
    m_lastMark.reset();
    m_view.clearPlaylists();
    m_view.reloadTable();
    setStatusLabel();
    m_view.setSearchedText("");
    m_view.setTableVisible(false);
    m_view.setPerformLabelVisible(true);
    return true;
}

} // namespace songsweep
