// SPDX-License-Identifier: MIT
#pragma once

#include "scripting/AppleScript.h"

#include <atomic>
#include <memory>

namespace songsweep {

/// Sends texts to the system's own iTunes, where there is one, until a library file is chosen; to the
/// embedded one from then on.
///
/// Thread-safe, but choose while no worker runs: a text that is under way ends where it began.
class ChosenScripts final : public AppleScript {
  public:
    /// `system` is null where the system has no iTunes; `embedded` outlives this.
    ChosenScripts(std::unique_ptr<AppleScript> system, AppleScript& embedded)
        : m_system(std::move(system))
        , m_embedded(embedded)
        , m_usesEmbedded(m_system == nullptr) {}

    void chooseEmbedded() { m_usesEmbedded = true; }
    bool usesEmbedded() const { return m_usesEmbedded; }

    Result<Descriptor> executeAndReturnError(std::string_view source) override {
        return (m_usesEmbedded ? m_embedded : *m_system).executeAndReturnError(source);
    }

  private:
    std::unique_ptr<AppleScript> m_system;
    AppleScript& m_embedded;
    std::atomic<bool> m_usesEmbedded;
};

} // namespace songsweep
