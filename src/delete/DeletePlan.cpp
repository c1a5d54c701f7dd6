// SPDX-License-Identifier: MIT
#include "delete/DeletePlan.h"

#include "delete/DeleteReport.h"
#include "delete/DeleteTexts.h"
#include "platform/Files.h"
#include "platform/LocalName.h"

#include <map>
#include <set>
#include <unordered_map>
#include <utility>

namespace songsweep {

namespace {

/// A file as the file system knows it.
using FileKey = std::pair<std::uint64_t, std::uint64_t>;

FileKey keyOf(const FileAttributes& attributes) { return {attributes.device, attributes.inode}; }

using Tracks = std::vector<const TrackRecord*>;

/// The marked tracks and their files, ready to be held against the rest of the library.
struct MarkedFiles {
    std::unordered_set<std::string_view> pids;
    /// By the file system's key, then by canonical path: file systems there are that repeat their keys.
    std::map<FileKey, std::unordered_map<std::string, Tracks>> files;
};

/// Marks as shared the tracks whose file is the one of a track that stays.
class SharedFinder {
  public:
    SharedFinder(const MarkedFiles& marked, const Files& files, DeletePlan& plan)
        : m_marked(marked)
        , m_files(files)
        , m_plan(plan) {}

    void look(std::string_view pid, const std::string& path) {
        const bool goes = !pid.empty() && m_marked.pids.contains(pid);
        if (goes) return;
        const auto attributes = isPath(path) ? m_files.attributes(path) : std::nullopt;
        if (!attributes) return;
        const auto found = m_marked.files.find(keyOf(*attributes));
        if (found == m_marked.files.end()) return;
        if (attributes->linkCount > 1) {
            for (const auto& [name, tracks] : found->second)
                m_plan.shared.insert(tracks.begin(), tracks.end());
        } else if (const auto file = found->second.find(canonicalPath(m_files.localPath(path)));
                   file != found->second.end()) {
            m_plan.shared.insert(file->second.begin(), file->second.end());
        }
    }

  private:
    const MarkedFiles& m_marked;
    const Files& m_files;
    DeletePlan& m_plan;
};

MarkedFiles lookAtMarked(const std::vector<TrackRecord*>& rows, const Files& files, DeletePlan& plan) {
    MarkedFiles marked;
    for (const TrackRecord* const record : rows) {
        if (!record->checkbox) continue;
        marked.pids.insert(record->pid);
        const std::string path = record->location.string();
        const auto attributes = isPath(path) ? files.attributes(path) : std::nullopt;
        if (!attributes) continue;
        std::string canonical = canonicalPath(files.localPath(path));
        plan.files.emplace(record, canonical);
        marked.files[keyOf(*attributes)][std::move(canonical)].push_back(record);
    }
    return marked;
}

} // namespace

DeletePlan makeDeletePlan(const std::vector<TrackRecord*>& rows, const Files& files,
                          const LibraryLocations& locations) {
    DeletePlan plan;
    const MarkedFiles marked = lookAtMarked(rows, files, plan);
    if (marked.files.empty()) return plan;
    SharedFinder finder(marked, files, plan);
    if (!locations) {
        for (const TrackRecord* const record : rows)
            if (!record->checkbox) finder.look({}, record->location.string());
        return plan;
    }
    const bool visitedAll =
        locations([&](std::string_view pid, const std::string& path) { finder.look(pid, path); });
    if (!visitedAll) {
        plan.libraryUnknown = true;
        for (const auto& [record, path] : plan.files)
            plan.shared.insert(record);
    }
    return plan;
}

const char* reasonToLeave(const DeletePlan& plan) {
    return plan.libraryUnknown ? libraryIsUnknown : fileIsShared;
}

DeleteConfirmationFacts confirmationFacts(const std::vector<TrackRecord*>& rows, const Files& files,
                                          const DeletePlan& plan) {
    DeleteConfirmationFacts facts;
    std::set<std::string> counted;
    for (const TrackRecord* const record : rows) {
        if (!record->checkbox) continue;
        ++facts.tracks;
        const auto file = plan.files.find(record);
        if (file == plan.files.end()) {
            ++facts.missingFiles;
            continue;
        }
        if (!canNameFile(record->location) || !counted.insert(file->second).second) continue;
        const auto attributes = files.attributes(record->location.string());
        const auto bytes = static_cast<std::int64_t>(attributes ? attributes->size : 0);
        const bool shared = plan.shared.contains(record);
        (shared ? facts.sharedFiles : facts.filesToTrash) += 1;
        (shared ? facts.sharedBytes : facts.bytesToTrash) += bytes;
    }
    facts.groupsLosingEveryCopy = groupsLosingEveryCopy(rows);
    return facts;
}

int groupsLosingEveryCopy(const std::vector<TrackRecord*>& rows) {
    int count = 0;
    for (std::size_t first = 0; first < rows.size();) {
        bool all = true;
        std::size_t end = first;
        for (; end < rows.size() && rows[end]->gid == rows[first]->gid; ++end)
            all = all && rows[end]->checkbox;
        count += all ? 1 : 0;
        first = end;
    }
    return count;
}

} // namespace songsweep
