// SPDX-License-Identifier: MIT
#include "scan/ScanPlan.h"

#include "library/ValueFormats.h"
#include "libraryfile/FileNames.h"
#include "scan/UnseenPaths.h"

#include <algorithm>
#include <iterator>
#include <map>
#include <string_view>
#include <unordered_set>
#include <utility>

namespace songsweep {

namespace {

/// Finds known tracks by their paths. Asked in the tracks' own order it needs no table.
class Lookup {
  public:
    explicit Lookup(const std::vector<KnownFile>& known)
        : m_known(known) {}

    std::size_t find(const std::string& path) {
        if (m_next < m_known.size() && m_known[m_next].path == path) return m_next++;
        if (m_byPath.empty())
            for (std::size_t i = 0; i < m_known.size(); ++i)
                m_byPath.emplace(m_known[i].path, i);
        const auto found = m_byPath.find(path);
        if (found == m_byPath.end()) return ScanStep::none;
        m_next = found->second + 1;
        return found->second;
    }

  private:
    const std::vector<KnownFile>& m_known;
    std::size_t m_next = 0;
    std::unordered_map<std::string_view, std::size_t> m_byPath;
};

bool isUnchanged(const FoundFile& file, const KnownFile& known) {
    return file.size == known.size && file.modificationNanoseconds == known.modificationNanoseconds;
}

/// The folders, "" the outermost, in which paths lie.
std::unordered_set<std::string> foldersAround(const std::vector<ScanStep>& steps) {
    std::unordered_set<std::string> folders;
    for (const ScanStep& step : steps) {
        if (step.known == ScanStep::none) continue;
        std::string path = step.file.path;
        do {
            const std::size_t slash = path.rfind('/');
            path.resize(slash == std::string::npos ? 0 : slash);
        } while (folders.insert(path).second && !path.empty());
    }
    return folders;
}

} // namespace

void VanishedTracks::add(KnownFile& track) { m_bySound.emplace(track.soundHash, &track); }

std::optional<KnownFile> VanishedTracks::takeMoved(const SoundFacts& facts, const std::string& path) {
    const auto [first, last] = m_bySound.equal_range(facts.soundHash);
    auto best = last;
    for (auto candidate = first; candidate != last; ++candidate) {
        const KnownFile& track = *candidate->second;
        if (track.size != facts.size || track.duration != facts.duration) continue;
        const bool hasName = nameOf(track.path) == nameOf(path);
        if (best == last || hasName) best = candidate;
        if (hasName) break;
    }
    if (best == last) return {};
    KnownFile track = std::move(*best->second);
    m_bySound.erase(best);
    return track;
}

ScanPlan::ScanPlan(const std::string& folder, std::vector<KnownFile> knownTracks, FolderContents contents,
                   const std::vector<MountedFolder>& mountedBefore)
    : known(std::move(knownTracks))
    , playlists(std::move(contents.playlists)) {
    takeSteps(contents.tracks);
    const std::unordered_set<std::string> found =
        mountedBefore.empty() ? std::unordered_set<std::string>() : foldersAround(steps);
    MountedFolders disks = MountedFolders::of(folder, mountedBefore, contents.mounted,
                                              [&](const std::string& path) { return found.contains(path); });
    mounted = std::move(disks.known);
    takeMissing(contents, disks.away);
}

void ScanPlan::takeSteps(std::vector<FoundFile>& files) {
    m_isThere.resize(known.size());
    Lookup lookup(known);
    steps.reserve(files.size());
    for (FoundFile& file : files) {
        const std::size_t number = lookup.find(file.path);
        if (number != ScanStep::none) m_isThere[number] = true;
        if (number == ScanStep::none || !isUnchanged(file, known[number])) toRead.push_back(steps.size());
        steps.push_back({std::move(file), number});
    }
}

/// A file that is not found where nobody could look is not gone.
void ScanPlan::takeMissing(const FolderContents& contents, const std::vector<std::string>& disksAway) {
    UnseenPaths unseen;
    for (const auto* const unread : {&contents.folders, &contents.files})
        for (const UnreadPath& each : *unread)
            unseen.add(each.path);
    UnseenPaths elsewhere;
    for (const auto* const paths : {&contents.deadLinks, &disksAway})
        for (const std::string& path : *paths)
            elsewhere.add(path);
    std::map<std::string, std::size_t> missing; // tracks by the disk or the link that is to lead to them
    for (std::size_t number = 0; number < known.size(); ++number) {
        if (m_isThere[number]) continue;
        const auto disk = elsewhere.around(known[number].path);
        if (disk) ++missing[*disk];
        if (disk || unseen.around(known[number].path)) {
            outOfSight.push_back(number);
        } else {
            vanished.add(known[number]);
        }
    }
    for (const auto& [path, count] : missing)
        away.push_back({path, "the disk that was here is not there now; " + counted(count, "track") +
                                  " of it stay" + (count == 1 ? "s" : "") + " in the library"});
}

} // namespace songsweep
