// SPDX-License-Identifier: MIT
#pragma once

#include <string>

namespace songsweep {

class Log;
struct RestoreReport;

/// Writes down in the log what came back of a deletion, track by track, and where the backup and the record
/// of that lie; of a restore that failed, why. Any thread.
void logRestore(const RestoreReport& report, Log& log);

} // namespace songsweep
