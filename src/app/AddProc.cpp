// SPDX-License-Identifier: MIT
#include "app/AddProc.h"

#include "app/AddRecord.h"
#include "library/ValueFormats.h"
#include "library/WorkerEvent.h"
#include "operations/NotificationCenter.h"
#include "platform/ExceptionReason.h"
#include "platform/Log.h"
#include "scripting/AppleScript.h"

#include <algorithm>
#include <exception>
#include <utility>

namespace songsweep {

namespace {

/// Tracks that one script asks for.
constexpr std::int32_t batchSize = 50;

/// Scripts that fail one after the other before iTunes counts as gone, and no batch is divided any longer.
/// One bad track makes six of them fail at most.
constexpr int mostFailuresInARow = 16;

/// The reason without its place in the script, which tells nothing of the library.
std::string withoutPosition(const std::string& message) {
    const bool hasPosition = message.starts_with("line ") && message.find(", column ") < message.find(": ");
    return hasPosition ? message.substr(message.find(": ") + 2) : message;
}

} // namespace

std::string batchScript(std::int32_t musicInt, std::int32_t first, std::int32_t last) {
    return "tell application \"iTunes\" \nset tindex to " + std::to_string(musicInt) +
           " \nset itunes_records to {} \nrepeat with i from " + std::to_string(first) + " to " +
           std::to_string(last) +
           " \nset tname to name of track i of playlist tindex "
           "\nset tartist to artist of track i of playlist tindex "
           "\nset talbum to album of track i of playlist tindex "
           "\nset ttime to time of track i of playlist tindex "
           "\nset tbitrate to bit rate of track i of playlist tindex "
           "\nset tsize to size of track i of playlist tindex "
           "\nset tdateadded to date added of track i of playlist tindex "
           "\nset trating to rating of track i of playlist tindex "
           "\nset tpid to persistent ID of track i of playlist tindex "
           "\nset tplaycount to played count of track i of playlist tindex "
           "\nset tlocation2 to location of (tracks whose persistent ID is tpid) "
           "\ntry \nset tlocation to POSIX path of tlocation2 \non error \nset tlocation to tlocation2 \nend "
           "try "
           "\nset tartworks to {} \ntry \nset tartworks to artworks of track i of playlist tindex \nend try "
           "\nset end of itunes_records to {tname, tartist, talbum, ttime, tbitrate, tsize, tdateadded, "
           "trating, "
           "tpid, tplaycount, tlocation, tartworks} \nend repeat \n{itunes_records} \nend tell \n";
}

AddProc::AddProc(std::shared_ptr<TrackList> list, SearchParameters parameters, std::int32_t musicInt,
                 ReaderServices services)
    : m_list(std::move(list))
    , m_searchparams(std::move(parameters))
    , m_musicInt(musicInt)
    , m_services(std::move(services)) {}

void AddProc::main() {
    m_services.log.line("Applescript Parsing");
    m_list->coverage = {};
    std::exception_ptr failure;
    try {
        readPlaylist();
    } catch (...) {
        m_list->coverage.brokenOff = exceptionReason();
        failure = std::current_exception();
    }
    m_list->storage->forgetInterned();
    postEnd();
    if (failure) std::rethrow_exception(failure);
}

void AddProc::readPlaylist() {
    std::int32_t remaining = trackCount();
    for (std::int32_t first = 1; remaining >= 1 && !isCancelled(); first += batchSize) {
        const std::int32_t count = std::min(batchSize, remaining);
        remaining -= count;
        if (!readBatch(first, first + count - 1)) return;
        m_services.center.post({EventName::progressx, ProgressUnits{count}, this});
    }
}

std::int32_t AddProc::trackCount() {
    const auto result = m_services.scripts.executeAndReturnError(
        "tell application \"iTunes\" to get count of tracks of playlist " + std::to_string(m_musicInt));
    if (!result) m_list->coverage.brokenOff = withoutPosition(result.error().message);
    const std::int32_t count = result ? integerValue(result.value().stringValue().value_or("")) : 0;
    m_list->coverage.playlistTracks = count;
    m_services.log.line(std::to_string(count));
    return count;
}

/// False when the operation was cancelled meanwhile.
bool AddProc::readBatch(std::int32_t first, std::int32_t last) {
    const auto result = m_services.scripts.executeAndReturnError(batchScript(m_musicInt, first, last));
    const Descriptor* const tracks = result ? result.value().descriptorAtIndex(1) : nullptr;
    if (!tracks) return readHalves(first, last, result ? "no list came back" : result.error().message);
    m_failuresInARow = 0;
    for (std::int32_t i = 1; i <= last - first + 1; ++i) {
        if (isCancelled()) return false;
        const Descriptor* const item = tracks->descriptorAtIndex(i);
        if (!item)
            noteUnread(1, "iTunes gave fewer tracks than it was asked for");
        else if (!m_searchparams.isignoredead || !isDeadTrackItem(*item))
            m_list->records.push_back(&makeRecord(*m_list->storage, *item));
    }
    return true;
}

/// What is left of a batch that failed. False when the operation was cancelled meanwhile.
bool AddProc::readHalves(std::int32_t first, std::int32_t last, const std::string& reason) {
    if (isCancelled()) return false;
    const bool divides = first < last && ++m_failuresInARow <= mostFailuresInARow;
    if (divides) {
        const std::int32_t middle = first + (last - first) / 2;
        return readBatch(first, middle) && readBatch(middle + 1, last);
    }
    m_services.log.line("Tracks " + std::to_string(first) + " to " + std::to_string(last) +
                        " could not be read: " + reason);
    noteUnread(last - first + 1, reason);
    return true;
}

void AddProc::noteUnread(int tracks, const std::string& reason) {
    SearchCoverage& coverage = m_list->coverage;
    if (coverage.unreadTracks == 0) coverage.unreadReason = withoutPosition(reason);
    coverage.unreadTracks += tracks;
}

void AddProc::postEnd() {
    if (isCancelled()) {
        m_list->records.clear();
        m_services.center.post({EventName::addCancel, {}, this});
    } else {
        m_services.center.post({EventName::addFinish, {}, this});
    }
}

} // namespace songsweep
