// SPDX-License-Identifier: MIT
#include "delete/DeletePlan.h"

#include "delete/DeleteConfirmationFacts.h"
#include "delete/DeleteReport.h"
#include "delete/DeleteTexts.h"
#include "delete/Obstacles.h"
#include "platform/Files.h"
#include "platform/LocalName.h"

#include <map>
#include <utility>

namespace songsweep {

namespace {

/// A file as the file system knows it.
using FileKey = std::pair<std::uint64_t, std::uint64_t>;

FileKey keyOf(const FileAttributes& attributes) { return {attributes.device, attributes.inode}; }

/// One file under one name, with the marked tracks that use it.
struct MarkedFile {
    std::vector<const TrackRecord*> tracks;
    std::int64_t bytes = 0;
    bool hasOtherNames = false;
    bool canGo = false; ///< nothing is in the way of at least one of the tracks
};

/// The marked tracks and their files, ready to be held against the rest of the library.
struct MarkedFiles {
    std::unordered_set<std::string_view> pids;
    /// By the file system's key, then by canonical path: file systems there are that repeat their keys.
    std::map<FileKey, std::unordered_map<std::string, MarkedFile>> files;
};

/// One look at all files; each step ends early, and the plan is worth nothing, once it is stopped.
class Survey {
  public:
    Survey(const SurveyedRows& rows, const Files& files, const std::function<bool()>& isStopped)
        : m_rows(rows)
        , m_files(files)
        , m_isStopped(isStopped) {}

    void lookAtMarked() {
        for (const SurveyedRows::Track& track : m_rows.marked) {
            if (m_isStopped()) return;
            lookAtMarked(track);
        }
    }

    void lookAtOthers(const LibraryLocations& locations) {
        if (m_marked.files.empty()) return;
        if (!locations) {
            for (const Text location : m_rows.otherLocations)
                if (!lookAtOther({}, location.string())) return;
            return;
        }
        if (!locations(
                [this](std::string_view pid, const std::string& path) { return lookAtOther(pid, path); }))
            shareAll();
    }

    void count(DeleteConfirmationFacts& facts) const {
        facts.missingFiles = static_cast<int>(m_rows.marked.size() - m_plan.files.size());
        for (const auto& [key, names] : m_marked.files) {
            bool isCounted = false;
            for (const auto& [path, file] : names) {
                if (!file.canGo) continue;
                const bool shared = m_plan.shared.contains(file.tracks.front());
                (shared ? facts.sharedFiles : facts.filesToTrash) += 1;
                // The other names of a file take no room of their own.
                if (!(file.hasOtherNames && std::exchange(isCounted, true)))
                    (shared ? facts.sharedBytes : facts.bytesToTrash) += file.bytes;
            }
        }
    }

    DeletePlan plan() && { return std::move(m_plan); }

  private:
    void lookAtMarked(const SurveyedRows::Track& track) {
        m_marked.pids.insert(track.pid);
        const std::string path = track.location.string();
        const auto attributes = isPath(path) ? m_files.attributes(path) : std::nullopt;
        if (!attributes) return;
        std::string canonical = canonicalPath(m_files.localPath(path));
        m_plan.files.emplace(track.record, canonical);
        MarkedFile& file = m_marked.files[keyOf(*attributes)][std::move(canonical)];
        file.tracks.push_back(track.record);
        file.bytes = static_cast<std::int64_t>(attributes->size);
        file.hasOtherNames = attributes->linkCount > 1;
        file.canGo = file.canGo || (!trackObstacle(track.pid) && !fileObstacle(path));
    }

    /// False where the survey is stopped.
    bool lookAtOther(std::string_view pid, const std::string& path) {
        if (m_isStopped()) return false;
        const bool goes = !pid.empty() && m_marked.pids.contains(pid);
        if (!goes && isPath(path)) shareFileOf(path);
        return true;
    }

    void shareFileOf(const std::string& path) {
        const auto attributes = m_files.attributes(path);
        if (!attributes) return;
        const auto found = m_marked.files.find(keyOf(*attributes));
        if (found == m_marked.files.end()) return;
        if (attributes->linkCount > 1) {
            for (const auto& [name, file] : found->second)
                share(file);
        } else if (const auto file = found->second.find(canonicalPath(m_files.localPath(path)));
                   file != found->second.end()) {
            share(file->second);
        }
    }

    void share(const MarkedFile& file) { m_plan.shared.insert(file.tracks.begin(), file.tracks.end()); }

    void shareAll() {
        m_plan.libraryUnknown = true;
        for (const auto& [record, path] : m_plan.files)
            m_plan.shared.insert(record);
    }

    const SurveyedRows& m_rows;
    const Files& m_files;
    const std::function<bool()>& m_isStopped;
    MarkedFiles m_marked;
    DeletePlan m_plan;
};

} // namespace

SurveyedRows::SurveyedRows(const std::vector<TrackRecord*>& rows, std::shared_ptr<const TrackStorage> kept)
    : storage(std::move(kept)) {
    for (const TrackRecord* const record : rows) {
        if (record->checkbox) {
            marked.push_back({record, record->pid, record->location});
        } else {
            otherLocations.push_back(record->location);
        }
    }
}

std::optional<DeletePlan> surveyFiles(const SurveyedRows& rows, const Files& files,
                                      const LibraryLocations& locations, DeleteConfirmationFacts& facts,
                                      const std::function<bool()>& isStopped) {
    Survey survey(rows, files, isStopped);
    survey.lookAtMarked();
    survey.lookAtOthers(locations);
    if (isStopped()) return std::nullopt;
    survey.count(facts);
    return std::move(survey).plan();
}

DeletePlan makeDeletePlan(const std::vector<TrackRecord*>& rows, const Files& files,
                          const LibraryLocations& locations) {
    DeleteConfirmationFacts ignored;
    return surveyFiles(SurveyedRows(rows), files, locations, ignored, [] { return false; }).value();
}

const char* reasonToLeave(const DeletePlan& plan) {
    return plan.libraryUnknown ? libraryIsUnknown : fileIsShared;
}

} // namespace songsweep
