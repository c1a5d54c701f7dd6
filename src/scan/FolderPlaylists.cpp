// SPDX-License-Identifier: MIT
#include "scan/FolderPlaylists.h"

#include "libraryfile/FileNames.h"
#include "platform/NameForms.h"
#include "scan/CleanText.h"
#include "scan/Hash64.h"
#include "scan/PlaylistFile.h"

#include <algorithm>
#include <optional>
#include <unordered_map>

namespace songsweep {

namespace {

constexpr std::uint64_t largestPlaylist = std::uint64_t{64} << 20;

/// Track IDs by path, whichever Unicode form the accents of a path have.
class TracksByPath {
  public:
    explicit TracksByPath(const std::vector<KnownFile>& tracks) {
        m_trackIds.reserve(tracks.size());
        for (const KnownFile& track : tracks)
            m_trackIds.emplace(composedForm(track.path), track.trackId);
    }

    std::optional<std::int64_t> find(const std::string& path) const {
        const auto found = m_trackIds.find(composedForm(path));
        return found == m_trackIds.end() ? std::nullopt : std::optional(found->second);
    }

  private:
    std::unordered_map<std::string, std::int64_t> m_trackIds;
};

Result<std::string> bytesOf(const std::string& path) {
    const Result<LibraryFile> file = LibraryFile::open(path);
    if (!file) return file.error();
    const std::uint64_t size = file.value().stamp().size;
    if (size > largestPlaylist) return Error{Error::Code::invalid, path + " is too large for a playlist"};
    return file.value().read({0, size});
}

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
        const Result<std::string> bytes = bytesOf(folder + "/" + file.path);
        if (!bytes) {
            if (bytes.error().code != Error::Code::notFound)
                unread.push_back({file.path, bytes.error().message});
            continue;
        }
        FolderPlaylist playlist = namedAfter(file.path);
        const PlaylistFormat format = playlistFormatOf(file.path).value_or(PlaylistFormat::m3u);
        for (const std::string& name : namesInPlaylist(bytes.value(), format))
            for (const std::string& path : meaningsOf(name, file.path, folder))
                if (const auto trackId = byPath.find(path)) {
                    playlist.trackIds.push_back(*trackId);
                    break;
                }
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
