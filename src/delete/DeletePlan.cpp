// SPDX-License-Identifier: MIT
#include "delete/DeletePlan.h"

#include "delete/DeleteTexts.h"
#include "platform/Files.h"

#include <filesystem>
#include <map>
#include <set>
#include <utility>

namespace songsweep {

namespace {

/// A file as the file system knows it.
using FileKey = std::pair<std::uint64_t, std::uint64_t>;

FileKey keyOf(const FileAttributes& attributes) { return {attributes.device, attributes.inode}; }

std::string canonicalPath(const std::string& localPath) {
    std::error_code error;
    const std::filesystem::path canonical = std::filesystem::canonical(localPath, error);
    return error ? localPath : canonical.string();
}

/// The marked tracks and their files, ready to be held against the rest of the library.
struct MarkedFiles {
    struct File {
        std::string canonical;
        std::vector<const TrackRecord*> tracks;
    };
    std::unordered_set<std::string_view> pids;
    std::map<FileKey, std::vector<File>> files;

    void add(const TrackRecord& record, const FileAttributes& attributes, std::string canonical) {
        std::vector<File>& sameKey = files[keyOf(attributes)];
        for (File& file : sameKey)
            if (file.canonical == canonical) return file.tracks.push_back(&record);
        sameKey.push_back({std::move(canonical), {&record}});
    }
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
        const auto attributes = m_files.attributes(path);
        if (!attributes) return;
        const auto found = m_marked.files.find(keyOf(*attributes));
        if (found == m_marked.files.end()) return;
        const std::string canonical = canonicalPath(m_files.localPath(path));
        for (const MarkedFiles::File& file : found->second)
            if (attributes->linkCount > 1 || file.canonical == canonical)
                m_plan.shared.insert(file.tracks.begin(), file.tracks.end());
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
        const auto attributes = files.attributes(path);
        if (!attributes) continue;
        std::string canonical = canonicalPath(files.localPath(path));
        plan.files.emplace(record, canonical);
        marked.add(*record, *attributes, std::move(canonical));
    }
    return marked;
}

} // namespace

DeletePlan makeDeletePlan(const std::vector<TrackRecord*>& rows, const Files& files,
                          const LibraryLocations& locations) {
    DeletePlan plan;
    const MarkedFiles marked = lookAtMarked(rows, files, plan);
    if (!locations || marked.files.empty()) return plan;
    SharedFinder finder(marked, files, plan);
    locations([&](std::string_view pid, const std::string& path) { finder.look(pid, path); });
    return plan;
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
