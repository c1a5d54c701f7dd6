// SPDX-License-Identifier: MIT
#include "scan/FolderPlaylists.h"

#include "libraryfile/FileNames.h"
#include "platform/NameForms.h"
#include "scan/CleanText.h"
#include "scan/Hash64.h"
#include "scan/PlaylistContents.h"
#include "scan/PlaylistEntries.h"
#include "scan/PlaylistMeanings.h"

#include <algorithm>
#include <optional>
#include <unordered_map>

namespace songsweep {

namespace {

/// Track IDs by path, whichever Unicode form the accents of a path have.
class TracksByPath {
  public:
    explicit TracksByPath(const std::vector<KnownFile>& tracks) {
        m_trackIds.reserve(tracks.size());
        for (const KnownFile& track : tracks)
            m_trackIds.emplace(composedForm(track.path), track.trackId);
    }

    /// The first that the entry may mean.
    std::optional<std::int64_t> find(const PlaylistEntry& entry, const std::string& playlist,
                                     const std::string& folder) const {
        for (const std::string& name : entry.names)
            for (const std::string& path : meaningsOf(name, playlist, folder))
                if (const auto found = m_trackIds.find(composedForm(path)); found != m_trackIds.end())
                    return found->second;
        return {};
    }

  private:
    std::unordered_map<std::string, std::int64_t> m_trackIds;
};

/// The playlist of a file is called as the file is, without its ending.
FolderPlaylist namedAfter(const std::string& path) {
    const std::string name = nameOf(path);
    return {cleanText(name.substr(0, name.rfind('.'))), hash64(path), {}};
}

} // namespace

std::vector<FolderPlaylist> folderPlaylists(const std::string& folder, const std::vector<FoundFile>& files,
                                            const std::vector<KnownFile>& tracks,
                                            std::vector<UnreadPath>& unread) {
    if (files.empty()) return {};
    const TracksByPath byPath(tracks);
    std::vector<FolderPlaylist> playlists;
    for (const FoundFile& file : files) {
        const Result<PlaylistContents> contents = PlaylistContents::read(folder + "/" + file.path);
        if (!contents) {
            if (contents.error().code != Error::Code::notFound)
                unread.push_back({file.path, contents.error().message});
            continue;
        }
        FolderPlaylist playlist = namedAfter(file.path);
        const PlaylistFormat format = playlistFormatOf(file.path).value_or(PlaylistFormat::m3u);
        for (const PlaylistEntry& entry : entriesOfPlaylist(contents.value().bytes(), format))
            if (const auto trackId = byPath.find(entry, file.path, folder))
                playlist.trackIds.push_back(*trackId);
        playlists.push_back(std::move(playlist));
    }
    return playlists;
}

bool areSamePlaylists(const std::vector<FoundFile>& files, const std::vector<FoundFile>& known) {
    return std::equal(files.begin(), files.end(), known.begin(), known.end(),
                      [](const FoundFile& one, const FoundFile& other) {
                          return one.path == other.path && one.size == other.size &&
                                 one.modificationNanoseconds == other.modificationNanoseconds;
                      });
}

} // namespace songsweep
