// SPDX-License-Identifier: MIT
#include "library/CaseFolding.h"
#include "library/FileLooks.h"
#include "library/LibraryWalk.h"
#include "library/LocationUrl.h"
#include "library/SWXMLParser.h"
#include "platform/Files.h"
#include "scripting/AppleScript.h"
#include "scripting/TextLiteral.h"

#include <algorithm>
#include <cstddef>
#include <exception>
#include <stdexcept>

namespace songsweep {

namespace {

/// So many files are looked at before the first of their records is handled.
constexpr std::ptrdiff_t recordsAtATime = 1000;

std::string locationScript(std::string_view pid) {
    std::string script = "tell application \"iTunes\" \n"
                         "set tlocation2 to location of (tracks whose persistent ID is \"";
    script += escapedWords(pid);
    script += "\") \n"
              "try \n"
              "set tlocation to POSIX path of tlocation2 \n"
              "on error \n"
              "set tlocation to tlocation2 \n"
              "end try \n"
              "{tlocation} \n"
              "end tell";
    return script;
}

/// Whether the answer has the locations of several tracks, which is no location.
bool isOfSeveralTracks(const Descriptor& answer) {
    const Descriptor* const locations = answer.descriptorAtIndex(1);
    return locations != nullptr && locations->numberOfItems() > 1;
}

} // namespace

void SWXMLParser::keepTracksOfPlaylist() {
    // The kept records gather at the list's end, so that the whole costs one pass.
    std::vector<TrackRecord*>& records = m_list->records;
    auto kept = records.end();
    FileLooks looks(m_services.files);
    for (auto end = records.end(); end != records.begin();) {
        const auto begin = end - std::min(recordsAtATime, end - records.begin());
        const Admitted admitted = admit({begin, end});
        const std::vector<char> isThere = looks.exist(admitted.paths);
        for (std::size_t i = 0; i < isThere.size(); ++i)
            if (keeps(*admitted.records[i], isThere[i] != 0)) *--kept = admitted.records[i];
        if (admitted.failure) std::rethrow_exception(admitted.failure);
        end = begin;
    }
    records.erase(records.begin(), kept);
}

/// The file tracks of the playlist among some records, from the last on, with their paths. What comes behind
/// a record without a path is not looked at: its turn comes when those before it had theirs.
SWXMLParser::Admitted SWXMLParser::admit(std::span<TrackRecord* const> records) {
    Admitted admitted;
    try {
        for (std::size_t left = records.size(); left > 0; --left) {
            TrackRecord* const record = records[left - 1];
            // The playlist is asked for every record: what it finds is used up.
            const bool isInPlaylist = isInMusicPlaylist(*record);
            if (record->isfile && !isInPlaylist) ++m_list->coverage.leftOutTracks;
            if (!record->isfile || !isInPlaylist) continue;
            if (!record->location.empty()) makePath(*record);
            admitted.records.push_back(record);
            admitted.paths.push_back(record->location.c_str());
        }
    } catch (...) {
        admitted.failure = std::current_exception();
    }
    return admitted;
}

bool SWXMLParser::keeps(TrackRecord& record, bool isThere) {
    if (!isThere) isThere = findFile(record);
    if (!isThere && !m_searchparams.isignoredead) record.isdead = true;
    if (++m_progressCount == LibraryWalk::recordsPerProgress) {
        post(EventName::progressx, ProgressUnits{m_progressCount});
        m_progressCount = 0;
    }
    return isThere || !m_searchparams.isignoredead;
}

bool SWXMLParser::findFile(TrackRecord& record) {
    refreshLocationApplescript(record);
    if (!m_searchparams.isignoredead) log(record.location);
    return !record.location.empty() && m_services.files.exists(record.location.c_str());
}

void SWXMLParser::makePath(TrackRecord& record) {
    const std::span<char> bytes = m_list->storage->bytes(record.location);
    const std::string_view url = record.location;
    const std::optional<std::size_t> length = makePathOfUrl(bytes);
    if (!length) throw std::runtime_error("the location of track " + record.trackid.string() + " is no URL");
    if (*length < url.size()) bytes[*length] = '\0';
}

bool SWXMLParser::isInMusicPlaylist(const TrackRecord& record) { return m_songlist.take(record.trackid); }

void SWXMLParser::refreshLocationApplescript(TrackRecord& record) {
    if (!canStandInText(record.pid)) return; // as where iTunes knows no such track
    if (!m_sharedIds.empty() && m_sharedIds.contains(record.pid.string())) return;
    try {
        const Result<Descriptor> result =
            m_services.scripts.executeAndReturnError(locationScript(record.pid));
        if (!result) return;
        if (isOfSeveralTracks(result.value())) m_sharedIds.insert(record.pid.string());
        const std::optional<std::string> location = result.value().stringValue();
        if (location && lowercase(*location) != "msng") record.location = m_list->storage->store(*location);
    } catch (const std::exception&) { // NOLINT(bugprone-empty-catch): the track keeps its location
    }
}

} // namespace songsweep
