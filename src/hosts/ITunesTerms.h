// SPDX-License-Identifier: MIT
#pragma once

#include "scripting/interpreter/Terminology.h"

namespace songsweep {

/// The properties that the embedded iTunes knows, of the application, its playlists and its tracks.
enum class ITunesProperty : interpreter::TermCode {
    name,
    version,
    index,
    smart,
    persistentId,
    artist,
    album,
    time,
    bitRate,
    size,
    dateAdded,
    rating,
    playedCount,
    location,
    genre,
    year,
    duration,
    albumArtist,
    composer,
    comment,
    kind,
    trackNumber,
    discNumber,
    enabled,
    playedDate,
    skippedCount,
    skippedDate,
    modificationDate,
    loved,
    albumRating,
    databaseId,
    id
};

enum class ITunesClass : interpreter::TermCode {
    source,
    playlist,
    userPlaylist,
    libraryPlaylist,
    track,
    artwork
};

enum class ITunesCommand : interpreter::TermCode { activate, play, stop, deleteObject, duplicate };

enum class ITunesParameter : interpreter::TermCode { to };

/// The words of the embedded iTunes.
interpreter::Terminology iTunesTerminology();

} // namespace songsweep
