// SPDX-License-Identifier: MIT
#pragma once

#include "libraryfile/RecordedCleanup.h"
#include "libraryfile/RecordedMerge.h"
#include "platform/Result.h"
#include "platform/Trash.h"

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

namespace songsweep {

struct DeleteReport;

/// The frame of a deletion: what lies behind the texts that are told to iTunes and Finder.
///
/// A library file of the program's own is locked and backed up before the first text, written from time to
/// time, and files go after their tracks; what became of a track or of a file is known when that has ended,
/// and a record tells it afterwards. The system's iTunes acts on each text at once, which is what this class
/// stands for. The worker's thread. Tracks are called by their numbers in the plan.
///
///     if (const auto begun = cleanup.begin(tracks, files); !begun) return begun.error();
///     while (…) if (!cleanup.beginTrack(number)) break; // then the texts about it
///     const auto written = cleanup.finish();
///     cleanup.end(report, how);
class Cleanup {
  public:
    enum class Files : std::uint8_t { stay, go };

    /// What stays of a clean-up, "" for none.
    struct Traces {
        std::string backup;             ///< path
        std::string record;             ///< path
        std::vector<std::string> notes; ///< sentences; what could not be done beside the tracks
    };

    Cleanup() = default;
    Cleanup(const Cleanup&) = delete;
    Cleanup& operator=(const Cleanup&) = delete;
    virtual ~Cleanup() = default;

    /// Keeps others from changing the library before `begin`, so that what is found in it meanwhile stays
    /// true; `busy` where another program does. Any thread.
    virtual Result<void> lock() { return {}; }
    /// Ends that where nothing was begun.
    virtual void unlock() {}

    /// Begins what comes before the deletion: from now on texts give copies of songs what others know, and
    /// nothing of it is written but with the deletions. An error where that cannot be.
    virtual Result<void> beginMerge() { return {}; }
    /// The texts about that song have run.
    virtual void noteMerge(const MergedSong& /*song*/) {}
    /// Takes all of it back, where no deletion is to follow.
    virtual void abandonMerge() {}

    /// Takes the tracks over. On an error nothing must be deleted.
    // NOLINTNEXTLINE(performance-unnecessary-value-param): those that write a record move them
    virtual Result<void> begin(std::vector<RecordedTrack> /*tracks*/, Files /*files*/) { return {}; }
    /// The next texts are about this track; false where something has failed, so that it must not begin.
    virtual bool beginTrack(std::size_t /*number*/) { return true; }
    /// Does everything that waits; the reason where the library could not be written. Once after `begin`.
    virtual Result<void> finish() { return {}; }

    /// Whether a track that was told to be deleted is still in the library. After `finish`.
    virtual bool hasTrack(std::size_t /*number*/) { return false; }
    /// What became of the file of a track; nothing where only the disk can tell. After `finish`.
    virtual std::optional<Result<TrashedFile>> fateOfFile(std::size_t /*number*/) { return std::nullopt; }

    /// Writes down what became of everything. An error says that this could not be written.
    virtual Result<void> end(const DeleteReport& /*report*/, RecordEnd::How /*how*/) { return {}; }
    /// Of the clean-up that is on, or of the last one; one that did nothing leaves nothing.
    virtual Traces traces() { return {}; }
};

} // namespace songsweep
