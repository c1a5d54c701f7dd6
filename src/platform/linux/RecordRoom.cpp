// SPDX-License-Identifier: MIT
#include "platform/linux/RecordRoom.h"

#include "platform/linux/PathParts.h"

#include <sys/statvfs.h>

#include <limits>

namespace songsweep {

namespace {

/// The folders of a Trash that is not there yet.
constexpr std::uint64_t newFolders = 4;
/// The group's title, the date and the keys.
constexpr std::uint64_t fixedText = 80;
/// An entry's head and what its name is padded with.
constexpr std::uint64_t entryHead = 16;
constexpr std::uint64_t suffix = 10;

std::uint64_t less(std::uint64_t from, std::uint64_t amount) { return from > amount ? from - amount : 0; }

} // namespace

RecordRoom RecordRoom::of(const std::string& folder) {
    RecordRoom room;
    struct statvfs system {};
    if (::statvfs(folder.c_str(), &system) != 0) return room;
    constexpr auto unlimited = std::numeric_limits<std::uint64_t>::max();
    room.m_blockSize = system.f_frsize > 0 ? system.f_frsize : system.f_bsize;
    room.m_bytes = less(system.f_bavail, newFolders) * room.m_blockSize;
    // File systems that make inodes as they need them count none.
    room.m_inodes = system.f_files == 0 ? unlimited : less(system.f_favail, newFolders);
    if (system.f_namemax > 0) room.m_longestName = system.f_namemax;
    return room;
}

bool RecordRoom::take(std::string_view path) {
    const std::uint64_t text = fixedText + 3 * path.size(); // every byte may be escaped
    const std::uint64_t blocks = (text + m_blockSize - 1) / m_blockSize;
    // Twice, since a folder's blocks may be left half empty.
    const std::uint64_t entries = 2 * (2 * (entryHead + nameOf(path).size()) + suffix);
    const std::uint64_t bytes = blocks * m_blockSize + entries;
    if (m_inodes == 0 || m_bytes < bytes) return false;
    m_bytes -= bytes;
    --m_inodes;
    return true;
}

} // namespace songsweep
