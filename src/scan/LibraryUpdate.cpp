// SPDX-License-Identifier: MIT
#include "scan/LibraryUpdate.h"

#include "scan/FolderPlaylists.h"
#include "scan/OrderedReading.h"
#include "scan/SoundFile.h"

#include <algorithm>
#include <chrono>
#include <thread>
#include <utility>

namespace songsweep {

namespace {

std::int64_t secondsNow() {
    using namespace std::chrono;
    return duration_cast<seconds>(system_clock::now().time_since_epoch()).count();
}

} // namespace

LibraryUpdate::LibraryUpdate(const FolderLibrary& place, const ScanWatch& watch, const LibraryFile& old,
                             ScanPlan& plan, const std::vector<KnownFile>& deleted, Writing writing)
    : m_place(place)
    , m_watch(watch)
    , m_old(old)
    , m_plan(plan)
    , m_now(secondsNow())
    , m_isChanged(writing == Writing::inAnyCase || plan.vanished.count() > 0) {
    for (const KnownFile& track : deleted)
        m_deleted.emplace(track.path, &track);
}

Result<std::optional<FolderMemory>> LibraryUpdate::run(ScanReport& report) {
    OrderedReading{.count = m_plan.toRead.size(),
                   .threads = std::max(1U, std::thread::hardware_concurrency()),
                   .read = [this](std::size_t number) { return read(number); },
                   .take = [&](std::size_t number,
                               Result<SoundFacts> facts) { return take(number, std::move(facts), report); }}
        .run();
    return finish(report);
}

Result<SoundFacts> LibraryUpdate::read(std::size_t number) const {
    const std::string& path = m_plan.steps[m_plan.toRead[number]].file.path;
    return readSoundFile(m_place.folder + "/" + path, path);
}

bool LibraryUpdate::take(std::size_t number, Result<SoundFacts> facts, ScanReport& report) {
    if (m_watch.isCancelled()) {
        report.end = ScanReport::End::cancelled;
        return false;
    }
    const std::size_t place = m_plan.toRead[number];
    if (!facts) {
        leave(m_plan.steps[place], facts.error(), report);
    } else if (m_state = begin(); m_state) {
        keepUpTo(place);
        write(m_plan.steps[place], facts.value(), report);
        m_next = place + 1;
    }
    m_watch.progress(number + 1, m_plan.toRead.size());
    return m_state.hasValue();
}

Result<void> LibraryUpdate::begin() {
    if (m_writer) return {};
    Result<NewFile> file = NewFile::createFor(m_place.library);
    if (!file) return file.error();
    m_writer.emplace(std::move(file).value(), m_place.folder);
    m_writer->begin(m_now);
    m_numbers.emplace(m_plan.known);
    m_memory.tracks.reserve(m_plan.steps.size());
    return {};
}

/// The known tracks of the steps before this one that were not written.
void LibraryUpdate::keepUpTo(std::size_t step) {
    for (; m_next < step; ++m_next)
        if (const std::size_t known = m_plan.steps[m_next].known; known != ScanStep::none)
            keep(m_plan.known[known]);
}

void LibraryUpdate::keep(KnownFile& track) {
    m_writer->keep(track, m_old);
    m_memory.tracks.push_back(std::move(track));
}

void LibraryUpdate::write(ScanStep& step, const SoundFacts& facts, ScanReport& report) {
    KnownFile track = trackOf(step, facts, report);
    track.path = std::move(step.file.path);
    track.size = facts.size;
    track.modificationNanoseconds = facts.modificationNanoseconds;
    track.duration = facts.duration;
    track.soundHash = facts.soundHash;
    m_writer->track(track, facts);
    m_memory.tracks.push_back(std::move(track));
}

/// The same track with its numbers and its date, if it was known here or under another path.
KnownFile LibraryUpdate::trackOf(const ScanStep& step, const SoundFacts& facts, ScanReport& report) {
    if (step.known != ScanStep::none) {
        ++report.changed;
        return std::move(m_plan.known[step.known]);
    }
    if (std::optional<KnownFile> moved = m_plan.vanished.takeMoved(facts, step.file.path)) {
        ++report.moved;
        return std::move(*moved);
    }
    ++report.added;
    return newTrack(step.file.path);
}

KnownFile LibraryUpdate::newTrack(const std::string& path) {
    const auto found = m_deleted.find(path);
    const KnownFile* const before = found == m_deleted.end() ? nullptr : found->second;
    KnownFile track;
    track.persistentId = before != nullptr && m_numbers->take(before->persistentId)
                             ? before->persistentId
                             : m_numbers->persistentId(path);
    track.trackId = m_numbers->trackId();
    track.dateAdded = before != nullptr ? before->dateAdded : m_now;
    return track;
}

void LibraryUpdate::leave(ScanStep& step, const Error& error, ScanReport& report) {
    if (error.code != Error::Code::notFound) {
        report.unread.push_back({step.file.path, error.message});
    } else if (step.known != ScanStep::none) {
        // It went away while the folder was read.
        ++report.vanished;
        step.known = ScanStep::none;
        m_isChanged = true;
    }
}

/// Files that were not come to may be those of tracks that seem to have gone.
void LibraryUpdate::keepWhatWasNotLookedAt(ScanReport& report) {
    for (const std::size_t number : m_plan.outOfSight)
        keep(m_plan.known[number]);
    if (report.end == ScanReport::End::cancelled)
        m_plan.vanished.takeAll([this](KnownFile& track) { keep(track); });
    report.vanished += m_plan.vanished.count();
}

Result<std::optional<FolderMemory>> LibraryUpdate::finish(ScanReport& report) {
    if (!m_state) return m_state.error();
    report.tracks = m_plan.known.size();
    if (!m_writer && !m_isChanged) return std::optional<FolderMemory>();
    if (const Result<void> begun = begin(); !begun) return begun.error();
    keepUpTo(m_plan.steps.size());
    keepWhatWasNotLookedAt(report);
    report.tracks = m_memory.tracks.size();
    const Result<FileStamp> stamp = m_writer->finish(
        m_memory.tracks, folderPlaylists(m_place.folder, m_plan.playlists, m_memory.tracks, report.unread));
    if (!stamp) return stamp.error();
    m_memory.library = stamp.value();
    m_memory.playlists = std::move(m_plan.playlists);
    m_memory.mounted = std::move(m_plan.mounted);
    return std::optional(std::move(m_memory));
}

} // namespace songsweep
