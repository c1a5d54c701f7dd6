// SPDX-License-Identifier: MIT
#include "app/EmbeddedCleanup.h"

#include "delete/DeleteReport.h"
#include "hosts/EmbeddedScripting.h"

#include <utility>

namespace songsweep {

namespace {

RecordedOutcome::Track recordedTrack(DeleteOutcome::Track track) {
    switch (track) {
    case DeleteOutcome::Track::deleted:
        return RecordedOutcome::Track::deleted;
    case DeleteOutcome::Track::failed:
        return RecordedOutcome::Track::failed;
    case DeleteOutcome::Track::notAttempted:
        break;
    }
    return RecordedOutcome::Track::notAttempted;
}

RecordedOutcome::File recordedFile(DeleteOutcome::File file) {
    switch (file) {
    case DeleteOutcome::File::trashed:
        return RecordedOutcome::File::trashed;
    case DeleteOutcome::File::missing:
        return RecordedOutcome::File::missing;
    case DeleteOutcome::File::kept:
        return RecordedOutcome::File::kept;
    case DeleteOutcome::File::notAsked:
        break;
    }
    return RecordedOutcome::File::notAsked;
}

std::vector<RecordedOutcome> recordedOutcomes(const DeleteReport& report) {
    std::vector<RecordedOutcome> outcomes;
    outcomes.reserve(report.outcomes.size());
    for (const DeleteOutcome& outcome : report.outcomes)
        outcomes.push_back({recordedTrack(outcome.track), recordedFile(outcome.file), outcome.reason});
    return outcomes;
}

} // namespace

Result<void> EmbeddedCleanup::lock() {
    if (!m_isEmbedded()) return {};
    return withPath(
        m_scripts.withCleanup([&](LibraryCleanup& cleanup) { return cleanup.lock(m_identity.request); }));
}

void EmbeddedCleanup::unlock() {
    m_scripts.withCleanup([](LibraryCleanup& cleanup) { cleanup.unlock(); });
}

Result<void> EmbeddedCleanup::beginMerge() {
    if (!m_isEmbedded()) return {};
    return withPath(m_scripts.withCleanup(
        [&](LibraryCleanup& cleanup) { return cleanup.beginMerge(m_identity.request); }));
}

void EmbeddedCleanup::noteMerge(const MergedSong& song) {
    if (!m_isEmbedded()) return;
    m_scripts.withCleanup([&](LibraryCleanup& cleanup) { cleanup.noteMerge(song); });
}

void EmbeddedCleanup::abandonMerge() {
    if (!m_isEmbedded()) return;
    m_scripts.withCleanup([](LibraryCleanup& cleanup) { cleanup.abandonMerge(); });
}

Result<void> EmbeddedCleanup::begin(std::vector<RecordedTrack> tracks, Files files) {
    m_isOn = m_hasBegun = false;
    if (tracks.empty() || !m_isEmbedded()) return {};
    auto begun = withPath(m_scripts.withCleanup([&](LibraryCleanup& cleanup) {
        return cleanup.begin(m_identity.request, {m_identity.program, files == Files::go, std::move(tracks)});
    }));
    m_isOn = m_hasBegun = begun.hasValue();
    return begun;
}

bool EmbeddedCleanup::beginTrack(std::size_t number) {
    return !m_isOn ||
           m_scripts.withCleanup([&](LibraryCleanup& cleanup) { return cleanup.beginTrack(number); });
}

Result<void> EmbeddedCleanup::finish() {
    if (!m_isOn) return {};
    return withPath(m_scripts.withCleanup([](LibraryCleanup& cleanup) { return cleanup.finish(); }));
}

bool EmbeddedCleanup::hasTrack(std::size_t number) {
    return m_isOn && m_scripts.withCleanup([&](LibraryCleanup& cleanup) { return cleanup.hasTrack(number); });
}

std::optional<Result<TrashedFile>> EmbeddedCleanup::fateOfFile(std::size_t number) {
    if (!m_isOn) return std::nullopt;
    return m_scripts.withCleanup([&](LibraryCleanup& cleanup) { return cleanup.fateOfFile(number); });
}

Result<void> EmbeddedCleanup::end(const DeleteReport& report, RecordEnd::How how) {
    if (!m_isOn) return {};
    m_isOn = false;
    return m_scripts.withCleanup([&](LibraryCleanup& cleanup) {
        return cleanup.end(recordedOutcomes(report), how, report.notWritten);
    });
}

Cleanup::Traces EmbeddedCleanup::traces() {
    if (!m_hasBegun) return {};
    return m_scripts.withCleanup([](LibraryCleanup& cleanup) {
        return Traces{cleanup.backup(), cleanup.record(), cleanup.notes()};
    });
}

/// A reason that does not say so itself says which library it is about.
Result<void> EmbeddedCleanup::withPath(const Result<void>& result) const {
    if (result) return {};
    const std::string path = m_scripts.libraryPath();
    const std::string& reason = result.error().message;
    if (reason.find(path) != std::string::npos) return result;
    return Error{result.error().code, path + ": " + reason};
}

} // namespace songsweep
