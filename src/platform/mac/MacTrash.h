// SPDX-License-Identifier: MIT
#pragma once

#include "platform/Trash.h"

namespace songsweep {

/// The Trash of macOS, by NSFileManager. Where a file came from is noted by the system, for the Finder alone:
/// the name that it got is kept, and what was not told is not found again.
class MacTrash final : public Trash {
  public:
    Result<TrashedFile> moveToTrash(const std::string& path) override;
    Result<RestoredFile> restoreFromTrash(const TrashedFile& file, const std::string& path) override;
    /// Nothing: no program may read what the Finder noted.
    std::optional<TrashedFile> findInTrash(const std::string& path,
                                           std::chrono::system_clock::time_point notBefore) override;
    /// Foresees what the system tells: whether the file is there and may be taken from its folder.
    std::unique_ptr<TrashCheck> newCheck() override;
};

} // namespace songsweep
