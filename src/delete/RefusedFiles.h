// SPDX-License-Identifier: MIT
#pragma once

#include <memory>
#include <string>
#include <string_view>
#include <unordered_map>

namespace songsweep {

class Files;
class Trash;
class TrashCheck;
struct CleanupRoom;

/// Foresees what the Trash will refuse, of the files at tracks' locations.
///
/// A file that several tracks name alike is asked about once, so that its record takes room once. One look at
/// the file system for each name; one thread at a time.
class RefusedFiles {
  public:
    RefusedFiles(const Files& files, Trash& trash);
    ~RefusedFiles();

    /// Room that the clean-up takes, which the Trash will not have.
    void leaveRoom(const CleanupRoom& room);

    /// Why the file there will stay though it is to go, after those that were asked about before; "" where
    /// nothing is in the way. A phrase for an outcome.
    const std::string& reasonFor(std::string_view location);

  private:
    const Files& m_files;
    std::unique_ptr<TrashCheck> m_check;
    std::unordered_map<std::string, std::string> m_reasons; ///< by local name
};

} // namespace songsweep
