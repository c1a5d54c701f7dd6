// SPDX-License-Identifier: MIT
#pragma once

#include "delete/DeletePlan.h"
#include "platform/Files.h"

#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <tuple>
#include <unordered_map>
#include <unordered_set>
#include <utility>
#include <vector>

namespace songsweep {

/// By what a change of the file is noticed.
FileStamp stampOf(const FileAttributes& file);

/// One file under one name, with the marked tracks that use it.
struct MarkedFile {
    std::vector<const TrackRecord*> tracks;
    FileAttributes attributes;
    bool canGo = false; ///< nothing is in the way of at least one of the tracks and of its path
};

/// The files of the marked tracks, ready to be held against those of the rest of the library.
///
/// One look at the file system for each track, and one for each path that is asked for. One thread at a time.
class MarkedFiles {
  public:
    explicit MarkedFiles(const Files& files)
        : m_files(files) {}

    bool empty() const { return m_byKey.empty(); }

    /// Takes in the file of a marked track, which may stay nevertheless; nothing where it does not exist.
    std::optional<PlannedFile> add(const SurveyedRows::Track& track, bool stays);

    /// The marked files that the path leads to, under this name or another one; one may come twice.
    std::vector<const MarkedFile*> filesAt(const std::string& path) const;

    /// Adds the counts of files and bytes to the facts, by the plan that was made of them.
    void count(const DeletePlan& plan, DeleteConfirmationFacts& facts) const;

  private:
    /// A file as the file system knows it: device and inode. Some file systems repeat them, so that they
    /// alone say nothing where the file has one name.
    using Key = std::pair<std::uint64_t, std::uint64_t>;
    /// The same with size and modification time: files that agree in all four are taken for one. Under
    /// another mount, or in another letter case, a file has names that no link count tells of.
    using Sight = std::tuple<std::uint64_t, std::uint64_t, std::uint64_t, std::int64_t>;
    using Names = std::unordered_map<std::string, MarkedFile>;

    static Key keyOf(const FileAttributes& file) { return {file.device, file.inode}; }
    static Sight sightOf(const FileAttributes& file) {
        return {file.device, file.inode, file.size, file.modificationNanoseconds};
    }

    const Files& m_files;
    std::map<Key, Names> m_byKey;
    std::multimap<Sight, const MarkedFile*> m_bySight;
};

} // namespace songsweep
