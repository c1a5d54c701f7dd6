// SPDX-License-Identifier: MIT
#pragma once

#include "libraryfile/LibraryFile.h"
#include "platform/Result.h"
#include "platform/Trash.h"

#include <optional>
#include <string>
#include <unordered_map>
#include <vector>

namespace songsweep {

class LibraryDocument;

/// Files that are to go to the Trash once the library on the disk names their tracks no more.
///
/// So no kill and no failed write leaves a track in the library whose file is gone. A file goes only as the
/// very one that it was when it was handed in. What became of each file can be asked until `clear`. Guarded
/// by the scripts' lock.
class HeldFiles {
  public:
    /// Holds a file, by its local path, for the track of that persistent ID; "" where it belongs to none.
    /// Tracks that share a file each hold it.
    void hold(const std::string& path, const std::string& persistentId);

    /// Moves the files whose tracks the library, which has nothing left to write, does not name; the others
    /// stay held.
    void release(LibraryDocument& library, Trash& trash);
    /// Those that are still held stay where they are.
    void keep(const std::string& reason);
    /// Forgets everything.
    void clear();

    /// Of a file that could not be moved; nothing where all could.
    Result<void> firstError() const;

    bool isEmpty() const { return m_held.empty(); }
    /// What became of a file; nothing where it is held, or was never handed in.
    std::optional<Result<TrashedFile>> fateOf(const std::string& path) const;

  private:
    struct Held {
        std::string path;
        std::optional<FileStamp> stamp;
        std::vector<std::string> persistentIds;
    };

    static Result<TrashedFile> move(const Held& file, Trash& trash);

    std::vector<Held> m_held;                              // in the order in which they go
    std::unordered_map<std::string, std::size_t> m_places; // of the held ones, by path
    std::unordered_map<std::string, Result<TrashedFile>> m_fates;
};

} // namespace songsweep
