// SPDX-License-Identifier: MIT
#include "support/SystemTexts.h"

namespace songsweep::test {

std::string playlistIndexText(const std::string& name) {
    return "tell application \"iTunes\" \nset tresult to -1 \nset tcount to count of playlist \nrepeat with "
           "i from 1 "
           "to tcount \nset tname to name of playlist [i] \nif tname = \"" +
           name + "\" then \nset tresult to i \nexit repeat \nend if \nend repeat \n{tresult} \nend tell";
}

std::string playlistTrackCountText(int playlist) {
    return "tell application \"iTunes\" to get count of tracks of playlist " + std::to_string(playlist);
}

std::string batchText(int playlist, int first, int last) {
    return "tell application \"iTunes\" \nset tindex to " + std::to_string(playlist) +
           " \nset itunes_records to {} \nrepeat with i from " + std::to_string(first) + " to " +
           std::to_string(last) +
           " \nset tname to name of track i of playlist tindex"
           " \nset tartist to artist of track i of playlist tindex"
           " \nset talbum to album of track i of playlist tindex"
           " \nset ttime to time of track i of playlist tindex"
           " \nset tbitrate to bit rate of track i of playlist tindex"
           " \nset tsize to size of track i of playlist tindex"
           " \nset tdateadded to date added of track i of playlist tindex"
           " \nset trating to rating of track i of playlist tindex"
           " \nset tpid to persistent ID of track i of playlist tindex"
           " \nset tplaycount to played count of track i of playlist tindex"
           " \nset tlocation2 to location of (tracks whose persistent ID is tpid)"
           " \ntry \nset tlocation to POSIX path of tlocation2 \non error \nset tlocation to tlocation2 "
           "\nend try"
           " \nset tartworks to {} \ntry \nset tartworks to artworks of track i of playlist tindex \nend try"
           " \nset end of itunes_records to {tname, tartist, talbum, ttime, tbitrate, tsize, tdateadded, "
           "trating,"
           " tpid, tplaycount, tlocation, tartworks} \nend repeat \n{itunes_records} \nend tell \n";
}

std::string locationText(const std::string& persistentId) {
    return "tell application \"iTunes\" \nset tlocation2 to location of (tracks whose persistent ID is \"" +
           persistentId +
           "\") \ntry \nset tlocation to POSIX path of tlocation2 \non error \nset tlocation to tlocation2 "
           "\nend try "
           "\n{tlocation} \nend tell";
}

std::string playText(const std::string& hfsPath) {
    return "tell application \"iTunes\" \nplay \"" + hfsPath + "\" \nend tell";
}

std::string deleteTrackText(const std::string& persistentId) {
    return "tell application \"iTunes\" to delete (tracks whose persistent ID is \"" + persistentId + "\")";
}

std::string deleteFileText(const std::string& hfsPath) {
    return "tell application \"Finder\" \nset file_to_delete to alias \"" + hfsPath +
           "\" \nset locked of file_to_delete to false \ndelete file_to_delete \nend tell";
}

std::vector<std::string> allTexts() {
    return {userPlaylistNamesText,
            plainPlaylistNamesText,
            trackCountText,
            versionText,
            stopText,
            muteText,
            unmuteText,
            playlistIndexText("Rock"),
            playlistTrackCountText(1),
            batchText(1, 1, 3),
            locationText("00A1"),
            playText("Macintosh HD:a.mp3"),
            deleteTrackText("00A1"),
            deleteFileText("Macintosh HD:a.mp3")};
}

} // namespace songsweep::test
