// SPDX-License-Identifier: MIT
#include "hosts/ITunesTerms.h"

namespace songsweep {

namespace {

interpreter::PropertyTerm property(const char* name, ITunesProperty code) {
    return {name, static_cast<interpreter::TermCode>(code)};
}

interpreter::ClassTerm elements(const char* singular, const char* plural, ITunesClass code) {
    return {singular, plural, static_cast<interpreter::TermCode>(code)};
}

interpreter::CommandTerm command(const char* name, ITunesCommand code) {
    return {name, static_cast<interpreter::TermCode>(code), {}};
}

} // namespace

interpreter::Terminology iTunesTerminology() {
    return {{property("name", ITunesProperty::name),
             property("version", ITunesProperty::version),
             property("index", ITunesProperty::index),
             property("smart", ITunesProperty::smart),
             property("persistent ID", ITunesProperty::persistentId),
             property("artist", ITunesProperty::artist),
             property("album", ITunesProperty::album),
             property("time", ITunesProperty::time),
             property("bit rate", ITunesProperty::bitRate),
             property("size", ITunesProperty::size),
             property("date added", ITunesProperty::dateAdded),
             property("rating", ITunesProperty::rating),
             property("played count", ITunesProperty::playedCount),
             property("location", ITunesProperty::location),
             property("genre", ITunesProperty::genre),
             property("year", ITunesProperty::year),
             property("duration", ITunesProperty::duration),
             property("album artist", ITunesProperty::albumArtist),
             property("composer", ITunesProperty::composer),
             property("comment", ITunesProperty::comment),
             property("kind", ITunesProperty::kind),
             property("track number", ITunesProperty::trackNumber),
             property("disc number", ITunesProperty::discNumber),
             property("enabled", ITunesProperty::enabled),
             property("played date", ITunesProperty::playedDate),
             property("skipped count", ITunesProperty::skippedCount),
             property("skipped date", ITunesProperty::skippedDate),
             property("modification date", ITunesProperty::modificationDate),
             property("loved", ITunesProperty::loved),
             property("album rating", ITunesProperty::albumRating),
             property("database ID", ITunesProperty::databaseId),
             property("id", ITunesProperty::id)},
            {elements("source", "sources", ITunesClass::source),
             elements("playlist", "playlists", ITunesClass::playlist),
             elements("user playlist", "user playlists", ITunesClass::userPlaylist),
             elements("library playlist", "library playlists", ITunesClass::libraryPlaylist),
             elements("track", "tracks", ITunesClass::track),
             elements("file track", "file tracks", ITunesClass::track),
             elements("artwork", "artworks", ITunesClass::artwork)},
            {command("activate", ITunesCommand::activate),
             command("play", ITunesCommand::play),
             command("stop", ITunesCommand::stop),
             command("delete", ITunesCommand::deleteObject),
             {"duplicate",
              static_cast<interpreter::TermCode>(ITunesCommand::duplicate),
              {{"to", static_cast<interpreter::TermCode>(ITunesParameter::to)}}}}};
}

} // namespace songsweep
