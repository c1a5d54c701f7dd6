// SPDX-License-Identifier: MIT
#pragma once

#include "hosts/EmbeddedLibrary.h"
#include "hosts/HeldFiles.h"
#include "hosts/ITunesObjects.h"
#include "hosts/LibraryCleanup.h"
#include "libraryfile/WriteSchedule.h"
#include "scripting/AppleScript.h"
#include "scripting/InterpretedAppleScript.h"

#include <condition_variable>
#include <functional>
#include <memory>
#include <mutex>
#include <optional>
#include <stop_token>
#include <string>
#include <string_view>
#include <thread>
#include <utility>
#include <vector>

namespace songsweep {

class Desktop;
class Files;
class Log;

/// Runs AppleScript texts against an iTunes and a Finder of the program's own, over one library XML file.
///
/// Texts run one at a time, whichever thread sends them. The file is indexed when the first text asks iTunes
/// something, and looked at again by each later one. Deletions and other changes are seen at once and written
/// together, a little after the last one, by a thread of this object's own; the destructor writes what is
/// left. A library that is refused, or missing, fails the texts that tell iTunes; `libraryError` has the
/// reason.
///
/// A file never goes to the Trash before a deletion that was told earlier is on the disk. Within a clean-up
/// files are held until a written library does not name their tracks, see LibraryCleanup; outside of one the
/// text that deletes a file has pending deletions written at its end, and fails, with the file in its place,
/// where that fails.
///
///     EmbeddedScripting scripts(path, desktop, files);
///     scripts.executeAndReturnError("tell application \"iTunes\" to get version");
///
/// Thread-safe. Desktop, files and log outlive the object.
class EmbeddedScripting final : public AppleScript {
  public:
    struct Options {
        std::string iTunesVersion = "12.0";
        WriteSchedule::Times writes;
        LibraryDocument::Options library;
        Log* log = nullptr; ///< told of every write and of every failed one
        /// Told of every failed write but those of a clean-up, which tells of them itself. Comes on any
        /// thread, and must not call back.
        std::function<void(const Error&)> writeFailed = [](const Error&) {};
    };

    EmbeddedScripting(std::string libraryPath, Desktop& desktop, Files& files)
        : EmbeddedScripting(std::move(libraryPath), desktop, files, Options()) {}
    EmbeddedScripting(std::string libraryPath, Desktop& desktop, Files& files, Options options);
    ~EmbeddedScripting() override;

    /// Runs a text of the program's own; an error says the reason, and no place in a text that nobody knows.
    Result<Descriptor> executeAndReturnError(std::string_view source) override;

    /// Runs a user's text; an error says place and reason. Nothing for a text without a result.
    Result<std::optional<Descriptor>> run(std::string_view source);

    /// Writes what is left of the present library and turns to another file, which is indexed when it is
    /// needed. An error of the write, which changes nothing then.
    Result<void> openLibrary(std::string path);
    std::string libraryPath() const;

    /// Indexes the library now, if it is not, and says why it cannot be read.
    Result<void> readLibrary();
    /// Why the library could not be read when it was last needed: "line N: …" where a line is to blame.
    std::optional<Error> libraryError() const;

    Result<int> trackCount();
    Result<std::vector<PlaylistInfo>> playlists();
    /// See TrackPlaylists.h; nothing where the library cannot be read.
    std::vector<std::vector<std::string>> playlistsOf(const std::vector<std::string>& persistentIds);
    /// The nodes of the library file at a path, by its index where that knows the file; null where it cannot
    /// be opened. The reader is the caller's, on any thread.
    std::unique_ptr<NodeReader> openNodes(const std::string& path);
    /// Whether records that a reader made of the library file are the tracks that scripts find, see
    /// SameTracks.h.
    Result<bool> hasTracks(const std::vector<TrackRecord*>& records);
    /// The tracks that share a persistent ID, each as "“Song” by Artist"; none where one alone has it, or
    /// where the library cannot be read.
    std::vector<std::string> tracksOfId(std::string_view persistentId);
    /// Calls back for every track of the library with a location until the callback says false. Texts run
    /// meanwhile as ever. Where the library changes before the end, the pass begins again with the new
    /// version, so that its tracks come too; `busy` where it changes again and again.
    Result<void> forEachLocation(const LocationPass::Callback& callback);

    /// Runs a last text and writes pending deletions; every later text fails. For a process that is about to
    /// end while others still send texts, so that none of them does what is not written.
    Result<void> runLast(std::string_view source);

    /// Writes pending deletions now.
    Result<void> flush();
    std::size_t pendingDeletions() const;
    /// Why the last write failed, whoever asked for it; nothing after one that succeeded.
    std::optional<Error> lastWriteError() const;

    /// Lets something be done with the library, between two texts; an error where it cannot be read.
    template <class Act>
    auto withLibrary(Act act) -> decltype(act(std::declval<LibraryDocument&>())) {
        const std::lock_guard lock(m_lock);
        const auto document = currentDocument();
        if (!document) return document.error();
        return act(*document.value());
    }

    /// Lets something be done with the frame of a clean-up, between two texts.
    template <class Act>
    auto withCleanup(Act act) {
        const std::lock_guard lock(m_lock);
        return act(m_cleanup);
    }

  private:
    using Places = InterpretedAppleScript::Places;

    Result<std::optional<Descriptor>> run(std::string_view source, Places places);
    Result<LibraryDocument*> currentDocument();
    Result<LocationPass> locationPass();
    Result<std::optional<Descriptor>> runLocked(std::string_view source, Places places);
    Result<void> flushLocked();
    Result<void> writePending(LibraryDocument& document);
    Result<void> deleteFile(const std::string& path);
    Result<void> moveFilesOfText();
    Result<void> endText();
    void tellOfWrite(const Result<void>& written, const std::string& what);
    void noteChanges(std::size_t before);
    void writeWhenDue(const std::stop_token& stop);

    mutable std::mutex m_lock; // of everything below, and held while a text runs
    EmbeddedLibrary m_library;
    std::vector<HeldFile> m_filesOfText; ///< that the text deletes which runs, outside of a clean-up
    LibraryCleanup m_cleanup;
    ITunesServices m_iTunes;
    InterpretedAppleScript m_interpreter;
    bool m_ended = false; ///< the last text was run
    WriteSchedule m_schedule;
    LibraryDocument::Options m_libraryOptions;
    Log* m_log;
    std::function<void(const Error&)> m_writeFailed;
    std::condition_variable_any m_scheduleChanged;
    std::jthread m_writer; // last, so that it ends first
};

} // namespace songsweep
