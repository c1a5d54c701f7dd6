// SPDX-License-Identifier: MIT
#include "restore/RemainingFiles.h"

#include "libraryfile/LibraryDocument.h"
#include "platform/Files.h"
#include "platform/LocalName.h"
#include "restore/FileReturn.h"

#include <algorithm>
#include <filesystem>
#include <set>
#include <unordered_map>
#include <utility>

namespace songsweep {

namespace {

using Outcome = RecordedOutcome;

bool isLinkToNothing(const std::string& path) {
    std::error_code error;
    return std::filesystem::is_symlink(path, error) && !std::filesystem::exists(path, error);
}

/// One look over the tracks of one clean-up.
class Look {
  public:
    Look(const RecordedCleanup& cleanup, LibraryDocument& library, Trash& trash)
        : m_cleanup(cleanup)
        , m_library(library)
        , m_returns(lookForFiles(cleanup, trash)) {
        m_found.tracks = cleanup.tracks;
    }

    RemainingFiles run() && {
        for (std::size_t track = 0; track < m_found.tracks.size(); ++track)
            if (!m_found.tracks[track].outcome) m_found.tracks[track].outcome = outcomeOf(track);
        return std::move(m_found);
    }

  private:
    Outcome outcomeOf(std::size_t number) {
        RecordedCleanup::Track& track = m_found.tracks[number];
        // What others deleted before this program wrote anything is not this clean-up's.
        if (m_cleanup.writesBegun == 0) return {Outcome::Track::notAttempted, Outcome::File::notAsked, {}};
        if (!m_library.tracksWithPersistentId(track.plan.persistentId).empty())
            return {Outcome::Track::notAttempted, Outcome::File::notAsked, "it is still in the library"};
        Outcome outcome{Outcome::Track::deleted, Outcome::File::notAsked, track.plan.kept};
        if (!track.plan.kept.empty())
            outcome.file = Outcome::File::kept;
        else if (track.plan.path.empty())
            outcome.file = m_cleanup.heading.withFiles ? Outcome::File::missing : Outcome::File::notAsked;
        else
            lookAtFile(number, outcome);
        return outcome;
    }

    void lookAtFile(std::size_t number, Outcome& outcome) {
        RecordedCleanup::Track& track = m_found.tracks[number];
        const FileReturn& back = m_returns[number];
        if (!track.trash && !back.place.name.empty() && back.fate != FileReturn::Fate::isThere)
            track.trash = back.place;
        const std::string& path = track.plan.path;
        const auto [file, isNew] = m_places.try_emplace(path, number);
        if (!isNew && !track.trash) track.trash = m_found.tracks[file->second].trash;
        if (track.trash) {
            outcome.file = Outcome::File::trashed;
        } else if (!isNameTaken(path)) {
            outcome.file = Outcome::File::missing;
        } else if (isAsPlanned(path, track.plan.file)) {
            outcome.file = Outcome::File::trashed;
            addFile(path, number);
        } else {
            outcome.file = Outcome::File::kept;
            outcome.reason = "it is not the file any more that it was";
        }
    }

    void addFile(const std::string& path, std::size_t number) {
        const auto [file, isNew] = m_filePlaces.try_emplace(path, m_found.files.size());
        if (isNew) m_found.files.push_back({path, {}});
        m_found.files[file->second].tracks.push_back(number);
    }

    const RecordedCleanup& m_cleanup;
    LibraryDocument& m_library;
    std::vector<FileReturn> m_returns;
    std::unordered_map<std::string, std::size_t> m_places;     ///< first track of each path
    std::unordered_map<std::string, std::size_t> m_filePlaces; ///< in the list of files
    RemainingFiles m_found;
};

/// Files that agree in device and inode are taken for one, which only keeps.
using Identity = std::pair<std::uint64_t, std::uint64_t>;

Result<std::set<Identity>> filesInUse(LibraryDocument& library, const Files& files) {
    std::set<Identity> used;
    const auto looked = library.locations().run([&](std::string_view, const std::string& path) {
        if (const auto file = files.attributes(path)) used.insert({file->device, file->inode});
        return true;
    });
    if (!looked) return looked.error();
    return used;
}

Result<void> keepFilesInUse(RemainingFiles& found, LibraryDocument& library, const Files& files) {
    if (found.files.empty()) return {};
    const auto used = filesInUse(library, files);
    if (!used) return used.error();
    const Error inUse{Error::Code::busy, "a track of the library uses it"};
    std::erase_if(found.files, [&](const RemainingFiles::File& file) {
        const auto stamp = LibraryFile::stampOf(file.path);
        const bool isUsed = stamp && used.value().contains({stamp.value().device, stamp.value().inode});
        if (isUsed) found.settle(file, inUse);
        return isUsed;
    });
    return {};
}

} // namespace

void RemainingFiles::settle(const File& file, const Result<TrashedFile>& fate) {
    for (const std::size_t number : file.tracks) {
        RecordedCleanup::Track& track = tracks[number];
        track.outcome->file = fate ? Outcome::File::trashed : Outcome::File::kept;
        track.outcome->reason = fate ? std::string() : fate.error().message;
        if (fate) track.trash = fate.value();
    }
}

bool isAsPlanned(const std::string& path, const FileStamp& planned) {
    const auto stamp = LibraryFile::stampOf(path);
    if (!stamp) return isLinkToNothing(path);
    // Devices may have other numbers after a restart.
    return stamp.value().inode == planned.inode && stamp.value().size == planned.size &&
           stamp.value().modificationNanoseconds == planned.modificationNanoseconds;
}

Result<RemainingFiles> lookForRemainingFiles(const RecordedCleanup& cleanup, LibraryDocument& library,
                                             const Files& files, Trash& trash) {
    RemainingFiles found = Look(cleanup, library, trash).run();
    if (auto kept = keepFilesInUse(found, library, files); !kept) return kept.error();
    return found;
}

} // namespace songsweep
