// SPDX-License-Identifier: MIT
#pragma once

namespace songsweep {

class AppleScript;
class Files;
class Log;
class NotificationCenter;
class Preferences;
class Sleeper;

/// What the readers work with; all of it outlives every worker.
struct ReaderServices {
    NotificationCenter& center;
    AppleScript& scripts;
    Files& files;
    Preferences& preferences;
    Sleeper& sleeper;
    Log& log;
};

} // namespace songsweep
