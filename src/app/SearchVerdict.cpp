// SPDX-License-Identifier: MIT
#include "app/SearchVerdict.h"

#include "library/ValueFormats.h"

#include <utility>

namespace songsweep {

namespace {

using Playlist = SearchCoverage::Playlist;

std::string searchedTracks(int searched, const SearchScope& scope) {
    return std::to_string(searched) + " of " + std::to_string(scope.libraryTracks) +
           " tracks were searched: ";
}

std::string quotedName(const SearchScope& scope) { return "“" + scope.playlist.value_or("") + "”"; }

std::string unlistedReason(const SearchScope& scope) {
    if (!scope.playlist) return "the library file has no playlist to choose";
    if (scope.playlist->empty()) return "the library has no name by which it is found in its file";
    return "the library file has no playlist named " + quotedName(scope);
}

/// The library's playlist lists each track that iTunes has; a playlist of the user leaves out what it likes.
std::string leftOutReason(const SearchCoverage& coverage) {
    return "the library's own playlist leaves out " +
           counted(static_cast<std::size_t>(coverage.leftOutTracks), "track");
}

/// Why no track was compared though the playlist was found.
std::string nothingListedReason(const SearchScope& scope) {
    const std::string playlist = scope.isLibrary ? "the library" : "the playlist " + quotedName(scope);
    if (scope.coverage.playlistTracks == 0) return playlist + " lists none";
    return "none that " + playlist + " lists is a file to be searched";
}

} // namespace

SearchVerdict SearchVerdict::of(const SearchScope& scope) {
    SearchVerdict verdict;
    const auto failed = [&](std::string note) {
        verdict.isComplete = false;
        verdict.notes.push_back(std::move(note));
    };
    const SearchCoverage& coverage = scope.coverage;
    const bool isOther = scope.isLibrary && coverage.playlist == Playlist::other;
    if (!coverage.brokenOff.empty()) failed("the search broke off: " + coverage.brokenOff);
    if (coverage.unreadTracks > 0)
        failed(counted(static_cast<std::size_t>(coverage.unreadTracks), "track") +
               " could not be read: " + coverage.unreadReason);
    if (coverage.playlist == Playlist::none && scope.libraryTracks > 0)
        failed(searchedTracks(0, scope) + unlistedReason(scope));
    else if (isOther)
        failed(searchedTracks(scope.listedTracks, scope) + "the first playlist named " + quotedName(scope) +
               " in the library file is not the library");
    else if (scope.isLibrary && coverage.leftOutTracks > 0)
        failed(searchedTracks(scope.listedTracks, scope) + leftOutReason(coverage));
    if (verdict.isComplete && scope.listedTracks == 0 && scope.libraryTracks > 0)
        verdict.notes.push_back(searchedTracks(0, scope) + nothingListedReason(scope));
    return verdict;
}

} // namespace songsweep
