// SPDX-License-Identifier: MIT
#include "libraryfile/ReadingRoads.h"

#include "library/ReaderFixture.h"
#include "library/XmlReader.h"
#include "libraryfile/LibraryDocument.h"

#include <fstream>
#include <sstream>

namespace songsweep::test {

namespace {

/// All that is known of a record.
std::vector<std::string> valuesOf(const TrackRecord& record) {
    const auto number = [](auto value) { return std::to_string(value); };
    return {record.name.string(),          record.artist.string(),    record.album.string(),
            record.time.string(),          record.bitrate.string(),   record.size.string(),
            record.pid.string(),           record.playcount.string(), record.location.string(),
            record.trackid.string(),       number(record.dateaddedv), number(record.timev),
            number(record.rating),         number(record.hasartwork), number(record.isfile),
            number(record.isdead),         number(record.hasdate),    number(record.tracknumber),
            number(record.fromlibraryfile)};
}

std::string shownEvent(const WorkerEvent& event) {
    std::string line = "> " + std::string(text(event.name));
    if (const auto* units = std::get_if<ProgressUnits>(&event.payload))
        line += " " + std::to_string(units->prg);
    return line;
}

/// A run on this thread, where events are handled as they are posted.
class Road {
  public:
    Road(const std::string& file, EventName cancelAt)
        : m_cancelAt(cancelAt) {
        m_preferences.domain = IAppsDomain{{"file://localhost" + file}};
    }

    RoadOutcome run(const OpenNodes& openNodes, const std::string& playlist, int tracks) {
        m_services.openNodes = openNodes;
        SWXMLParser parser(m_list, {.playlist = playlist}, tracks, 0, false, 5, 10, m_services);
        m_center.setObserver([&](const WorkerEvent& event) { handle(event, parser); });
        parser.main();
        for (std::string& line : m_outcome.trace)
            if (const std::size_t at = line.find(", time consumed: "); at != std::string::npos)
                line.resize(at);
        for (const TrackRecord* record : m_list->records)
            m_outcome.records.push_back(valuesOf(*record));
        m_outcome.scripts = std::move(m_scripts.sources);
        m_outcome.playlist = m_list->coverage.playlist;
        m_outcome.playlistTracks = m_list->coverage.playlistTracks;
        return std::move(m_outcome);
    }

  private:
    void handle(const WorkerEvent& event, SWXMLParser& parser) {
        if (const auto* error = std::get_if<std::shared_ptr<ReadError>>(&event.payload))
            m_outcome.errors.push_back(std::to_string((*error)->line) + ": " + (*error)->reason);
        else
            m_outcome.trace.push_back(shownEvent(event));
        // Behind a read error there is no end.
        if (event.name == EventName::readError || event.name == m_cancelAt) parser.cancel();
    }

    EventName m_cancelAt;
    RoadOutcome m_outcome;
    TraceLog m_log{m_outcome.trace};
    NotificationCenter<WorkerEvent> m_center;
    Files m_files;
    FixedPreferences m_preferences;
    CountingSleeper m_sleeper;
    ScriptAnswers m_scripts;
    ReaderServices m_services{m_center, m_scripts, m_files, m_preferences, m_sleeper, m_log};
    std::shared_ptr<TrackList> m_list = std::make_shared<TrackList>();
};

void describe(std::ostream& out, const LibraryIndex& index) {
    for (const TrackSlot& track : index.tracks)
        out << "track " << track.trackId << ' ' << track.persistentId << ' '
            << static_cast<int>(track.persistentIdKind) << '\n';
    for (const PlaylistSlot& playlist : index.playlists) {
        out << "playlist " << playlist.name << ' ' << playlist.persistentId << ' '
            << playlist.distinguishedKind << playlist.master << playlist.smart << playlist.folder
            << playlist.visible << static_cast<int>(playlist.container.form);
        for (const ItemSlot& item : playlist.items)
            out << ' ' << item.track;
        out << '\n';
    }
    out << static_cast<int>(index.trackContainer.form) << index.trackIdsRepeat;
}

} // namespace

std::string shown(const RoadOutcome& outcome) {
    std::string text;
    for (const auto* lines : {&outcome.trace, &outcome.errors, &outcome.scripts})
        for (const std::string& line : *lines)
            text += line + '\n';
    for (const auto& record : outcome.records) {
        for (const std::string& value : record)
            text += '[' + value + ']';
        text += '\n';
    }
    return text;
}

RoadOutcomes readByAllRoads(const std::string& file, const std::string& playlist, EventName cancelAt) {
    RoadOutcomes outcomes;
    auto opened = LibraryDocument::open(file, {.reading = LibraryDocument::Reading::indexAndTracks});
    if (!opened) return outcomes;
    LibraryDocument& document = *opened.value();
    outcomes.isLibrary = true;
    const OpenNodes byDocument = [&](const std::string& path) -> std::unique_ptr<NodeReader> {
        auto nodes = document.plainNodes(path);
        outcomes.isPlain = nodes != nullptr;
        return outcomes.isPlain ? std::move(nodes) : XmlReader::open(path);
    };
    const int tracks = document.trackCount();
    outcomes.parsed = Road(file, cancelAt).run(XmlReader::open, playlist, tracks);
    outcomes.fromTracks = Road(file, cancelAt).run(byDocument, playlist, tracks);
    outcomes.scanned = Road(file, cancelAt).run(byDocument, playlist, tracks);
    return outcomes;
}

std::string differenceOfIndexes(const std::string& file, const std::string& contents) {
    const auto indexOf = [&](const std::string& text) {
        std::ofstream(file, std::ios::binary) << text;
        return LibraryIndex::read(LibraryFile::open(file).value());
    };
    const auto inProperties = indexOf(contents);
    if (!inProperties || !inProperties.value().plain) return {};
    std::string tagByTag = contents;
    for (std::size_t at = 0; (at = tagByTag.find("<key>", at)) != std::string::npos; at += 5)
        tagByTag.replace(at, 5, "<key >");
    const auto byTags = indexOf(tagByTag);
    if (!byTags) return byTags.error().message;
    std::ostringstream expected;
    std::ostringstream found;
    describe(expected, byTags.value());
    describe(found, inProperties.value());
    return expected.str() == found.str() ? std::string() : found.str() + "\ninstead of\n" + expected.str();
}

} // namespace songsweep::test
