// SPDX-License-Identifier: MIT
#pragma once

#include "app/ITunesQueries.h"
#include "app/LibraryLook.h"
#include "app/ReaderChoice.h"
#include "app/SearchVerdict.h"
#include "app/Workers.h"

#include <cstdint>
#include <memory>
#include <string>

namespace songsweep {

class ApplicationView;
class ProgressDisplay;
class Results;
class SearchView;
struct ControllerServices;
struct ControllerViews;
struct ReadError;

/// A search from the parameters dialog to the results: a reader, perhaps another one, the grouping.
///
/// Each finishing event starts the next worker. The parameters and the track list are those of the present
/// search; what a worker of an earlier one still has to say is stale. Main thread.
class Search {
  public:
    Search(const ControllerServices& services, const ControllerViews& views, Workers workers,
           Results& results, ProgressDisplay& progress);

    bool isRunning() const { return m_searching; }
    /// Tracks of the library, as iTunes counts them.
    int libraryCount() const { return m_libraryCount; }
    /// Records left for the grouping when the last reading ended.
    int listedCount() const { return m_listedCount; }
    /// Whether the search was not one of the chosen playlist: iTunes, asked track by track, did not find it
    /// by its name and gave the whole library, or the library file has none of that name.
    bool missedPlaylist() const;
    /// What the search that has ended covered.
    SearchVerdict verdict() const;
    /// Whether the library's files are looked for in the wrong place; for when the search has ended.
    const LibraryFindings& findings() const { return *m_findings; }
    const SearchParameters& parameters() const { return m_params; }
    /// Whether the sender was cancelled before the present search began: its end is no news of this search.
    bool isStale(const WorkerEvent& event) const;
    ReaderChoice& readers() { return m_readers; }

    /// When the dialog's list of playlists can be filled.
    enum class Playlists { now, whenRead };

    // What users do.
    void startButtonClick(Playlists playlists = Playlists::now);
    void populatePlaylist();
    void paramOkButtonClick(SearchParameters choices);
    void closeParamWindow();
    void cancelformButtonClick();
    void xmlStartClick();
    /// Forgets lists and playlists, for another library.
    void forgetLibrary();

    // What workers say.
    /// The library has been read, so that its playlists can be asked for at once.
    void onLibraryRead();
    void onAddFinish();
    void onXmlDoneParsing();
    void onXmlError();
    void onXmlErrorNotFound();
    void onXmlModifiedDate(const FileAttributes& libraryFile);
    void onReadError(const std::shared_ptr<ReadError>& error);
    void onBuildFinish();
    void onAddCancel();
    void onStep1(TrackRecord* record);

  private:
    void begin(std::int32_t playlistIndex, std::int32_t trackCount);
    void startAddProc();
    void startLibraryLook();
    void showSearching();
    bool isLibraryChosen(std::int32_t index) const;
    bool askedForWholeLibrary() const { return m_asksITunes && !m_knowsPlaylist; }

    const ControllerServices& m_services;
    ApplicationView& m_applicationView;
    SearchView& m_view;
    Workers m_workers;
    Results& m_results;
    ProgressDisplay& m_progress;
    ITunesQueries m_queries;
    ReaderChoice m_readers;

    SearchParameters m_params;
    std::shared_ptr<TrackList> m_list1 = std::make_shared<TrackList>();
    std::shared_ptr<LibraryFindings> m_findings = std::make_shared<LibraryFindings>();
    std::uint64_t m_serial = 0; ///< of the present search's first worker
    bool m_searching = false;
    bool m_asksITunes = false;
    bool m_knowsPlaylist = true;
    bool m_isLibrary = true; ///< chosen
    int m_libraryCount = 0;
    int m_listedCount = 0;
    int m_playlistCount = 0;
    bool m_waitsForPlaylists = false;
};

} // namespace songsweep
