// SPDX-License-Identifier: MIT
#pragma once

#include "delete/Cleanup.h"
#include "libraryfile/CleanupLock.h"

#include <functional>

namespace songsweep {

class EmbeddedScripting;

/// The frame of a deletion from a library file; of one from the system's iTunes, it does nothing.
class EmbeddedCleanup final : public Cleanup {
  public:
    /// Who cleans up, for those who meet the lock and for those who read the record.
    struct Identity {
        CleanupLock::Request request;
        std::string program; ///< name and version
    };

    /// Which of the two it is, is asked at each beginning. The scripts outlive it.
    EmbeddedCleanup(EmbeddedScripting& scripts, std::function<bool()> isEmbedded, Identity identity)
        : m_scripts(scripts)
        , m_isEmbedded(std::move(isEmbedded))
        , m_identity(std::move(identity)) {}

    Result<void> lock() override;
    void unlock() override;
    Result<void> beginMerge() override;
    void noteMerge(const MergedSong& song) override;
    void abandonMerge() override;
    Result<void> begin(std::vector<RecordedTrack> tracks, Files files) override;
    bool beginTrack(std::size_t number) override;
    Result<void> finish() override;
    bool hasTrack(std::size_t number) override;
    std::optional<Result<TrashedFile>> fateOfFile(std::size_t number) override;
    Result<void> end(const DeleteReport& report, RecordEnd::How how) override;
    Traces traces() override;

  private:
    Result<void> withPath(const Result<void>& result) const;

    EmbeddedScripting& m_scripts;
    std::function<bool()> m_isEmbedded;
    Identity m_identity;
    bool m_isOn = false;
    bool m_hasBegun = false; ///< one of this library file, the last time
};

} // namespace songsweep
