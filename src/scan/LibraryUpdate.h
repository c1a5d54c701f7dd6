// SPDX-License-Identifier: MIT
#pragma once

#include "scan/FolderMemory.h"
#include "scan/FolderScan.h"
#include "scan/LibraryWriter.h"
#include "scan/NewNumbers.h"
#include "scan/ScanPlan.h"

#include <cstdint>
#include <optional>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace songsweep {

/// Carries out a scan's plan: reads what is to be read, and writes the library on the way, track by track.
///
/// Writing begins with the first change, so that files which cannot be read again and again cost no new
/// library each time. The thread of the scan.
class LibraryUpdate {
  public:
    /// Whether a new version is written even if no track changes.
    enum class Writing : std::uint8_t { whenTracksChange, inAnyCase };

    /// `deleted` are tracks that the library had at the last scan: one whose file stayed comes back as it
    /// was.
    LibraryUpdate(const FolderLibrary& place, const ScanWatch& watch, const LibraryFile& old, ScanPlan& plan,
                  const std::vector<KnownFile>& deleted, Writing writing);

    /// The memory of the new version; nothing where none was needed. Adds to the report what it did.
    Result<std::optional<FolderMemory>> run(ScanReport& report);

  private:
    Result<SoundFacts> read(std::size_t number) const;
    bool take(std::size_t number, Result<SoundFacts> facts, ScanReport& report);
    Result<void> begin();
    void keepUpTo(std::size_t step);
    void keep(KnownFile& track);
    void write(ScanStep& step, const SoundFacts& facts, ScanReport& report);
    KnownFile trackOf(const ScanStep& step, const SoundFacts& facts, ScanReport& report);
    KnownFile newTrack(const std::string& path);
    void leave(ScanStep& step, const Error& error, ScanReport& report);
    void keepWhatWasNotLookedAt(ScanReport& report);
    Result<std::optional<FolderMemory>> finish(ScanReport& report);

    const FolderLibrary& m_place;
    const ScanWatch& m_watch;
    const LibraryFile& m_old;
    ScanPlan& m_plan;
    std::optional<NewNumbers> m_numbers; ///< made when the writing begins
    std::int64_t m_now;
    std::unordered_map<std::string_view, const KnownFile*> m_deleted; ///< by their paths
    bool m_isChanged;
    std::optional<LibraryWriter> m_writer;
    Result<void> m_state;
    FolderMemory m_memory;
    std::size_t m_next = 0; ///< the step that is not yet written
};

} // namespace songsweep
