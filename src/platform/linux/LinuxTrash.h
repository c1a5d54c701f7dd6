// SPDX-License-Identifier: MIT
#pragma once

#include "platform/Trash.h"

#include <mutex>
#include <unordered_map>

namespace songsweep {

struct TrashFolder;

/// The Trash of the freedesktop rules: the user's own, or that of a file's volume.
///
/// GIO moves the files, because it writes the records that file managers restore from with every byte of the
/// path escaped. It neither tells the name that it gave nor whether the record was written, so that both are
/// looked up afterwards: one name where no other file of that name lies there, else the one after the last
/// found. Of a name that many files have, the rest go by `moveToNumber`.
class LinuxTrash final : public Trash {
  public:
    Result<TrashedFile> moveToTrash(const std::string& path) override;
    Result<RestoredFile> restoreFromTrash(const TrashedFile& file, const std::string& path) override;
    std::optional<TrashedFile> findInTrash(const std::string& path,
                                           std::chrono::system_clock::time_point notBefore) override;
    std::unique_ptr<TrashCheck> newCheck() override;

  private:
    using Time = std::chrono::system_clock::time_point;
    struct Identity;

    std::optional<Result<TrashedFile>> moveToCrowdedName(const std::string& path, const Identity& file);
    Result<TrashedFile> confirm(const std::string& path, const Identity& file, Time before);
    std::optional<TrashedFile> whereIs(const Identity& file, const TrashFolder& folder,
                                       const std::string& name);
    int lastNumber(const std::string& place);
    void setLastNumber(const std::string& place, int number);

    std::mutex m_mutex;
    /// Of names that more than one file had: the last number found, by trash folder and name.
    std::unordered_map<std::string, int> m_lastNumbers;
};

} // namespace songsweep
