// SPDX-License-Identifier: MIT
#include "delete/DeletePlan.h"

#include "delete/DeleteConfirmationFacts.h"
#include "delete/KeptIds.h"
#include "delete/MarkedEntries.h"
#include "delete/MarkedFiles.h"
#include "delete/MarkedIds.h"
#include "delete/Obstacles.h"
#include "delete/RefusedFiles.h"
#include "delete/TrackFacts.h"
#include "delete/WorkingCopy.h"

#include <algorithm>
#include <cstddef>
#include <utility>

namespace songsweep {

namespace {

template <class List>
auto at(const List& list, std::size_t place) {
    return list.begin() + static_cast<std::ptrdiff_t>(place);
}

/// One look at all files; each step ends early, and the plan is worth nothing, once it is stopped.
class Survey {
  public:
    Survey(const SurveyedRows& rows, const SurveySources& sources, const std::function<bool()>& isStopped)
        : m_rows(rows)
        , m_sources(sources)
        , m_isStopped(isStopped)
        , m_keptIds(rows, sources.tracksOfId, isStopped)
        , m_entries(sources.files)
        , m_markedFiles(sources.files) {}

    void lookAtMarked() {
        for (const SurveyedRows::Track& track : m_rows.marked) {
            if (m_isStopped()) return;
            m_ids.add(track.pid);
            if (!stays(track)) m_entries.add(track);
            auto file = m_markedFiles.add(track, stays(track));
            if (m_keptIds.contains(track.pid))
                ++m_kept;
            else if (!file)
                ++m_missing;
            if (file) m_plan.files.emplace(track.record, std::move(*file));
        }
    }

    void lookAtOthers() {
        const LibraryLocations& locations = m_sources.locations;
        if (m_markedFiles.empty()) return;
        for (const SurveyedRows::Track& track : m_rows.marked)
            if (m_keptIds.contains(track.pid) && !lookAtOther(track.location.string())) return;
        for (const SurveyedRows::Other& row : m_rows.others) {
            const bool isDoomed = m_ids.contains(row.pid);
            if ((isDoomed || !locations) && !lookAtOther(row.location.string())) return;
        }
        if (locations && !locations([this](std::string_view pid, const std::string& path) {
                return m_entries.take(pid, path) ? !m_isStopped() : lookAtOther(path);
            }))
            shareAll();
    }

    /// Files that a track that stays uses come last, since they go only if the user says so.
    void askTheTrash() {
        if (m_sources.trash == nullptr) return;
        RefusedFiles refused(m_sources.files, *m_sources.trash);
        refused.leaveRoom(m_room);
        for (const bool isShared : {false, true})
            for (const SurveyedRows::Track& track : m_rows.marked) {
                if (m_isStopped()) return;
                const auto file = m_plan.files.find(track.record);
                if (m_plan.shared.contains(track.record) == isShared && goes(file, track))
                    file->second.refusal = refused.reasonFor(track.location);
            }
    }

    void askTheLibrary(DeleteConfirmationFacts& facts) {
        if (m_isStopped()) return;
        const Result<CleanupRoom> room = m_sources.libraryForesight(m_rows.sizeWithFiles());
        facts.libraryObstacle = room ? std::string() : room.error().message;
        if (room) m_room = room.value();
    }

    void lookAtCopiesThatStay(DeleteConfirmationFacts& facts) {
        std::size_t marked = 0;
        std::size_t other = 0;
        for (const SurveyedRows::Song& song : m_rows.songs) {
            const bool losesFile = anyFileGoes(marked, song.markedEnd);
            const bool isLost =
                losesFile ? !anyCopyStays(other, song.othersEnd) && !anyKeptCopy(marked, song.markedEnd)
                          : song.losesEveryCopy;
            if (losesFile && !isLost) m_plan.keptSongs.insert(song.gid);
            if (isLost) m_plan.lostSongs.insert(song.gid);
            if (isLost || losesSharedFiles(song, losesFile, other))
                m_plan.songsLostWithShared.insert(song.gid);
            marked = song.markedEnd;
            other = song.othersEnd;
        }
        facts.groupsLosingEveryFile = static_cast<int>(m_plan.lostSongs.size());
        facts.groupsLosingSharedFiles = static_cast<int>(m_plan.songsLostWithShared.size());
    }

    void count(DeleteConfirmationFacts& facts) const {
        facts.keptTracks = m_kept;
        facts.missingFiles = m_missing;
        facts.libraryUnknown = m_plan.libraryUnknown;
        if (!m_plan.libraryUnknown) m_markedFiles.count(m_plan, facts);
    }

    DeletePlan plan() && { return std::move(m_plan); }

  private:
    using PlannedFiles = std::unordered_map<const TrackRecord*, PlannedFile>;

    bool stays(const SurveyedRows::Track& track) const {
        return trackObstacle(track.pid) || m_keptIds.contains(track.pid);
    }

    bool goes(PlannedFiles::const_iterator file, const SurveyedRows::Track& track) const {
        return file != m_plan.files.end() && !file->second.obstacle && !stays(track);
    }

    bool anyFileGoes(std::size_t first, std::size_t end) const {
        return std::any_of(at(m_rows.marked, first), at(m_rows.marked, end),
                           [this](const SurveyedRows::Track& track) {
                               return goes(m_plan.files.find(track.record), track);
                           });
    }

    bool anyCopyStays(std::size_t first, std::size_t end) const {
        const auto stays = [this](const SurveyedRows::Other& copy) {
            return !m_isStopped() && isWorkingCopy(m_sources.files, copy.location);
        };
        return std::any_of(at(m_rows.others, first), at(m_rows.others, end), stays);
    }

    /// Whether a song loses all that is left of it once files go that its tracks share with marked ones. It
    /// may be one of which nothing is marked.
    bool losesSharedFiles(const SurveyedRows::Song& song, bool losesFile, std::size_t firstOther) const {
        if (m_plan.shared.empty() || m_plan.libraryUnknown) return false;
        bool touches = losesFile;
        for (std::size_t place = firstOther; place < song.othersEnd && !m_isStopped(); ++place) {
            const Text location = m_rows.others[place].location;
            const bool isShared = !m_markedFiles.filesAt(location.string()).empty();
            touches = touches || isShared;
            if (!isShared && isWorkingCopy(m_sources.files, location)) return false;
        }
        return touches;
    }

    bool anyKeptCopy(std::size_t first, std::size_t end) const {
        return std::any_of(at(m_rows.marked, first), at(m_rows.marked, end),
                           [this](const SurveyedRows::Track& copy) {
                               return m_keptIds.contains(copy.pid) && !m_isStopped() &&
                                      isWorkingCopy(m_sources.files, copy.location);
                           });
    }

    /// False where the survey is stopped.
    bool lookAtOther(const std::string& path) {
        if (m_isStopped()) return false;
        for (const MarkedFile* const file : m_markedFiles.filesAt(path))
            m_plan.shared.insert(file->tracks.begin(), file->tracks.end());
        return true;
    }

    void shareAll() {
        m_plan.libraryUnknown = true;
        for (const auto& [record, file] : m_plan.files)
            m_plan.shared.insert(record);
    }

    const SurveyedRows& m_rows;
    const SurveySources& m_sources;
    const std::function<bool()>& m_isStopped;
    KeptIds m_keptIds;
    MarkedIds m_ids;
    MarkedEntries m_entries;
    MarkedFiles m_markedFiles;
    DeletePlan m_plan;
    CleanupRoom m_room;
    int m_kept = 0;    // marked tracks that stay for their IDs
    int m_missing = 0; // files of the others
};

} // namespace

void DeletePlan::giveUpSharedFiles() {
    if (!libraryUnknown) shared.clear();
}

SurveyedRows::SurveyedRows(const std::vector<TrackRecord*>& rows, std::shared_ptr<const TrackStorage> kept,
                           const std::function<bool()>& isStopped)
    : storage(std::move(kept)) {
    for (const RowGroup group : groupsOf(rows)) {
        if (isStopped()) return;
        for (std::size_t row = group.first; row < group.end; ++row)
            add(*rows[row]);
        songs.push_back({marked.size(), others.size(), rows[group.first]->gid, losesEveryCopy(rows, group)});
    }
}

void SurveyedRows::add(const TrackRecord& record) {
    if (record.checkbox) {
        marked.push_back({&record, record.pid, record.location});
        for (const std::string_view text : {record.pid, record.name, record.artist})
            textBytes += text.size();
        pathBytes += std::string_view(record.location).size();
    }
    if (!record.checkbox || trackObstacle(record.pid)) others.push_back({record.pid, record.location});
}

std::optional<DeletePlan> surveyFiles(const SurveyedRows& rows, const SurveySources& sources,
                                      DeleteConfirmationFacts& facts,
                                      const std::function<bool()>& isStopped) {
    Survey survey(rows, sources, isStopped);
    survey.askTheLibrary(facts);
    survey.lookAtMarked();
    survey.lookAtOthers();
    survey.lookAtCopiesThatStay(facts);
    survey.askTheTrash();
    if (isStopped()) return std::nullopt;
    survey.count(facts);
    return std::move(survey).plan();
}

} // namespace songsweep
