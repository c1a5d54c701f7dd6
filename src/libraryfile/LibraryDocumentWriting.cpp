// SPDX-License-Identifier: MIT
#include "libraryfile/FolderLock.h"
#include "libraryfile/LibraryDocument.h"
#include "libraryfile/LibraryRewrite.h"
#include "libraryfile/WellFormedness.h"

#include <cerrno>
#include <cstdlib>
#include <memory>

namespace songsweep {

namespace {

constexpr int mostAttempts = 3; // where somebody else, who knows no lock, writes at the same time

/// The path without links: a write replaces the file itself, not a link to it.
Result<std::string> realPath(const std::string& path) {
    const std::unique_ptr<char, decltype(&std::free)> real(::realpath(path.c_str(), nullptr), &std::free);
    if (!real) return systemError(errno, "find", path);
    return std::string(real.get());
}

/// Where a write goes, closed to other programs.
struct LockedTarget {
    std::string path;
    FolderLock lock;
};

Result<LockedTarget> lockTarget(const std::string& path, std::chrono::milliseconds timeout) {
    auto target = realPath(path);
    if (!target) return target.error();
    auto lock = FolderLock::acquire(target.value().substr(0, target.value().rfind('/') + 1), timeout);
    if (!lock) return lock.error();
    return LockedTarget{std::move(target).value(), std::move(lock).value()};
}

} // namespace

Result<void> LibraryDocument::beginDeletionRun() {
    m_backup.clear();
    if (auto refreshed = refresh(); !refreshed) return refreshed;
    if (auto checked = checkWellFormednessOnce(); !checked) return checked;
    const auto target = lockTarget(m_path, m_options.lockTimeout);
    if (!target) return target.error();
    return RewrittenLibrary::tryToWrite(*m_file, target.value().path);
}

Result<void> LibraryDocument::flush() {
    if (m_deletedCount == 0) return {};
    auto written = write();
    m_lastWriteError.reset();
    if (!written) m_lastWriteError = written.error();
    return written;
}

Result<void> LibraryDocument::write() {
    const auto target = lockTarget(m_path, m_options.lockTimeout);
    if (!target) return target.error();
    Result<void> replaced;
    for (int attempt = 0; attempt < mostAttempts; ++attempt) {
        // Under the lock, as another program may have written while this one waited.
        if (auto refreshed = refresh(); !refreshed) return refreshed;
        if (m_deletedCount == 0) return {};
        if (auto checked = checkWellFormednessOnce(); !checked) return checked;
        replaced = replaceLibrary(target.value().path, target.value().lock.descriptor());
        if (replaced || replaced.error().code != Error::Code::busy) break;
    }
    return replaced;
}

Result<void> LibraryDocument::checkWellFormednessOnce() {
    if (m_wellFormed == m_index.stamp) return {};
    if (auto checked = checkWellFormedness(*m_file); !checked) return checked;
    m_wellFormed = m_index.stamp;
    return {};
}

Result<void> LibraryDocument::replaceLibrary(const std::string& target, int folderDescriptor) {
    auto rewritten = RewrittenLibrary::write(*m_file, m_index, target);
    if (!rewritten) return rewritten.error();
    if (m_backup.empty()) {
        auto backup = keepBackup(target);
        if (!backup) return backup.error();
        m_backup = std::move(backup).value();
    }
    const auto stamp = LibraryFile::stampOf(target);
    if (!stamp) return stamp.error();
    if (stamp.value() != m_index.stamp) return Error{Error::Code::busy, m_path + " is being rewritten"};
    if (auto placed = rewritten.value().takePlace(target, folderDescriptor); !placed) return placed;

    // The deletions are on disk; whatever happens to the file from here on is a change like any other.
    m_deletedCount = 0;
    m_memory = {};
    m_wellFormed = rewritten.value().index().stamp;
    auto file = LibraryFile::open(m_path);
    if (!file || file.value().stamp() != m_wellFormed) return refresh();
    LibraryIndex index = std::move(rewritten.value().index());
    PersistentIdTable table;
    table.build(index.tracks);
    adopt(std::move(file).value(), std::move(index), std::move(table));
    return {};
}

} // namespace songsweep
