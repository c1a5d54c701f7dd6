// SPDX-License-Identifier: MIT
#include "restore/FileReturn.h"

#include "libraryfile/FileNames.h"
#include "libraryfile/LibraryFile.h"

#include <fcntl.h>
#include <unistd.h>

#include <chrono>
#include <ctime>
#include <filesystem>
#include <string_view>
#include <unordered_map>
#include <unordered_set>

namespace songsweep {

namespace {

namespace fs = std::filesystem;
using Fate = FileReturn::Fate;

bool isThere(const std::string& path) {
    std::error_code error;
    return fs::exists(fs::symlink_status(path, error));
}

/// Whether it can be told if there is a file: not behind a folder that is closed to this user.
bool canBeLookedAt(const std::string& path) {
    std::error_code error;
    return fs::symlink_status(path, error).type() != fs::file_type::none;
}

/// Devices may have other numbers after a restart. A link in the Trash leads elsewhere, and counts as itself.
bool isThatFile(const std::string& path, const FileStamp& planned) {
    std::error_code error;
    if (fs::is_symlink(fs::symlink_status(path, error))) return true;
    const Result<FileStamp> stamp = LibraryFile::stampOf(path);
    return stamp && stamp.value().inode == planned.inode && stamp.value().size == planned.size &&
           stamp.value().modificationNanoseconds == planned.modificationNanoseconds;
}

std::chrono::system_clock::time_point timeOf(const std::string& date) {
    std::tm utc{};
    if (::strptime(date.c_str(), "%Y-%m-%dT%H:%M:%SZ", &utc) == nullptr) return {};
    return std::chrono::system_clock::from_time_t(::timegm(&utc));
}

/// One look at a time over the tracks of one clean-up.
class Look {
  public:
    Look(const RecordedCleanup& cleanup, Trash& trash)
        : m_begin(timeOf(cleanup.heading.date))
        , m_trash(trash) {}

    FileReturn at(const RecordedCleanup::Track& track) {
        const std::string& path = track.plan.path;
        if (path.empty() || (!track.trash && !wasUnderWay(track))) return {};
        if (!m_seen.insert(path).second) return {};
        if (isThere(path) && isThatFile(path, track.plan.file))
            return {Fate::isThere, track.trash.value_or(TrashedFile())};
        if (track.trash && !canBeLookedAt(track.trash->path())) return {Fate::isUnknown, *track.trash};
        const std::optional<TrashedFile> place = placeOf(track);
        if (!place) return {isThere(path) && !track.trash ? Fate::none : Fate::isGone, {}};
        if (isThere(path)) return {Fate::isOccupied, *place};
        return {letsIn(folderOf(path)) ? Fate::comesBack : Fate::isShutOut, *place};
    }

  private:
    /// By the next folder above that is there, in which missing ones would be made.
    bool letsIn(const std::string& folder) {
        const auto [known, isNew] = m_folders.try_emplace(folder);
        if (isNew) {
            std::string present = folder;
            while (present != "/" && present != "." && !isThere(present))
                present = folderOf(present);
            known->second = ::faccessat(AT_FDCWD, present.c_str(), W_OK | X_OK, AT_EACCESS) == 0;
        }
        return known->second;
    }

    /// Nothing tells whether it went: the program was killed meanwhile.
    static bool wasUnderWay(const RecordedCleanup::Track& track) { return track.begun && !track.outcome; }

    std::optional<TrashedFile> placeOf(const RecordedCleanup::Track& track) {
        if (!track.trash) return m_trash.findInTrash(track.plan.path, m_begin);
        const TrashedFile& place = *track.trash;
        if (isThere(place.path()) && isThatFile(place.path(), track.plan.file)) return place;
        return std::nullopt;
    }

    std::chrono::system_clock::time_point m_begin;
    Trash& m_trash;
    std::unordered_set<std::string_view> m_seen;
    std::unordered_map<std::string, bool> m_folders;
};

} // namespace

std::vector<FileReturn> lookForFiles(const RecordedCleanup& cleanup, Trash& trash) {
    Look look(cleanup, trash);
    std::vector<FileReturn> files;
    files.reserve(cleanup.tracks.size());
    for (const RecordedCleanup::Track& track : cleanup.tracks)
        files.push_back(look.at(track));
    return files;
}

} // namespace songsweep
