// SPDX-License-Identifier: MIT
#pragma once

#include "library/XmlReader.h"

#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace songsweep {

class AppleScript;
class Files;
class Log;
struct WorkerEvent;
template <typename Event>
class NotificationCenter;
class Preferences;
class Sleeper;
struct TrackRecord;

/// Opens the library file at a local path; null where that fails. Called on a worker thread.
using OpenNodes = std::function<std::unique_ptr<NodeReader>(const std::string& path)>;

/// What the readers work with; all of it outlives every worker.
struct ReaderServices {
    NotificationCenter<WorkerEvent>& center;
    AppleScript& scripts;
    Files& files;
    Preferences& preferences;
    Sleeper& sleeper;
    Log& log;
    /// Whether the records, in the order of the library file, are the tracks that iTunes finds by their
    /// persistent IDs; called on a worker thread.
    std::function<bool(const std::vector<TrackRecord*>&)> areTracksOfITunes =
        [](const std::vector<TrackRecord*>&) { return true; };
    OpenNodes openNodes = XmlReader::open;
};

} // namespace songsweep
