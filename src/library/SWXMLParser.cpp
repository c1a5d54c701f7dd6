// SPDX-License-Identifier: MIT
#include "library/SWXMLParser.h"

#include "library/LibraryWalk.h"
#include "library/NodeReader.h"
#include "library/ReadTracks.h"
#include "library/WorkerEvent.h"
#include "operations/NotificationCenter.h"
#include "platform/ExceptionReason.h"
#include "platform/Files.h"
#include "platform/Log.h"
#include "platform/Sleeper.h"

#include <algorithm>
#include <cstdio>
#include <utility>

namespace songsweep {

namespace {

/// Room for the tracks announced is made at once; an announcement beyond this may be an error.
constexpr std::int32_t mostRecordsReserved = 4'000'000;

/// The rest between two steps after a read error.
constexpr std::chrono::milliseconds restAfterReadError(10);

std::string asText(double seconds) {
    char buffer[64];
    return {buffer, static_cast<std::size_t>(std::snprintf(buffer, sizeof buffer, "%f", seconds))};
}

} // namespace

SWXMLParser::SWXMLParser(std::shared_ptr<TrackList> list, SearchParameters parameters,
                         std::int32_t trackCount, std::int64_t lastModified, bool hasDelete,
                         std::int32_t readDelay, std::int32_t readDelayMax, ReaderServices services)
    : m_list(std::move(list))
    , m_searchparams(std::move(parameters))
    , m_trueTrackCount(trackCount)
    , m_wait{hasDelete, lastModified, readDelay, readDelayMax}
    , m_services(std::move(services)) {}

SWXMLParser::SWXMLParser(ReaderServices services)
    : SWXMLParser(std::make_shared<TrackList>(), {}, 0, 0, false, 0, 0, std::move(services)) {}

void SWXMLParser::main() {
    try {
        read();
    } catch (...) {
        finish();
        throw;
    }
    finish();
}

void SWXMLParser::read() {
    log("XML Parsing");
    const LibraryFileFinder finder(m_services, *this);
    const std::optional<std::string> path = finder.locate();
    if (!path) return post(EventName::xmlErrorParsing);
    const std::optional<FileAttributes> attributes = finder.waitUntilRewritten(*path, m_wait);
    if (!attributes) return post(EventName::xmlErrorParsing);
    post(EventName::xmlModifiedDate, *attributes);

    const std::unique_ptr<NodeReader> reader = m_services.openNodes(finder.localPath(*path));
    if (!reader) return post(EventName::xmlErrorParsing);
    const Clock::time_point start = Clock::now();
    log("Begin Parse XML");
    if (parse(*reader)) process(start);
}

bool SWXMLParser::parse(NodeReader& reader) {
    try {
        return readTracks(reader);
    } catch (...) {
        fail(EventName::xmlErrorParsing, exceptionReason());
        return false;
    }
}

bool SWXMLParser::readTracks(NodeReader& reader) {
    m_list->records.reserve(static_cast<std::size_t>(std::clamp(m_trueTrackCount, 0, mostRecordsReserved)));
    LibraryWalk walk(*m_list, m_songlist, m_searchparams.playlist, m_services.log,
                     [this](int records) { post(EventName::progressx, ProgressUnits{records}); });
    if (const std::unique_ptr<ReadTracks> tracks = reader.takeTracks()) takeOver(*tracks, walk);
    if (!walkWhole(reader, walk)) return false;
    walk.finish();
    m_trackCount = walk.trackCount();
    m_list->coverage.playlist = walk.playlist();
    m_list->coverage.playlistTracks = static_cast<int>(m_songlist.count());
    m_list->storage->forgetInterned();
    log("End Parse XML");
    if (agreesWithITunes()) {
        post(EventName::xmlDoneParsing);
        return true;
    }
    m_list->records.clear();
    post(EventName::xmlErrorParsing);
    return false;
}

/// What the walk did before is told as if it were done now.
void SWXMLParser::takeOver(ReadTracks& tracks, LibraryWalk& walk) {
    *m_list->storage = std::move(*tracks.list.storage);
    m_list->records = std::move(tracks.list.records);
    walk.resume(tracks.walk);
    for (int told = LibraryWalk::recordsPerProgress; told <= walk.trackCount() && !isCancelled();
         told += LibraryWalk::recordsPerProgress)
        post(EventName::progressx, ProgressUnits{LibraryWalk::recordsPerProgress});
}

/// A track is deleted by its persistent ID: one that iTunes reads in another way would take another track.
bool SWXMLParser::agreesWithITunes() const {
    if (m_trackCount != m_trueTrackCount) {
        log("trackCount (" + std::to_string(m_trackCount) + ") != trueTrackCount (" +
            std::to_string(m_trueTrackCount) + ")");
        return false;
    }
    if (m_services.areTracksOfITunes(m_list->records)) return true;
    log("The persistent IDs are not those of iTunes");
    return false;
}

bool SWXMLParser::walkWhole(NodeReader& reader, LibraryWalk& walk) {
    XmlNode node;
    XmlProperty property;
    while (!isCancelled()) {
        if (reader.readProperty(property)) {
            walk.feed(property);
            continue;
        }
        if (!reader.read(node)) return true;
        walk.feed(node.type, node.name, node.value);
        if (!reader.error()) continue;
        // The walk ends by being cancelled alone, with nothing more to come.
        tellReadError(reader);
        m_services.sleeper.sleep(restAfterReadError);
    }
    return false;
}

void SWXMLParser::tellReadError(const NodeReader& reader) {
    if (std::exchange(m_readErrorTold, true)) return;
    post(EventName::readError, std::make_shared<ReadError>(*reader.error()));
}

void SWXMLParser::process(Clock::time_point start) {
    try {
        m_songlist.sort();
        log("Songs count in Music playlist Begin: " + std::to_string(m_songlist.count()));
        log("Begin Processing List");
        keepTracksOfPlaylist();
        log("End Processing List");
        log("Songs count in Music playlist End: " + std::to_string(m_songlist.count()));
        const std::chrono::duration<double> consumed = Clock::now() - start;
        log("Finish, track count: " + std::to_string(m_trackCount) + ", list count: " +
            std::to_string(m_list->records.size()) + ", time consumed: " + asText(consumed.count()));
        post(EventName::addFinish);
    } catch (...) {
        log("Exception occured");
        fail(EventName::xmlErrorProcessing, exceptionReason());
    }
}

void SWXMLParser::finish() {
    log("Begin XML Finally");
    m_songlist.clear();
    if (isCancelled()) {
        m_list->records.clear();
        post(EventName::addCancel);
    }
    log("End XML Finally");
}

void SWXMLParser::fail(EventName event, std::string_view reason) {
    log("Parse XML exception [reason] : " + std::string(reason));
    log("Parse XML exception [userInfo] : (null)");
    m_list->records.clear();
    post(event);
}

void SWXMLParser::post(EventName name, WorkerEventPayload payload) const {
    m_services.center.post({name, std::move(payload), this});
}

void SWXMLParser::log(std::string_view line) const { m_services.log.line(line); }

} // namespace songsweep
