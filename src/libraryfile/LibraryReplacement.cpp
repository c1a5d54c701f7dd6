// SPDX-License-Identifier: MIT
#include "libraryfile/LibraryReplacement.h"

#include "libraryfile/AttributeCopy.h"
#include "libraryfile/FileNames.h"
#include "libraryfile/Leftovers.h"
#include "platform/SystemError.h"

#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <utility>

namespace songsweep {

Result<void> LibraryReplacement::reserve(std::uint64_t bytes) {
    m_room.reset(); // Its own room may be what is missing.
    auto room = newRoom(bytes);
    if (!room && room.error().code == Error::Code::noSpace && m_old) {
        room = TemporaryFile::reuse(std::move(*m_old), m_target);
        if (!room) room = newRoom(bytes);
    }
    m_old.reset();
    if (!room) return room.error();
    if (auto reserved = room.value().reserve(bytes); !reserved) return reserved;
    m_room = std::move(room).value();
    return {};
}

Result<TemporaryFile> LibraryReplacement::newRoom(std::uint64_t bytes) const {
    auto room = TemporaryFile::createBeside(m_target);
    if (!room) return room;
    if (auto reserved = room.value().reserve(bytes); !reserved) return reserved.error();
    return room;
}

Result<TemporaryFile> LibraryReplacement::write(const LibraryFile& original,
                                                const std::vector<FilePiece>& pieces) {
    auto made = m_room ? Result<TemporaryFile>(std::move(*m_room)) : TemporaryFile::createBeside(m_target);
    m_room.reset();
    if (!made) return made;
    TemporaryFile file = std::move(made).value();
    if (auto written = writePieces(original, pieces, file.descriptor(), m_target); !written)
        return written.error();
    if (auto kept = copyAttributes(original.descriptor(), file.descriptor(), m_target); !kept)
        return kept.error();
    if (::fsync(file.descriptor()) != 0) return systemError(errno, "write", m_target);
    return file;
}

Result<void> LibraryReplacement::tryWith(TemporaryFile& copy, const FileStamp& expected) {
    const auto own = copy.stamp();
    if (!own) return own.error();
    const auto way = exchange(copy, own.value(), expected);
    if (!way) return way.error();
    // That of the library could not be undone; the exchange was refused only after all else had been checked.
    if (way.value() == Way::notKnown) return tryRename();
    return giveBack(copy, own.value(), expected);
}

Result<void> LibraryReplacement::put(TemporaryFile& version, const FileStamp& expected) {
    const auto own = version.stamp();
    if (!own) return own.error();
    const auto way = exchange(version, own.value(), expected);
    if (!way) return way.error();
    if (way.value() == Way::notKnown) return renameOver(version, expected);
    if (const int errorNumber = flushFolder(folderOf(m_target)); errorNumber != 0) {
        // It is not surely on the disk, so that nothing may follow from it.
        if (giveBack(version, own.value(), expected)) return systemError(errorNumber, "write", m_target);
    }
    m_old = std::move(version);
    return {};
}

/// Lets the file change places with the library if that is the expected one; else both stay where they were.
Result<LibraryReplacement::Way> LibraryReplacement::exchange(TemporaryFile& file, const FileStamp& own,
                                                             const FileStamp& expected) {
    const auto present = LibraryFile::stampOf(m_target);
    if (!present) return present.error();
    if (present.value() != expected) return isChanged();
    if (auto announced = file.announceExchange(m_target, expected); !announced) return announced.error();
    const int errorNumber = exchangeFiles(file.path(), m_target);
    if (lacksExchange(errorNumber)) {
        m_narrowed = true;
        return Way::notKnown;
    }
    if (errorNumber != 0) return systemError(errorNumber, "replace", m_target);
    const auto cameOut = LibraryFile::stampOf(file.path());
    if (cameOut && cameOut.value() == expected) return Way::exchanged;
    if (auto back = giveBack(file, own, expected); !back) return back.error();
    return isChanged();
}

/// Some network shares cannot rename, or not over a file that is there.
Result<void> LibraryReplacement::tryRename() const {
    auto one = TemporaryFile::createBeside(m_target);
    if (!one) return one.error();
    const auto other = TemporaryFile::createBeside(m_target);
    if (!other) return other.error();
    if (std::rename(one.value().path().c_str(), other.value().path().c_str()) != 0)
        return systemError(errno, "replace", m_target);
    one.value().release();
    return {};
}

/// What every file system can do instead of an exchange, with as little time as possible for others.
Result<void> LibraryReplacement::renameOver(TemporaryFile& file, const FileStamp& expected) {
    if (!isInPlace(expected)) return isChanged();
    if (std::rename(file.path().c_str(), m_target.c_str()) != 0)
        return systemError(errno, "replace", m_target);
    file.release();
    flushFolder(folderOf(m_target)); // The rename is done and cannot be taken back.
    return {};
}

/// Exchanges again, so that the library is in its place and the file under its own name. Where somebody wrote
/// to the file while it was in the library's place, that version is the library from now on.
Result<void> LibraryReplacement::giveBack(TemporaryFile& file, const FileStamp& own,
                                          const FileStamp& expected) {
    if (isInPlace(own)) {
        if (const int errorNumber = exchangeFiles(file.path(), m_target); errorNumber != 0) {
            keepUnlessKnown(file, own, expected);
            return systemError(errorNumber, "put back", m_target);
        }
        const auto back = LibraryFile::stampOf(file.path());
        if (back && back.value() == own) return {};
        exchangeFiles(file.path(), m_target); // Somebody wrote between the look and the exchange.
    }
    keepUnlessKnown(file, own, expected);
    return isChanged();
}

/// A version that somebody else wrote must not go away with the temporary file.
void LibraryReplacement::keepUnlessKnown(TemporaryFile& file, const FileStamp& own,
                                         const FileStamp& expected) const {
    const auto stamp = LibraryFile::stampOf(file.path());
    if (!stamp || stamp.value() == own || stamp.value() == expected) return;
    // Under its present name it is found by the next clean-up, should the other not be had.
    static_cast<void>(keepUnderVisibleName(file.path(), m_target));
    file.release();
}

bool LibraryReplacement::isInPlace(const FileStamp& stamp) const {
    const auto present = LibraryFile::stampOf(m_target);
    return present && present.value() == stamp;
}

Error LibraryReplacement::isChanged() const { return {Error::Code::busy, m_target + " is being rewritten"}; }

std::string noteOfNarrowness(const std::string& library) {
    return "The file system of " + library +
           " cannot let two files change places, so that another program's change would be lost in the very "
           "moment in which the library is replaced";
}

} // namespace songsweep
