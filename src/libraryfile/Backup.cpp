// SPDX-License-Identifier: MIT
#include "libraryfile/Backup.h"

#include "libraryfile/AttributeCopy.h"
#include "libraryfile/DatedName.h"
#include "libraryfile/FileNames.h"
#include "libraryfile/LibraryReplacement.h"
#include "platform/SystemError.h"

#include <unistd.h>

#include <cerrno>
#include <cstdio>

namespace songsweep {

namespace {

std::string wordsFor(Backup::Purpose purpose) {
    if (purpose == Backup::Purpose::deletion) return "before deletions of";
    return purpose == Backup::Purpose::restoration ? "before restoring of" : "before changes of";
}

/// A copy that has changed places with the library and back.
Result<TemporaryFile> completeCopy(LibraryReplacement& replacement, const LibraryFile& file,
                                   const FileStamp& version) {
    auto copied = replacement.write(file, piecesWithout(file, {}));
    if (!copied) return copied;
    TemporaryFile copy = std::move(copied).value();
    copyTimes(file.descriptor(), copy.descriptor());
    const auto made = copy.stamp();
    if (!made) return made.error();
    if (file.stamp() != version || made.value().size != version.size)
        return Error{Error::Code::busy, replacement.target() + " is being rewritten"};
    if (auto tried = replacement.tryWith(copy, version); !tried) return tried.error();
    return copy;
}

} // namespace

Result<Backup> Backup::make(LibraryReplacement& replacement, const LibraryFile& file,
                            const FileStamp& version, Purpose purpose) {
    auto copied = completeCopy(replacement, file, version);
    if (!copied) return copied.error();
    TemporaryFile copy = std::move(copied).value();
    auto path = giveDatedName(copy.path(), replacement.target(), wordsFor(purpose));
    if (!path) return path.error();
    copy.release();
    if (const int errorNumber = flushFolder(folderOf(path.value())); errorNumber != 0) {
        ::unlink(path.value().c_str());
        return systemError(errorNumber, "write", path.value());
    }
    return Backup(std::move(path).value(), version);
}

Result<void> Backup::renew(LibraryReplacement& replacement, const LibraryFile& file,
                           const FileStamp& version) {
    auto copied = completeCopy(replacement, file, version);
    if (!copied) return copied.error();
    TemporaryFile copy = std::move(copied).value();
    if (std::rename(copy.path().c_str(), m_path.c_str()) != 0) return systemError(errno, "write", m_path);
    copy.release();
    m_version = version;
    const int errorNumber = flushFolder(folderOf(m_path));
    return errorNumber == 0 ? Result<void>() : systemError(errorNumber, "write", m_path);
}

} // namespace songsweep
