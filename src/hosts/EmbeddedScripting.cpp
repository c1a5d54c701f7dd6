// SPDX-License-Identifier: MIT
#include "hosts/EmbeddedScripting.h"

#include "hosts/FinderApplication.h"
#include "hosts/ITunesApplication.h"
#include "library/QuotedTrack.h"
#include "library/XmlReader.h"
#include "libraryfile/TrackPlaylists.h"
#include "operations/BackgroundDelete.h"
#include "platform/Desktop.h"
#include "platform/Log.h"

#include <utility>

namespace songsweep {

namespace {

constexpr int mostPasses = 3; // over a library that somebody rewrites meanwhile

std::vector<interpreter::NamedApplication> applications(ITunesServices& services,
                                                        FinderApplication::DeleteFile deleteFile) {
    return {{"iTunes",
             std::make_shared<ITunesApplication>(services),
             {"Music"},
             {"com.apple.iTunes", "com.apple.Music"}},
            {"Finder",
             std::make_shared<FinderApplication>(services.files, services.desktop, std::move(deleteFile)),
             {},
             {"com.apple.finder"}}};
}

/// How much a library has yet to write.
std::size_t pendingOf(const LibraryDocument* document) {
    return document ? document->pendingDeletions() + document->pendingChanges() : 0;
}

/// "3 tracks deleted", "3 tracks deleted, 2 changes"
std::string pendingText(const LibraryDocument& document) {
    std::string deletions = std::to_string(document.pendingDeletions()) + " tracks deleted";
    if (document.pendingChanges() == 0) return deletions;
    return deletions + ", " + std::to_string(document.pendingChanges()) + " changes";
}

} // namespace

EmbeddedScripting::EmbeddedScripting(std::string libraryPath, Desktop& desktop, Files& files, Options options)
    : m_library(std::move(libraryPath), options.library)
    , m_cleanup(m_library, desktop.trash(),
                [this](LibraryDocument& document) { return writePending(document); })
    , m_iTunes{m_library, files, desktop, std::move(options.iTunesVersion)}
    , m_interpreter(applications(m_iTunes, [this](const std::string& path) { return deleteFile(path); }))
    , m_schedule(options.writes)
    , m_libraryOptions(options.library)
    , m_log(options.log)
    , m_writeFailed(std::move(options.writeFailed))
    , m_writer([this](const std::stop_token& stop) { writeWhenDue(stop); }) {}

EmbeddedScripting::~EmbeddedScripting() {
    m_writer.request_stop();
    m_writer.join();
    // The log has the reason of a failure; nobody is left to tell.
    static_cast<void>(flush());
}

Result<Descriptor> EmbeddedScripting::executeAndReturnError(std::string_view source) {
    auto result = run(source, Places::leftOut);
    if (!result) return result.error();
    return std::move(result).value().value_or(Descriptor());
}

Result<std::optional<Descriptor>> EmbeddedScripting::run(std::string_view source) {
    return run(source, Places::told);
}

Result<std::optional<Descriptor>> EmbeddedScripting::run(std::string_view source, Places places) {
    const std::lock_guard lock(m_lock);
    if (m_ended) return Error{Error::Code::failed, "the program ends"};
    return runLocked(source, places);
}

Result<void> EmbeddedScripting::runLast(std::string_view source) {
    const std::lock_guard lock(m_lock);
    m_ended = true;
    static_cast<void>(runLocked(source, Places::leftOut)); // What matters is written also where it fails.
    auto written = flushLocked();
    m_cleanup.endAtOnce();
    return written;
}

Result<std::optional<Descriptor>> EmbeddedScripting::runLocked(std::string_view source, Places places) {
    m_library.beginScript();
    const std::size_t before = pendingOf(m_library.opened());
    auto result = m_interpreter.run(source, places);
    noteChanges(before);
    if (auto ended = endText(); !ended) return ended.error();
    return result;
}

/// Outside of a clean-up a file waits for the end of its text only where there is something to write before:
/// a write in the middle of a text would take the meaning from its references to tracks.
Result<void> EmbeddedScripting::deleteFile(const std::string& path) {
    if (m_cleanup.isOn()) {
        m_cleanup.holdFile(path);
        return {};
    }
    const auto stamp = LibraryFile::stampOf(path);
    if (!stamp) return stamp.error();
    m_filesOfText.push_back({path, stamp.value()});
    return m_library.opened() && m_library.opened()->pendingDeletions() > 0 ? Result<void>()
                                                                            : moveFilesOfText();
}

Result<void> EmbeddedScripting::moveFilesOfText() {
    Result<void> moved;
    for (const HeldFile& file : std::exchange(m_filesOfText, {})) {
        const auto trashed = file.moveTo(m_iTunes.desktop.trash());
        if (!trashed && moved) moved = trashed.error();
    }
    return moved;
}

/// A text that deletes files has what is pending written first, with what it deleted itself.
Result<void> EmbeddedScripting::endText() {
    if (m_filesOfText.empty()) return {};
    auto written = flushLocked();
    if (written) return moveFilesOfText();
    m_filesOfText.clear();
    return written;
}

void EmbeddedScripting::noteChanges(std::size_t before) {
    if (pendingOf(m_library.opened()) == before) return;
    const bool writerWaits = m_schedule.due().has_value(); // It looks again when its time has come.
    m_schedule.changed(WriteSchedule::Clock::now());
    if (!writerWaits) m_scheduleChanged.notify_all();
}

Result<LibraryDocument*> EmbeddedScripting::currentDocument() {
    m_library.beginScript();
    return m_library.document();
}

Result<void> EmbeddedScripting::openLibrary(std::string path) {
    const std::lock_guard lock(m_lock);
    if (auto written = flushLocked(); !written) return written;
    deleteInBackground(std::exchange(m_library, EmbeddedLibrary(std::move(path), m_libraryOptions)));
    return {};
}

std::string EmbeddedScripting::libraryPath() const {
    const std::lock_guard lock(m_lock);
    return m_library.path();
}

Result<void> EmbeddedScripting::readLibrary() {
    const std::lock_guard lock(m_lock);
    const auto document = currentDocument();
    return document ? Result<void>() : Result<void>(document.error());
}

std::optional<Error> EmbeddedScripting::libraryError() const {
    const std::lock_guard lock(m_lock);
    return m_library.error();
}

Result<int> EmbeddedScripting::trackCount() {
    const std::lock_guard lock(m_lock);
    const auto document = currentDocument();
    if (!document) return document.error();
    return document.value()->trackCount();
}

Result<std::vector<PlaylistInfo>> EmbeddedScripting::playlists() {
    const std::lock_guard lock(m_lock);
    const auto document = currentDocument();
    if (!document) return document.error();
    return document.value()->playlists();
}

std::vector<std::vector<std::string>>
EmbeddedScripting::playlistsOf(const std::vector<std::string>& persistentIds) {
    const std::lock_guard lock(m_lock);
    const auto document = currentDocument();
    if (!document) return {};
    return playlistsOfTracks(*document.value(), persistentIds);
}

std::unique_ptr<NodeReader> EmbeddedScripting::openNodes(const std::string& path) {
    const std::lock_guard lock(m_lock);
    LibraryDocument* const document = m_library.opened();
    std::unique_ptr<NodeReader> nodes = document != nullptr ? document->plainNodes(path) : nullptr;
    return nodes != nullptr ? std::move(nodes) : XmlReader::open(path);
}

Result<bool> EmbeddedScripting::hasTracks(const std::vector<TrackRecord*>& records) {
    const std::lock_guard lock(m_lock);
    const auto document = currentDocument();
    if (!document) return document.error();
    return document.value()->hasTracks(records);
}

std::vector<std::string> EmbeddedScripting::tracksOfId(std::string_view persistentId) {
    const std::lock_guard lock(m_lock);
    const auto document = currentDocument();
    if (!document) return {};
    const auto tracks = document.value()->tracksWithPersistentId(persistentId);
    std::vector<std::string> named;
    if (tracks.size() < 2) return named; // the usual case, in which no name is read
    for (const auto track : tracks) {
        const auto values = document.value()->fields(track);
        named.push_back(values ? quotedTrack(values.value()->text(LibraryKey::name),
                                             values.value()->text(LibraryKey::artist))
                               : "one that cannot be read");
    }
    return named;
}

Result<LocationPass> EmbeddedScripting::locationPass() {
    const std::lock_guard lock(m_lock);
    const auto document = currentDocument();
    if (!document) return document.error();
    return document.value()->locations();
}

Result<void> EmbeddedScripting::forEachLocation(const LocationPass::Callback& callback) {
    Result<void> done;
    for (int attempt = 0; attempt < mostPasses; ++attempt) {
        const auto pass = locationPass();
        if (!pass) return pass.error();
        done = pass.value().run(callback);
        if (done || done.error().code != Error::Code::busy) break;
    }
    return done;
}

Result<void> EmbeddedScripting::flush() {
    const std::lock_guard lock(m_lock);
    return flushLocked();
}

Result<void> EmbeddedScripting::flushLocked() {
    LibraryDocument* document = m_library.opened();
    if (document == nullptr) {
        m_schedule.written();
        return {};
    }
    if (m_cleanup.isOn()) return m_cleanup.write(*document);
    if (m_cleanup.isMerging()) m_cleanup.abandonMerge(); // Nothing of it is written without its deletions.
    return writePending(*document);
}

Result<void> EmbeddedScripting::writePending(LibraryDocument& document) {
    m_schedule.written();
    if (pendingOf(&document) == 0) return {};
    const std::string what = pendingText(document);
    auto written = document.flush();
    tellOfWrite(written, what);
    return written;
}

void EmbeddedScripting::tellOfWrite(const Result<void>& written, const std::string& what) {
    if (m_log != nullptr)
        m_log->line(written ? "Library written : " + what
                            : "Library not written : " + written.error().message);
    if (!written && !m_cleanup.isOn()) m_writeFailed(written.error());
}

std::size_t EmbeddedScripting::pendingDeletions() const {
    const std::lock_guard lock(m_lock);
    return m_library.opened() ? m_library.opened()->pendingDeletions() : 0;
}

std::optional<Error> EmbeddedScripting::lastWriteError() const {
    const std::lock_guard lock(m_lock);
    return m_library.opened() ? m_library.opened()->lastWriteError() : std::nullopt;
}

/// The writer's loop: waits until something is due and writes it, between two texts.
void EmbeddedScripting::writeWhenDue(const std::stop_token& stop) {
    std::unique_lock lock(m_lock);
    while (!stop.stop_requested()) {
        const auto due = m_schedule.due();
        if (due && m_cleanup.isMerging()) {
            m_schedule.written(); // It is written as a whole, when it is finished.
        } else if (due && *due <= WriteSchedule::Clock::now()) {
            static_cast<void>(flushLocked()); // Kept as the last write error, and logged.
        } else if (due) {
            m_scheduleChanged.wait_until(lock, stop, *due, [] { return false; });
        } else {
            m_scheduleChanged.wait(lock, stop, [&] { return m_schedule.due().has_value(); });
        }
    }
}

} // namespace songsweep
