// SPDX-License-Identifier: MIT
#include "app/SearchVerdict.h"

#include "platform/Words.h"

#include <utility>

namespace songsweep {

namespace {

using Playlist = SearchCoverage::Playlist;

/// "2 of 12 tracks were searched: the library file has no playlist to choose"
std::string searchedTracks(int searched, const SearchScope& scope, const std::string& reason) {
    return filled(words("SearchVerdict", "%1 of %2 tracks were searched: %3"),
                  {numberText(searched), numberText(scope.libraryTracks), reason});
}

std::string withName(const char* text, const SearchScope& scope) {
    return filled(words("SearchVerdict", text), {scope.playlist.value_or("")});
}

std::string unlistedReason(const SearchScope& scope) {
    if (!scope.playlist) return words("SearchVerdict", "the library file has no playlist to choose");
    if (scope.playlist->empty())
        return words("SearchVerdict", "the library has no name by which it is found in its file");
    return withName(translatable("SearchVerdict", "the library file has no playlist named “%1”"), scope);
}

/// The library's playlist lists each track that iTunes has; a playlist of the user leaves out what it likes.
std::string leftOutReason(const SearchCoverage& coverage) {
    return countedWords("SearchVerdict", "the library's own playlist leaves out %1 tracks",
                        "the library's own playlist leaves out 1 track", coverage.leftOutTracks);
}

/// Why no track was compared though the playlist was found.
std::string nothingListedReason(const SearchScope& scope) {
    const bool isEmpty = scope.coverage.playlistTracks == 0;
    if (scope.isLibrary)
        return isEmpty ? words("SearchVerdict", "the library lists none")
                       : words("SearchVerdict", "none that the library lists is a file to be searched");
    if (isEmpty) return withName(translatable("SearchVerdict", "the playlist “%1” lists none"), scope);
    return withName(
        translatable("SearchVerdict", "none that the playlist “%1” lists is a file to be searched"), scope);
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
    if (!coverage.brokenOff.empty())
        failed(filled(words("SearchVerdict", "the search broke off: %1"), {coverage.brokenOff}));
    if (coverage.unreadTracks > 0)
        failed(filled(countedWords("SearchVerdict", "%1 tracks could not be read: %2",
                                   "1 track could not be read: %2", coverage.unreadTracks),
                      {coverage.unreadReason}));
    if (coverage.playlist == Playlist::none && scope.libraryTracks > 0)
        failed(searchedTracks(0, scope, unlistedReason(scope)));
    else if (isOther)
        failed(searchedTracks(
            scope.listedTracks, scope,
            withName(translatable("SearchVerdict",
                                  "the first playlist named “%1” in the library file is not the library"),
                     scope)));
    else if (scope.isLibrary && coverage.leftOutTracks > 0)
        failed(searchedTracks(scope.listedTracks, scope, leftOutReason(coverage)));
    if (verdict.isComplete && scope.listedTracks == 0 && scope.libraryTracks > 0)
        verdict.notes.push_back(searchedTracks(0, scope, nothingListedReason(scope)));
    return verdict;
}

} // namespace songsweep
