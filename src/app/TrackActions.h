// SPDX-License-Identifier: MIT
#pragma once

#include "app/ITunesQueries.h"

namespace songsweep {

class Desktop;
class Files;
class Log;
struct ControllerServices;
struct TrackRecord;

/// What can be done with one track's file. What fails stands in the log alone. Main thread.
class TrackActions {
  public:
    explicit TrackActions(const ControllerServices& services);

    /// In iTunes. A track without a file has no path to play.
    void play(const TrackRecord& record) const;
    void showInFileManager(const TrackRecord& record) const;

  private:
    ITunesQueries m_queries;
    const Files& m_files;
    Desktop& m_desktop;
    Log& m_log;
};

} // namespace songsweep
