// SPDX-License-Identifier: MIT
#pragma once

#include "platform/Result.h"

#include <optional>
#include <string>

namespace songsweep {

/// The frame of a deletion: what lies behind the texts that are told to iTunes and Finder.
///
/// A library file of the program's own is locked and backed up before the first text, written from time to
/// time, and files go after their tracks; what became of a track or of a file is known when that has ended.
/// The system's iTunes acts on each text at once, which is what this class stands for. The worker's thread.
///
///     if (const auto begun = cleanup.begin(); !begun) return begun.error();
///     while (…) if (!cleanup.beginTrack(pid)) break; // then the texts about it
///     const auto written = cleanup.finish();
class Cleanup {
  public:
    Cleanup() = default;
    Cleanup(const Cleanup&) = delete;
    Cleanup& operator=(const Cleanup&) = delete;
    virtual ~Cleanup() = default;

    /// On an error nothing must be deleted.
    virtual Result<void> begin() { return {}; }
    /// The next texts are about this track; false where something has failed, so that it must not begin.
    virtual bool beginTrack(const std::string& /*persistentId*/) { return true; }
    /// Does everything that waits; the reason where the library could not be written. Once after `begin`.
    virtual Result<void> finish() { return {}; }

    /// Whether a track that was told to be deleted is still in the library. After `finish`.
    virtual bool hasTrack(const std::string& /*persistentId*/) { return false; }
    /// What became of a file that was told to be deleted, by its local path; nothing where only the disk can
    /// tell. After `finish`.
    virtual std::optional<Result<void>> fateOfFile(const std::string& /*path*/) { return std::nullopt; }
};

} // namespace songsweep
