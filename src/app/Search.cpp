// SPDX-License-Identifier: MIT
#include "app/Search.h"

#include "app/ControllerServices.h"
#include "app/ProgressDisplay.h"
#include "app/Results.h"
#include "app/SearchSummary.h"
#include "app/views/ApplicationView.h"
#include "app/views/ControllerViews.h"
#include "app/views/SearchView.h"
#include "dupes/BuildResultProc.h"
#include "operations/BackgroundDelete.h"
#include "platform/Log.h"
#include "platform/Words.h"

#include <exception>
#include <utility>

namespace songsweep {

namespace {

std::string cantAccessMessage(const std::string& player) {
    return filled(words("Search", "Can't access %1. If there is a dialog window (eg. update notification, "
                                  "song info, preferences) showing on %1, please close it first."),
                  {player});
}

/// What a text that is not there reads as where a text is built from it.
const std::string missingText = "(null)";

std::shared_ptr<TrackList> makeList() {
    auto list = std::make_shared<TrackList>();
    list->storage = std::shared_ptr<TrackStorage>(new TrackStorage, BackgroundDelete());
    return list;
}

std::string wholeLibraryNote(const SearchParameters& parameters) {
    return filled(words("Search", "the whole library was searched, not “%1”"),
                  {parameters.playlist.value_or("")});
}

} // namespace

Search::Search(const ControllerServices& services, const ControllerViews& views, Workers workers,
               Results& results, ProgressDisplay& progress)
    : m_services(services)
    , m_applicationView(views.application)
    , m_view(views.search)
    , m_workers(workers)
    , m_results(results)
    , m_progress(progress)
    , m_queries(services.scripts, services.log)
    , m_readers({workers.center, services.scripts, services.files, services.preferences, services.sleeper,
                 services.log, services.areTracksOfITunes, services.openNodes}) {}

bool Search::isStale(const WorkerEvent& event) const {
    return event.sender && event.sender->serial() < m_serial && event.sender->isCancelled();
}

void Search::startButtonClick(Playlists playlists) {
    if (m_searching) return;
    if (playlists == Playlists::now) {
        populatePlaylist();
    } else {
        m_waitsForPlaylists = true;
        m_view.setPlaylistsPending(true);
    }
    m_view.showParamWindow();
}

void Search::populatePlaylist() {
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

void Search::onLibraryRead() {
    if (!std::exchange(m_waitsForPlaylists, false)) return;
    populatePlaylist();
    m_view.setPlaylistsPending(false);
}

void Search::closeParamWindow() { m_view.closeParamWindow(); }

void Search::paramOkButtonClick(SearchParameters choices) {
    if (m_searching) return;
    m_results.clearSortIndicator();
    m_params = std::move(choices);
    const std::string playlist = m_params.playlist.value_or(missingText);
    m_services.log.line("Location: " + playlist);
    closeParamWindow();
    m_progress.progress().prc = 0;
    const std::int32_t index = m_queries.getMusicLibraryInt(playlist);
    const std::int32_t trackCount = m_queries.getTracksCount();
    m_progress.progress().total = trackCount;
    if (trackCount < 0) {
        m_applicationView.alertCantAccess(cantAccessMessage(m_services.playerName()),
                                          m_services.unreachableReason());
        return;
    }
    m_libraryCount = trackCount;
    m_isLibrary = isLibraryChosen(index);
    m_knowsPlaylist = index > 0 || m_isLibrary;
    begin(index > 0 ? index : 1, trackCount);
    showSearching();
}

/// The library's own playlist is searched whether its name was found or not.
bool Search::isLibraryChosen(std::int32_t index) const {
    if (index > 0) return index == 1;
    return !m_params.playlist || m_params.playlist == m_queries.getMusicPlaylistName();
}

bool Search::missedPlaylist() const {
    return askedForWholeLibrary() || m_list1->coverage.playlist == SearchCoverage::Playlist::none;
}

SearchVerdict Search::verdict() const {
    return SearchVerdict::of({.playlist = m_params.playlist,
                              .isLibrary = m_isLibrary || askedForWholeLibrary(),
                              .libraryTracks = m_libraryCount,
                              .listedTracks = m_listedCount,
                              .coverage = m_list1->coverage});
}

void Search::begin(std::int32_t playlistIndex, std::int32_t trackCount) {
    m_readers.choose(m_queries.majorVersion(), playlistIndex, trackCount);
    m_list1 = makeList();
    m_findings = std::make_shared<LibraryFindings>();
    m_listedCount = 0;
    m_results.begin(m_list1->storage);
    m_progress.setValue(0);
    m_progress.progress().progressBase = 0;
    m_progress.progress().progressSpan = m_readers.useLibraryXML() ? 50 : 90;
    std::unique_ptr<Operation> reader = m_readers.reader(m_list1, m_params);
    m_serial = reader->serial();
    m_searching = true;
    m_asksITunes = !m_readers.useLibraryXML();
    m_workers.queue.add(std::move(reader));
}

void Search::showSearching() {
    m_results.hide();
    m_progress.setText(ProgressBar::progress, words("Search", "Searching..."));
    m_results.clearStatus();
    m_progress.showProgressWindow(ProgressBar::formprogress);
    m_progress.setText(ProgressBar::formprogress, words("Search", "Searching..."));
}

void Search::cancelformButtonClick() {
    m_searching = false;
    m_workers.queue.cancelAllOperations();
    m_progress.closeProgressWindow(ProgressBar::formprogress);
}

/// No menu has it: it is kept as the one way to try the library reader by itself, without a dialog's choices.
void Search::xmlStartClick() { m_workers.queue.add(m_readers.bareReader()); }

void Search::forgetLibrary() {
    closeParamWindow(); // its list of playlists is filled when it opens
    m_list1 = makeList();
    m_playlistCount = 0;
    m_readers.setDeletedSinceRead(false);
    m_view.clearPlaylists();
}

// What workers say.

void Search::onAddFinish() {
    m_progress.setText(ProgressBar::formprogress, words("Search", "Processing..."));
    m_listedCount = static_cast<int>(m_list1->records.size());
    if (m_readers.useLibraryXML()) {
        m_progress.progress().beginPhase(70, 30);
    } else {
        m_progress.progress().beginPhase(90, 10);
    }
    startLibraryLook();
    m_workers.queue.add(std::make_unique<BuildResultProc>(m_list1, m_params, m_workers.center));
}

void Search::startLibraryLook() {
    if (!m_services.libraryLocations) return;
    const FilePlaces places = {m_services.files, m_services.libraryLocations, m_services.mapRules(),
                               m_services.libraryFile()};
    m_workers.queue.add(std::make_unique<LibraryLook>(m_list1, places, m_findings));
}

void Search::onXmlDoneParsing() {
    m_progress.progress().beginPhase(50, 20);
    m_readers.setDeletedSinceRead(false);
    m_progress.setText(ProgressBar::formprogress, words("Search", "Checking missing tracks..."));
}

void Search::onXmlError() {
    m_progress.progress().beginPhase(50, 40);
    startAddProc();
}

void Search::onXmlErrorNotFound() {
    m_progress.progress().prc = 0;
    startAddProc();
}

void Search::startAddProc() {
    m_asksITunes = true;
    m_workers.queue.add(m_readers.addProc(m_list1, m_params));
}

void Search::onXmlModifiedDate(const FileAttributes& libraryFile) {
    m_readers.setLibraryModifiedDate(libraryFile.modificationNanoseconds);
}

void Search::onReadError(const std::shared_ptr<ReadError>& error) { m_view.tellReadError(*error); }

void Search::onBuildFinish() {
    m_searching = false;
    m_progress.closeProgressWindow(ProgressBar::formprogress);
    std::vector<std::string> notes = verdict().notes;
    notes.insert(notes.end(), m_findings->warnings.begin(), m_findings->warnings.end());
    const auto playlist = askedForWholeLibrary() ? ChosenPlaylist::missed : ChosenPlaylist::searched;
    m_results.showFound(searchSummary(m_params, playlist, notes));
    if (!m_results.tableDataSource().rows.empty()) return;
    if (askedForWholeLibrary()) notes.insert(notes.begin(), wholeLibraryNote(m_params));
    m_applicationView.alertNoDuplicates(notes);
}

void Search::onAddCancel() {
    m_searching = false;
    m_results.showEmptyState();
}

void Search::onStep1(TrackRecord* record) {
    m_progress.count(1);
    m_list1->records.push_back(record);
}

} // namespace songsweep
