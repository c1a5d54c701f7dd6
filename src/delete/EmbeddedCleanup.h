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
    /// Which of the two it is, is asked at each beginning. The scripts outlive it.
    EmbeddedCleanup(EmbeddedScripting& scripts, std::function<bool()> isEmbedded,
                    CleanupLock::Request request)
        : m_scripts(scripts)
        , m_isEmbedded(std::move(isEmbedded))
        , m_request(std::move(request)) {}

    /// Locks the library before `begin`, so that what is found in it meanwhile stays true.
    Result<void> lock();

    Result<void> begin() override;
    bool beginTrack(const std::string& persistentId) override;
    Result<void> finish() override;
    bool hasTrack(const std::string& persistentId) override;
    std::optional<Result<void>> fateOfFile(const std::string& path) override;

  private:
    Result<void> withPath(const Result<void>& result) const;

    EmbeddedScripting& m_scripts;
    std::function<bool()> m_isEmbedded;
    CleanupLock::Request m_request;
    bool m_isOn = false;
};

} // namespace songsweep
