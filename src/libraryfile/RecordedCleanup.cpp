// SPDX-License-Identifier: MIT
#include "libraryfile/RecordedCleanup.h"

#include "libraryfile/DatedName.h"
#include "libraryfile/FileNames.h"
#include "libraryfile/RecordLine.h"
#include "platform/SystemError.h"

#include <algorithm>
#include <array>
#include <fstream>

namespace songsweep {

namespace {

constexpr std::int64_t knownFormat = 1;

FileStamp stampIn(const RecordLine& line) {
    return {static_cast<std::uint64_t>(line.number("device")),
            static_cast<std::uint64_t>(line.number("inode")), static_cast<std::uint64_t>(line.number("size")),
            line.number("modified")};
}

RecordedTrack plannedTrack(const RecordLine& line) {
    return {line.text("persistentId"), line.number("trackId", -1), line.text("name"), line.text("artist"),
            line.text("path"),         line.text("kept"),          stampIn(line)};
}

RecordedPlaylist::Cut cutIn(const RecordLine& line) {
    return {static_cast<std::size_t>(line.number("entry")),
            static_cast<std::uint64_t>(line.number("at")),
            line.text("file"),
            line.text("bytes"),
            line.text("before"),
            line.text("after")};
}

/// Builds a clean-up from its lines.
class Reader {
  public:
    explicit Reader(std::string path) { m_cleanup.path = std::move(path); }

    /// False where the line cannot stand there.
    bool take(const RecordLine& line) {
        const std::string step = line.text("step");
        if (step == "begin") return takeHeading(line);
        if (!m_begun) return false;
        if (step == "plan") m_cleanup.tracks.push_back({plannedTrack(line), false, {}, {}});
        if (step == "merge") return takeMerge(line);
        if (step == "mergedValue") return takeMergedValue(line);
        if (step == "planned") m_cleanup.isPlanned = true;
        if (step == "writing") ++m_cleanup.writesBegun;
        if (step == "written") ++m_cleanup.writesDone;
        if (step == "backup") takeBackup(line);
        if (step == "trashing") return takeBegun(line);
        if (step == "trashed") return takePlace(line);
        if (step == "outcome") return takeOutcome(line);
        if (step == "playlist") takePlaylist(line);
        if (step == "cut") return takeCut(line);
        if (step == "rewritten") return takeRewritten(line);
        if (step == "end") m_cleanup.end = recordEndIn(line);
        return true;
    }

    bool hasBegun() const { return m_begun; }
    RecordedCleanup& cleanup() { return m_cleanup; }

  private:
    bool takeHeading(const RecordLine& line) {
        m_begun = !m_begun && line.number("format") == knownFormat;
        m_cleanup.heading = recordHeadingIn(line, folderOf(m_cleanup.path));
        return m_begun;
    }

    /// The other program may have given the tracks other IDs.
    void takeBackup(const RecordLine& line) {
        m_cleanup.heading.version = stampIn(line);
        for (RecordedCleanup::Track& track : m_cleanup.tracks)
            track.plan.trackId = -1;
    }

    bool takeMerge(const RecordLine& line) {
        m_cleanup.merges.push_back({line.text("keptId"),
                                    line.number("keptTrackId", -1),
                                    line.numbers("removed"),
                                    line.truth("places"),
                                    {}});
        return std::ranges::all_of(m_cleanup.merges.back().removed,
                                   [this](std::size_t track) { return track < m_cleanup.tracks.size(); });
    }

    bool takeMergedValue(const RecordLine& line) {
        const auto form = valueFormOf(line.text("form"));
        if (m_cleanup.merges.empty() || !form) return false;
        m_cleanup.merges.back().values.push_back(
            {line.text("before"), {line.text("key"), *form, line.text("after")}});
        return true;
    }

    bool takeBegun(const RecordLine& line) {
        for (const std::size_t track : line.numbers("tracks")) {
            if (track >= m_cleanup.tracks.size()) return false;
            m_cleanup.tracks[track].begun = true;
        }
        return true;
    }

    RecordedCleanup::Track* trackOf(const RecordLine& line) {
        const auto track = static_cast<std::uint64_t>(line.number("track", -1));
        return track < m_cleanup.tracks.size() ? &m_cleanup.tracks[track] : nullptr;
    }

    bool takePlace(const RecordLine& line) {
        RecordedCleanup::Track* track = trackOf(line);
        if (track != nullptr) track->trash = TrashedFile{line.text("folder"), line.text("name")};
        return track != nullptr;
    }

    bool takeOutcome(const RecordLine& line) {
        RecordedCleanup::Track* track = trackOf(line);
        if (track != nullptr) track->outcome = recordedOutcomeIn(line);
        return track != nullptr && track->outcome;
    }

    void takePlaylist(const RecordLine& line) {
        m_cleanup.playlists.push_back(
            {line.text("path"), static_cast<std::uint64_t>(line.number("hash")), {}, {}});
    }

    bool takeCut(const RecordLine& line) {
        if (m_cleanup.playlists.empty()) return false;
        m_cleanup.playlists.back().cuts.push_back(cutIn(line));
        return true;
    }

    bool takeRewritten(const RecordLine& line) {
        if (m_cleanup.playlists.empty()) return false;
        using State = RecordedPlaylist::State;
        m_cleanup.playlists.back().state = line.truth("done") ? State::rewritten : State::failed;
        return true;
    }

    RecordedCleanup m_cleanup;
    bool m_begun = false;
};

Error isNoRecord(const std::string& path, int line) {
    return {Error::Code::invalid, "line " + std::to_string(line) + " of " + path + " is no line of a record"};
}

} // namespace

Result<RecordedCleanup> RecordedCleanup::read(const std::string& path) {
    std::ifstream file(path, std::ios::binary);
    if (!file) return systemError(ENOENT, "open", path);
    Reader reader(path);
    std::string text;
    for (int number = 1; std::getline(file, text); ++number) {
        if (file.eof()) break; // It was cut off: no line feed stands behind it.
        const auto line = RecordLine::parse(text);
        if (!line || !reader.take(*line)) return isNoRecord(path, number);
    }
    if (!reader.hasBegun()) return isNoRecord(path, 1);
    return std::move(reader.cleanup());
}

std::string recordPathFor(const std::string& backup) { return withoutExtension(backup) + ".jsonl"; }

} // namespace songsweep
