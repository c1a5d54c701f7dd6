// SPDX-License-Identifier: MIT
#pragma once

namespace songsweep {

class AppleScript;
class Files;
class Log;
struct WorkerEvent;
template <typename Event>
class NotificationCenter;
class Preferences;
class Sleeper;

/// What the readers work with; all of it outlives every worker.
struct ReaderServices {
    NotificationCenter<WorkerEvent>& center;
    AppleScript& scripts;
    Files& files;
    Preferences& preferences;
    Sleeper& sleeper;
    Log& log;
};

} // namespace songsweep
