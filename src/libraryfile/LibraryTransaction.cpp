// SPDX-License-Identifier: MIT
#include "libraryfile/LibraryTransaction.h"

#include "libraryfile/Leftovers.h"

#include <unistd.h>

#include <utility>

namespace songsweep {

Result<LibraryTransaction> LibraryTransaction::begin(const std::string& path,
                                                     const CleanupLock::Request& request,
                                                     Backup::Purpose purpose) {
    auto lock = CleanupLock::acquire(path, request);
    if (!lock) return lock.error();
    LibraryTransaction transaction(std::move(lock).value(), purpose);
    if (auto removed = removeLeftovers(transaction.library()); !removed) return removed.error();
    return transaction;
}

Result<void> LibraryTransaction::prepare(const LibraryFile& file, const FileStamp& version,
                                         std::uint64_t room) {
    const bool isFirst = !m_backup;
    if (auto kept = keepBackup(file, version); !kept) return kept;
    if (m_room >= room) return {};
    m_room = 0;
    auto reserved = m_replacement.reserve(room);
    if (reserved) m_room = room;
    if (!reserved && isFirst) abandon();
    return reserved;
}

Result<void> LibraryTransaction::keepBackup(const LibraryFile& file, const FileStamp& version) {
    if (m_backup) {
        if (m_backup->isGoodFor(version)) return {};
        m_room = 0; // The copy takes it.
        return m_backup->renew(m_replacement, file, version);
    }
    auto backup = Backup::make(m_replacement, file, version, m_purpose);
    if (!backup) return backup.error();
    m_backup = std::move(backup).value();
    return {};
}

/// It is of no use to anybody, and takes the room that may be missing.
void LibraryTransaction::abandon() {
    if (!m_backup) return;
    ::unlink(m_backup->path().c_str());
    m_backup.reset();
}

Result<LibraryIndex> LibraryTransaction::replace(const LibraryFile& original, const FileStamp& version,
                                                 const std::vector<FilePiece>& pieces, const Check& check) {
    m_room = 0;
    auto made = m_replacement.write(original, pieces);
    if (!made) return made.error();
    TemporaryFile written = std::move(made).value();
    auto index = readBack(written, check);
    if (!index) return index;
    if (auto put = m_replacement.put(written, version); !put) return put.error();
    if (m_backup) m_backup->settle();
    return index;
}

Result<LibraryIndex> LibraryTransaction::readBack(const TemporaryFile& written, const Check& check) const {
    const auto file = LibraryFile::open(written.path());
    if (!file) return file.error();
    auto index = LibraryIndex::read(file.value());
    if (!index) return index;
    if (auto checked = check(file.value(), index.value()); !checked) return checked.error();
    return index;
}

Error LibraryTransaction::readsBackOtherwise() const {
    return {Error::Code::inputOutput, "what was written of " + library() + " does not read back the same"};
}

} // namespace songsweep
