// SPDX-License-Identifier: MIT
#pragma once

#include "library/SWXMLParser.h"
#include "library/SearchParameters.h"
#include "library/TrackStorage.h"
#include "operations/Operation.h"

#include <cstdint>
#include <memory>
#include <string>

namespace songsweep {

/// The reader that asks iTunes itself for a playlist's tracks, by scripts of 50 tracks each.
///
/// Serves iTunes before version 10, and every library whose file cannot be read. Appends to the track list;
/// ends with "addFinish", or with "addCancel" and an empty list. One script a batch, never one a track, but
/// for a batch that fails: its halves are asked for in turn, so that the track to blame is left out alone.
/// What could not be read is told by the list's coverage.
class AddProc final : public Operation {
  public:
    /// `musicInt` is the playlist's index in iTunes, from 1.
    AddProc(std::shared_ptr<TrackList> list, SearchParameters parameters, std::int32_t musicInt,
            ReaderServices services);

    void main() override;

  private:
    void readPlaylist();
    bool readBatch(std::int32_t first, std::int32_t last);
    bool readHalves(std::int32_t first, std::int32_t last, const std::string& reason);
    void noteUnread(int tracks, const std::string& reason);
    std::int32_t trackCount();
    void postEnd();

    std::shared_ptr<TrackList> m_list;
    SearchParameters m_searchparams;
    std::int32_t m_musicInt;
    ReaderServices m_services;
    int m_failuresInARow = 0;
};

/// The text that asks for the tracks `first` to `last` of a playlist, numbers from 1.
std::string batchScript(std::int32_t musicInt, std::int32_t first, std::int32_t last);

} // namespace songsweep
