// SPDX-License-Identifier: MIT
#include "scan/ScanPlan.h"

#include "libraryfile/FileNames.h"

#include <algorithm>
#include <iterator>
#include <string_view>
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

/// Whether a path lies in something that could not be looked at.
bool isOutOfSight(const std::string& path, const FolderContents& contents) {
    const auto leadsTo = [&](const UnreadPath& unread) {
        return unread.path.empty() || path == unread.path || path.starts_with(unread.path + "/");
    };
    return std::any_of(contents.folders.begin(), contents.folders.end(), leadsTo) ||
           std::any_of(contents.files.begin(), contents.files.end(), leadsTo);
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

ScanPlan::ScanPlan(std::vector<KnownFile> knownTracks, FolderContents contents)
    : known(std::move(knownTracks))
    , playlists(std::move(contents.playlists)) {
    std::vector<bool> isThere(known.size());
    Lookup lookup(known);
    steps.reserve(contents.tracks.size());
    for (FoundFile& file : contents.tracks) {
        const std::size_t number = lookup.find(file.path);
        if (number != ScanStep::none) isThere[number] = true;
        if (number == ScanStep::none || !isUnchanged(file, known[number])) toRead.push_back(steps.size());
        steps.push_back({std::move(file), number});
    }
    for (std::size_t number = 0; number < known.size(); ++number) {
        if (isThere[number]) continue;
        if (isOutOfSight(known[number].path, contents)) {
            outOfSight.push_back(number);
        } else {
            vanished.add(known[number]);
        }
    }
}

} // namespace songsweep
