// SPDX-License-Identifier: MIT
#include "libraryfile/CleanupRecord.h"

#include "libraryfile/AttributeCopy.h"
#include "libraryfile/FileNames.h"
#include "libraryfile/JsonLine.h"
#include "platform/SystemError.h"

#include <fcntl.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <ctime>
#include <string_view>
#include <utility>

namespace songsweep {

namespace {

constexpr std::size_t handOverSize = 64 << 10;
constexpr std::size_t bytesATrackToCome = 512;  // its place in the Trash and its outcome
constexpr std::size_t bytesAPlannedTrack = 192; // keys and numbers of its line
constexpr std::size_t bytesOfHeading = 2048;

std::string universalTime() {
    const std::time_t now = std::time(nullptr);
    std::tm utc{};
    ::gmtime_r(&now, &utc);
    std::array<char, 32> text{};
    std::strftime(text.data(), text.size(), "%Y-%m-%dT%H:%M:%SZ", &utc);
    return text.data();
}

void addStamp(JsonLine& line, const FileStamp& stamp) {
    line.number("device", static_cast<std::int64_t>(stamp.device))
        .number("inode", static_cast<std::int64_t>(stamp.inode))
        .number("size", static_cast<std::int64_t>(stamp.size))
        .number("modified", stamp.modificationNanoseconds);
}

std::string beginLine(const RecordHeading& heading) {
    JsonLine line;
    line.text("step", "begin").number("format", 1).text("kind", wordOf(heading.kind));
    line.text("program", heading.program).text("date", heading.date);
    line.text("library", heading.library).text("backup", nameOf(heading.backup));
    addStamp(line, heading.version);
    line.number("tracks", static_cast<std::int64_t>(heading.tracks)).truth("files", heading.withFiles);
    if (heading.isNarrowed) line.truth("narrowed", true);
    if (!heading.restores.empty()) line.text("restores", heading.restores);
    return line.finished();
}

/// Whoever may read the backup may read what was deleted from it.
void copyRights(const std::string& backup, int record) {
    const int descriptor = ::open(backup.c_str(), O_RDONLY | O_CLOEXEC);
    if (descriptor < 0) return;
    static_cast<void>(copyAttributes(descriptor, record, backup)); // Else it stays this user's alone.
    ::close(descriptor);
}

/// A kill, or a full disk, may have left a part of a line, which would spoil the next one. An error number,
/// or 0.
int cutUnfinishedLine(int descriptor) {
    std::array<char, 4096> block{};
    off_t end = ::lseek(descriptor, 0, SEEK_END);
    while (end > 0) {
        const off_t begin = std::max<off_t>(0, end - static_cast<off_t>(block.size()));
        const ssize_t count = ::pread(descriptor, block.data(), static_cast<std::size_t>(end - begin), begin);
        if (count != end - begin) return count < 0 ? errno : EIO;
        const std::size_t feed = std::string_view(block.data(), static_cast<std::size_t>(count)).rfind('\n');
        if (feed != std::string_view::npos) {
            end = begin + static_cast<off_t>(feed) + 1;
            break;
        }
        end = begin;
    }
    return end >= 0 && ::ftruncate(descriptor, end) == 0 ? 0 : errno;
}

} // namespace

Result<CleanupRecord> CleanupRecord::create(RecordHeading heading) {
    const std::string path = recordPathFor(heading.backup);
    const int descriptor =
        ::open(path.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_APPEND | O_NOFOLLOW | O_CLOEXEC, 0600);
    if (descriptor < 0) return systemError(errno, "create", path);
    CleanupRecord record(path, descriptor);
    heading.date = universalTime();
    record.m_sizes.reserve(heading.tracks);
    record.add(beginLine(heading));
    copyRights(heading.backup, descriptor);
    auto begun = record.flush();
    if (begun)
        if (const int errorNumber = flushFolder(folderOf(path)); errorNumber != 0)
            begun = systemError(errorNumber, "write", path);
    if (begun) return record;
    ::unlink(path.c_str());
    return begun.error();
}

Result<CleanupRecord> CleanupRecord::resume(const RecordedCleanup& cleanup, const std::string& program) {
    const int descriptor = ::open(cleanup.path.c_str(), O_RDWR | O_APPEND | O_NOFOLLOW | O_CLOEXEC);
    if (descriptor < 0) return systemError(errno, "open", cleanup.path);
    CleanupRecord record(cleanup.path, descriptor);
    if (const int errorNumber = cutUnfinishedLine(descriptor); errorNumber != 0)
        return systemError(errorNumber, "write", cleanup.path);
    for (std::size_t track = 0; track < cleanup.tracks.size(); ++track) {
        record.m_sizes.push_back(cleanup.tracks[track].plan.file.size);
        if (const auto& outcome = cleanup.tracks[track].outcome) record.count(track, *outcome);
    }
    record.add(
        JsonLine().text("step", "resumed").text("program", program).text("date", universalTime()).finished());
    record.handOver();
    record.reserve(cleanup.tracks.size());
    if (auto resumed = record.flush(); !resumed) return resumed.error();
    return record;
}

std::uint64_t CleanupRecord::roomFor(std::size_t tracks, std::uint64_t textBytes) {
    return bytesOfHeading + textBytes + bytesAPlannedTrack * std::uint64_t{tracks} +
           bytesATrackToCome * (std::uint64_t{tracks} + 1);
}

CleanupRecord::CleanupRecord(CleanupRecord&& other) noexcept
    : m_path(std::move(other.m_path))
    , m_descriptor(std::exchange(other.m_descriptor, -1))
    , m_waiting(std::move(other.m_waiting))
    , m_errorNumber(other.m_errorNumber)
    , m_sizes(std::move(other.m_sizes))
    , m_counts(std::move(other.m_counts)) {}

CleanupRecord& CleanupRecord::operator=(CleanupRecord&& other) noexcept {
    std::swap(m_path, other.m_path);
    std::swap(m_descriptor, other.m_descriptor);
    std::swap(m_waiting, other.m_waiting);
    std::swap(m_errorNumber, other.m_errorNumber);
    std::swap(m_sizes, other.m_sizes);
    std::swap(m_counts, other.m_counts);
    return *this;
}

CleanupRecord::~CleanupRecord() {
    if (m_descriptor < 0) return;
    handOver();
    ::close(m_descriptor);
}

void CleanupRecord::plan(const RecordedTrack& track) {
    JsonLine line;
    line.text("step", "plan").text("persistentId", track.persistentId).number("trackId", track.trackId);
    line.text("name", track.name).text("artist", track.artist);
    if (!track.path.empty()) {
        line.text("path", track.path);
        addStamp(line, track.file);
    }
    if (!track.kept.empty()) line.text("kept", track.kept);
    add(line.finished());
    m_sizes.push_back(track.file.size);
}

void CleanupRecord::merge(const RecordedMerge& merge) {
    JsonLine line;
    line.text("step", "merge").text("keptId", merge.keptId).number("keptTrackId", merge.keptTrackId);
    add(line.numbers("removed", merge.removed).truth("places", merge.places).finished());
    for (const RecordedValue& value : merge.values) {
        JsonLine change;
        change.text("step", "mergedValue").text("key", value.after.key).text("before", value.before);
        change.text("form", wordOf(value.after.form));
        add(change.text("after", value.after.text).finished());
    }
}

Result<void> CleanupRecord::planned() {
    add(JsonLine().text("step", "planned").finished());
    handOver();
    reserve(m_sizes.size());
    return flush();
}

Result<void> CleanupRecord::writing(std::size_t tracks) {
    add(JsonLine().text("step", "writing").number("tracks", static_cast<std::int64_t>(tracks)).finished());
    return flush();
}

void CleanupRecord::written() {
    add(JsonLine().text("step", "written").finished());
    handOver();
}

void CleanupRecord::backedUpAgain(const FileStamp& version) {
    JsonLine line;
    line.text("step", "backup");
    addStamp(line, version);
    add(line.finished());
    handOver();
}

Result<void> CleanupRecord::trashing(std::span<const std::size_t> tracks) {
    add(JsonLine().text("step", "trashing").numbers("tracks", tracks).finished());
    return flush();
}

void CleanupRecord::trashed(std::size_t track, const TrashedFile& place) {
    JsonLine line;
    line.text("step", "trashed").number("track", static_cast<std::int64_t>(track));
    add(line.text("folder", place.trashFolder).text("name", place.name).finished());
    handOver();
}

Result<void> CleanupRecord::rewriting(const RecordedPlaylist& playlist) {
    add(JsonLine()
            .text("step", "playlist")
            .text("path", playlist.path)
            .number("hash", static_cast<std::int64_t>(playlist.hash))
            .finished());
    for (const RecordedPlaylist::Cut& cut : playlist.cuts) {
        JsonLine line;
        line.text("step", "cut").number("entry", static_cast<std::int64_t>(cut.entry));
        line.number("at", static_cast<std::int64_t>(cut.at)).text("file", cut.file);
        add(line.text("bytes", cut.bytes).text("before", cut.before).text("after", cut.after).finished());
    }
    return flush();
}

void CleanupRecord::rewritten(RecordedPlaylist::State state) {
    const bool done = state == RecordedPlaylist::State::rewritten;
    add(JsonLine().text("step", "rewritten").truth("done", done).finished());
    handOver();
}

void CleanupRecord::outcome(std::size_t track, const RecordedOutcome& outcome) {
    JsonLine line;
    line.text("step", "outcome").number("track", static_cast<std::int64_t>(track));
    line.text("outcome", wordOf(outcome.track)).text("file", wordOf(outcome.file));
    if (!outcome.reason.empty()) line.text("reason", outcome.reason);
    add(line.finished());
    count(track, outcome);
}

void CleanupRecord::count(std::size_t track, const RecordedOutcome& outcome) {
    using Track = RecordedOutcome::Track;
    using File = RecordedOutcome::File;
    m_counts.tracks += outcome.track == Track::deleted || outcome.track == Track::restored ? 1 : 0;
    if (outcome.file != File::trashed && outcome.file != File::putBack) return;
    ++m_counts.files;
    if (track < m_sizes.size()) m_counts.bytes += m_sizes[track];
}

Result<void> CleanupRecord::end(RecordEnd::How how, const std::string& reason) {
    JsonLine line;
    line.text("step", "end").text("how", wordOf(how));
    if (!reason.empty()) line.text("reason", reason);
    line.number("tracks", static_cast<std::int64_t>(m_counts.tracks));
    line.number("files", static_cast<std::int64_t>(m_counts.files));
    add(line.number("bytes", static_cast<std::int64_t>(m_counts.bytes)).finished());
    auto ended = flush();
    // What was reserved beyond the end goes back.
    const off_t size = ::lseek(m_descriptor, 0, SEEK_END);
    if (size >= 0 && ::ftruncate(m_descriptor, size) != 0 && ended)
        return systemError(errno, "write", m_path);
    return ended;
}

void CleanupRecord::discard() {
    ::unlink(m_path.c_str());
    m_waiting.clear();
}

void CleanupRecord::add(const std::string& line) {
    m_waiting += line;
    if (m_waiting.size() >= handOverSize) handOver();
}

void CleanupRecord::handOver() {
    std::string_view rest = m_waiting;
    while (!rest.empty() && m_errorNumber == 0) {
        const ssize_t count = ::write(m_descriptor, rest.data(), rest.size());
        if (count < 0 && errno != EINTR) m_errorNumber = errno;
        if (count > 0) rest.remove_prefix(static_cast<std::size_t>(count));
    }
    m_waiting.clear();
}

Result<void> CleanupRecord::flush() {
    handOver();
#ifdef __APPLE__
    if (m_errorNumber == 0 && ::fsync(m_descriptor) != 0) m_errorNumber = errno;
#else
    if (m_errorNumber == 0 && ::fdatasync(m_descriptor) != 0) m_errorNumber = errno;
#endif
    if (m_errorNumber != 0) return systemError(m_errorNumber, "write", m_path);
    return {};
}

/// Room behind the end, which the size of the file does not show.
void CleanupRecord::reserve([[maybe_unused]] std::size_t tracks) {
#ifndef __APPLE__
    const off_t end = ::lseek(m_descriptor, 0, SEEK_END);
    const auto room = static_cast<off_t>(bytesATrackToCome * (tracks + 1));
    if (end < 0 || m_errorNumber != 0) return;
    if (::fallocate(m_descriptor, FALLOC_FL_KEEP_SIZE, end, room) != 0 &&
        (errno == ENOSPC || errno == EDQUOT))
        m_errorNumber = errno;
#endif
}

} // namespace songsweep
