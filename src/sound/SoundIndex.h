// SPDX-License-Identifier: MIT
#pragma once

#include "sound/Fingerprint.h"

#include <cstddef>
#include <unordered_map>
#include <vector>

namespace songsweep {

/// Finds the sets of copies whose sound has items in common with another, among very many.
///
/// An item that many sets have, as that of silence, tells nothing and is not followed further. Constant time
/// an item.
class SoundIndex {
  public:
    void add(std::size_t set, const Fingerprint& fingerprint);

    /// The sets with the most items in common, the best first; a few of them.
    std::vector<std::size_t> candidates(const Fingerprint& fingerprint) const;

  private:
    std::unordered_map<std::uint32_t, std::vector<std::size_t>> m_setsOfItem;
};

} // namespace songsweep
