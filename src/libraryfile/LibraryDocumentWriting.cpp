// SPDX-License-Identifier: MIT
#include "libraryfile/Attempt.h"
#include "libraryfile/ChangePlan.h"
#include "libraryfile/LibraryDocument.h"
#include "libraryfile/LibraryRewrite.h"
#include "libraryfile/WellFormedness.h"

#include <algorithm>

namespace songsweep {

Result<void> LibraryDocument::lockForCleanup(const CleanupLock::Request& request) {
    if (m_transaction) return {};
    auto begun = LibraryTransaction::begin(m_path, request, Backup::Purpose::deletion);
    if (!begun) return begun.error();
    m_transaction = std::move(begun).value();
    return {};
}

Result<void> LibraryDocument::bindChangesToVersion(const CleanupLock::Request& request) {
    if (!m_transaction)
        if (auto locked = lockForCleanup(request); !locked) return locked;
    auto refreshed = refresh();
    if (refreshed) m_changes.bindToVersion();
    return refreshed;
}

Result<void> LibraryDocument::beginCleanup(const CleanupLock::Request& request) {
    if (!m_transaction)
        if (auto locked = lockForCleanup(request); !locked) return locked;
    m_backup.reset();
    m_transaction->adoptBackup({});
    auto prepared = attempt([&]() -> Result<void> {
        if (auto refreshed = refresh(); !refreshed) return refreshed;
        if (auto checked = checkWellFormednessOnce(); !checked) return checked;
        return m_transaction->prepare(*m_file, m_index.stamp, m_index.stamp.size);
    });
    m_backup = m_transaction->backup();
    if (!prepared) m_transaction.reset();
    return prepared;
}

void LibraryDocument::endCleanup() { m_transaction.reset(); }

void LibraryDocument::abandonCleanup() {
    if (m_transaction) m_transaction->abandon();
    m_backup.reset();
    endCleanup();
}

RecordHeading LibraryDocument::cleanupHeading() const {
    RecordHeading heading;
    heading.library = m_transaction->library();
    heading.backup = m_backup->path();
    heading.version = m_backup->version();
    heading.isNarrowed = m_transaction->isNarrowed();
    return heading;
}

Result<void> LibraryDocument::flush() {
    if (!isChanged()) return {};
    auto written = write();
    m_lastWriteError.reset();
    if (!written) {
        m_lastWriteError = written.error();
        rollback();
    }
    return written;
}

void LibraryDocument::rollback() {
    const bool wasChanged = isChanged();
    m_changes.clear();
    if (!wasChanged) return;
    m_lostChanges.reset();
    forgetValues();
    for (TrackSlot& track : m_index.tracks)
        track.deleted = false;
    m_deletedCount = 0;
    m_memory = {};
    forgetLists();
}

Result<void> LibraryDocument::write() {
    if (m_transaction) {
        auto written = writeIn(*m_transaction);
        // Room for the next version, now that the file that went is closed; the next write tries again.
        if (written) static_cast<void>(m_transaction->prepare(*m_file, m_index.stamp, m_index.stamp.size));
        return written;
    }
    const auto purpose = pendingDeletions() > 0 ? Backup::Purpose::deletion : Backup::Purpose::change;
    auto begun = LibraryTransaction::begin(m_path, {"a script", m_options.lockTimeout}, purpose);
    if (!begun) return begun.error();
    LibraryTransaction transaction = std::move(begun).value();
    transaction.adoptBackup(m_backup);
    return writeIn(transaction);
}

Result<void> LibraryDocument::writeIn(LibraryTransaction& transaction) {
    auto written = attempt([&]() -> Result<void> {
        // Under the lock, as another program may have written while this one waited.
        if (auto refreshed = refresh(); !refreshed) return refreshed;
        if (m_lostChanges) return *m_lostChanges;
        if (!isChanged()) return {};
        if (auto checked = checkWellFormednessOnce(); !checked) return checked;
        return replaceLibrary(transaction);
    });
    m_backup = transaction.backup();
    return written;
}

Result<void> LibraryDocument::checkWellFormednessOnce() {
    if (m_wellFormed == m_index.stamp) return {};
    if (auto checked = checkWellFormedness(*m_file); !checked) return checked;
    m_wellFormed = m_index.stamp;
    return {};
}

Result<LibraryIndex> LibraryDocument::withoutDeletions(LibraryTransaction& transaction) {
    auto prepared = transaction.prepare(*m_file, m_index.stamp, m_index.stamp.size);
    if (!prepared) return prepared.error();
    const auto check = [&](const LibraryFile&, const LibraryIndex& readBack) -> Result<void> {
        const auto deleted = [&](TrackPosition track) { return isDeleted(track); };
        if (!isRemainderOf(m_index, readBack, deleted)) return transaction.readsBackOtherwise();
        return {};
    };
    return transaction.replace(*m_file, m_index.stamp, piecesWithout(*m_file, rangesOfDeletions(m_index)),
                               check);
}

/// What is new is looked at by a full parser, too, as other programs are to read it.
Result<LibraryIndex> LibraryDocument::withChanges(LibraryTransaction& transaction) {
    const auto plan = ChangePlan::of(*m_file, m_index, m_changes);
    if (!plan) return plan.error();
    auto prepared =
        transaction.prepare(*m_file, m_index.stamp, std::max(plan.value().size(), m_index.stamp.size));
    if (!prepared) return prepared.error();
    const auto check = [&](const LibraryFile& written, const LibraryIndex& readBack) -> Result<void> {
        if (!plan.value().isResult(readBack)) return transaction.readsBackOtherwise();
        return checkWellFormedness(written);
    };
    return transaction.replace(*m_file, m_index.stamp, plan.value().pieces(), check);
}

Result<void> LibraryDocument::replaceLibrary(LibraryTransaction& transaction) {
    auto replaced = m_changes.isEmpty() ? withoutDeletions(transaction) : withChanges(transaction);
    if (!replaced) return replaced.error();

    // All is on disk; whatever happens to the file from here on is a change like any other.
    m_deletedCount = 0;
    m_changes.clear();
    m_memory = {};
    m_wellFormed = replaced.value().stamp;
    auto file = LibraryFile::open(m_path);
    if (!file || file.value().stamp() != m_wellFormed) return refresh();
    LibraryIndex index = std::move(replaced).value();
    PersistentIdTable table;
    table.build(index.tracks);
    adopt(std::move(file).value(), std::move(index), std::move(table));
    return {};
}

} // namespace songsweep
