// SPDX-License-Identifier: MIT
#pragma once

#include "library/LibraryFileFinder.h"
#include "library/PlaylistItems.h"
#include "library/ReaderServices.h"
#include "library/SearchParameters.h"
#include "library/TrackStorage.h"
#include "library/WorkerEvent.h"
#include "operations/Operation.h"

#include <chrono>
#include <cstdint>
#include <exception>
#include <memory>
#include <span>
#include <string>
#include <string_view>
#include <unordered_set>
#include <vector>

namespace songsweep {

class LibraryWalk;
class NodeReader;
struct ReadTracks;

/// Fills the track list from iTunes' library file.
///
/// Finds the file by iTunes' preferences, waits until iTunes has rewritten it after a deletion, walks it into
/// records, and keeps the file tracks of the chosen playlist, asking iTunes for the location of those whose
/// file is missing. Ends with "addFinish", or with "xmlErrorParsing" or "xmlErrorProcessing" where the file
/// cannot be had or trusted: its tracks have to be those of iTunes, by their number and their persistent IDs;
/// "addCancel" besides when cancelled. The first read error is told ("readError"), and the walk goes on until
/// it is cancelled. One pass, constant time a record.
class SWXMLParser final : public Operation {
  public:
    /// `trackCount` is iTunes' own count of tracks, which the file has to match; for the next four see
    /// RewriteWait.
    SWXMLParser(std::shared_ptr<TrackList> list, SearchParameters parameters, std::int32_t trackCount,
                std::int64_t lastModified, bool hasDelete, std::int32_t readDelay, std::int32_t readDelayMax,
                ReaderServices services);
    /// Everything empty, zero or none.
    explicit SWXMLParser(ReaderServices services);

    void main() override;

    /// Whether the record is among the chosen playlist's items, each of which admits one record.
    bool isInMusicPlaylist(const TrackRecord& record);

    /// Asks iTunes where the track's file is; the record stays as it is where iTunes does not know. An ID of
    /// several tracks has no answer, and is asked for once: each question would visit all of them.
    void refreshLocationApplescript(TrackRecord& record);

  private:
    using Clock = std::chrono::steady_clock;
    struct Admitted {
        std::vector<TrackRecord*> records;
        std::vector<const char*> paths;
        std::exception_ptr failure; ///< of the record behind the last one
    };

    void read();
    bool parse(NodeReader& reader);
    bool readTracks(NodeReader& reader);
    void takeOver(ReadTracks& tracks, LibraryWalk& walk);
    bool agreesWithITunes() const;
    bool walkWhole(NodeReader& reader, LibraryWalk& walk);
    void tellReadError(const NodeReader& reader);
    void process(Clock::time_point start);
    void finish();

    void keepTracksOfPlaylist();
    Admitted admit(std::span<TrackRecord* const> records);
    bool keeps(TrackRecord& record, bool isThere);
    bool findFile(TrackRecord& record);
    void makePath(TrackRecord& record);

    /// Logs an exception, empties the list and posts.
    void fail(EventName event, std::string_view reason);
    void post(EventName name, WorkerEventPayload payload = {}) const;
    void log(std::string_view line) const;

    std::shared_ptr<TrackList> m_list;
    SearchParameters m_searchparams;
    std::int32_t m_trueTrackCount = 0;
    RewriteWait m_wait;
    ReaderServices m_services;

    PlaylistItems m_songlist;
    std::int32_t m_trackCount = 0;
    std::unordered_set<std::string> m_sharedIds; ///< persistent IDs of which iTunes has several tracks
    int m_progressCount = 0;
    bool m_readErrorTold = false;
};

} // namespace songsweep
