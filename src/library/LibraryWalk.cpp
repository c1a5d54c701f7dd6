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
    ++m_state.depth;
    if (m_state.depth == 2) {
        m_state.secondLevelSeen = true;
        m_state.isChosen = m_state.isMaster = false;
    }
    if (m_state.depth == 3 && m_state.section == Section::tracks) makeRecord();
}

void LibraryWalk::closeDict() {
    --m_state.depth;
    if (m_state.depth < 2 && m_state.secondLevelSeen && m_state.section == Section::tracks)
        m_state.section = Section::playlists;
}

void LibraryWalk::makeRecord() {
    m_currentRecord = &m_list.storage->makeRecord();
    m_list.records.push_back(m_currentRecord);
    ++m_state.trackCount;
    if (++m_state.progressCount < recordsPerProgress) return;
    m_onProgress(m_state.progressCount);
    m_state.progressCount = 0;
}

void LibraryWalk::readText(std::string_view text) {
    if (m_state.elementName == ElementName::none || m_state.section == Section::done) return;
    if (m_state.elementName == ElementName::key)
        readKey(libraryKey(text));
    else
        readValue(text);
}

void LibraryWalk::readValue(std::string_view text) {
    if (m_state.section == Section::tracks) {
        if (!m_currentRecord || m_state.currentKey == LibraryKey::none ||
            m_state.currentKey == LibraryKey::other)
            return;
        const std::string_view value = trimmed(text);
        if (!value.empty()) m_filler.store(*m_currentRecord, m_state.currentKey, value);
    } else if (m_state.depth == 2) {
        if (m_state.inPlaylists && m_state.currentKey == LibraryKey::name) readPlaylistName(trimmed(text));
    } else if (m_state.depth == 3) {
        if (!m_state.collecting || m_state.currentKey != LibraryKey::trackId) return;
        const std::string_view trackId = trimmed(text);
        if (!trackId.empty()) m_songlist.add(trackId);
    }
}

void LibraryWalk::readKey(LibraryKey key) {
    m_state.currentKey = key;
    if (m_state.section != Section::playlists) return;
    if (m_state.depth == 2 && m_state.currentKey == LibraryKey::master) noteMaster();
    if (m_state.depth != 1) return;
    if (m_state.currentKey == LibraryKey::playlists) {
        m_state.inPlaylists = true;
        m_log.line("Playlists Begin");
    } else if (m_state.inPlaylists) {
        m_state.inPlaylists = false;
        m_state.section = Section::done;
        m_log.line("Playlists End");
    }
}

void LibraryWalk::readPlaylistName(std::string_view name) {
    m_state.collecting = !m_state.playlistFound && m_playlist && lowercase(name) == *m_playlist;
    if (m_state.collecting) m_state.playlistFound = m_state.isChosen = true;
    m_state.choseMaster |= m_state.isChosen && m_state.isMaster;
    m_log.line(m_state.collecting ? "Music Playlist Begin" : "Music Playlist End");
}

/// The key stands before the playlist's name or behind it.
void LibraryWalk::noteMaster() {
    m_state.isMaster = m_state.metMaster = true;
    m_state.choseMaster |= m_state.isChosen;
}

SearchCoverage::Playlist LibraryWalk::playlist() const {
    if (!m_state.playlistFound) return SearchCoverage::Playlist::none;
    return m_state.metMaster && !m_state.choseMaster ? SearchCoverage::Playlist::other
                                                     : SearchCoverage::Playlist::chosen;
}

} // namespace songsweep
