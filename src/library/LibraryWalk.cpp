// SPDX-License-Identifier: MIT
#include "library/LibraryWalk.h"

#include "library/CaseFolding.h"
#include "library/PlaylistItems.h"
#include "library/Trim.h"
#include "platform/Log.h"

#include <utility>

namespace songsweep {

LibraryWalk::LibraryWalk(TrackList& list, PlaylistItems& songlist, const std::optional<std::string>& playlist,
                         Log& log, std::function<void(int)> onProgress)
    : m_list(list)
    , m_songlist(songlist)
    , m_log(log)
    , m_onProgress(std::move(onProgress))
    , m_filler(*list.storage) {
    if (playlist) m_playlist = lowercase(*playlist);
}

void LibraryWalk::openDict() {
    ++m_depth;
    if (m_depth == 2) {
        m_secondLevelSeen = true;
        m_isChosen = m_isMaster = false;
    }
    if (m_depth == 3 && m_section == Section::tracks) makeRecord();
}

void LibraryWalk::closeDict() {
    --m_depth;
    if (m_depth < 2 && m_secondLevelSeen && m_section == Section::tracks) m_section = Section::playlists;
}

void LibraryWalk::makeRecord() {
    m_currentRecord = &m_list.storage->makeRecord();
    m_list.records.push_back(m_currentRecord);
    ++m_trackCount;
    if (++m_progressCount < recordsPerProgress) return;
    m_onProgress(m_progressCount);
    m_progressCount = 0;
}

void LibraryWalk::readText(std::string_view text) {
    if (m_elementName == ElementName::none || m_section == Section::done) return;
    if (m_elementName == ElementName::key) {
        readKey(text);
        return;
    }
    if (m_section == Section::tracks) {
        if (!m_currentRecord || m_currentKey == LibraryKey::none || m_currentKey == LibraryKey::other) return;
        const std::string_view value = trimmed(text);
        if (!value.empty()) m_filler.store(*m_currentRecord, m_currentKey, value);
    } else if (m_depth == 2) {
        if (m_inPlaylists && m_currentKey == LibraryKey::name) readPlaylistName(trimmed(text));
    } else if (m_depth == 3) {
        if (!m_collecting || m_currentKey != LibraryKey::trackId) return;
        const std::string_view trackId = trimmed(text);
        if (!trackId.empty()) m_songlist.add(trackId);
    }
}

void LibraryWalk::readKey(std::string_view text) {
    m_currentKey = libraryKey(text);
    if (m_section != Section::playlists) return;
    if (m_depth == 2 && m_currentKey == LibraryKey::master) noteMaster();
    if (m_depth != 1) return;
    if (m_currentKey == LibraryKey::playlists) {
        m_inPlaylists = true;
        m_log.line("Playlists Begin");
    } else if (m_inPlaylists) {
        m_inPlaylists = false;
        m_section = Section::done;
        m_log.line("Playlists End");
    }
}

void LibraryWalk::readPlaylistName(std::string_view name) {
    m_collecting = !m_playlistFound && m_playlist && lowercase(name) == *m_playlist;
    if (m_collecting) m_playlistFound = m_isChosen = true;
    m_choseMaster |= m_isChosen && m_isMaster;
    m_log.line(m_collecting ? "Music Playlist Begin" : "Music Playlist End");
}

/// The key stands before the playlist's name or behind it.
void LibraryWalk::noteMaster() {
    m_isMaster = m_metMaster = true;
    m_choseMaster |= m_isChosen;
}

SearchCoverage::Playlist LibraryWalk::playlist() const {
    if (!m_playlistFound) return SearchCoverage::Playlist::none;
    return m_metMaster && !m_choseMaster ? SearchCoverage::Playlist::other : SearchCoverage::Playlist::chosen;
}

} // namespace songsweep
