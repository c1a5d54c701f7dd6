// SPDX-License-Identifier: MIT
#include "scan/NewFile.h"

#include "libraryfile/FileNames.h"
#include "platform/SystemError.h"

#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstdio>

namespace songsweep {

namespace {

constexpr std::size_t largeBuffer = std::size_t{1} << 18;

} // namespace

Result<NewFile> NewFile::createFor(const std::string& path) {
    Result<TemporaryFile> file = TemporaryFile::createBeside(path);
    if (!file) return file.error();
    return NewFile(path, std::move(file).value());
}

/// What is large already is not copied once more.
void NewFile::append(std::string_view bytes) {
    if (bytes.size() < largeBuffer) {
        m_buffer += bytes;
        if (m_buffer.size() >= largeBuffer) flush();
        return;
    }
    flush();
    write(bytes);
}

void NewFile::append(const LibraryFile& file, ByteRange range) {
    while (range.length > 0 && m_state) {
        const std::uint64_t count = std::min<std::uint64_t>(range.length, largeBuffer);
        const Result<std::string> bytes = file.read({range.begin, count});
        if (!bytes) {
            m_state = bytes.error();
            return;
        }
        append(bytes.value());
        range = {range.begin + count, range.length - count};
    }
}

void NewFile::flush() {
    write(m_buffer);
    m_buffer.clear();
}

void NewFile::write(std::string_view bytes) {
    m_written += bytes.size();
    std::string_view left = bytes;
    while (m_state && !left.empty()) {
        const ssize_t count = ::write(m_file.descriptor(), left.data(), left.size());
        if (count < 0 && errno == EINTR) continue;
        if (count < 0) {
            m_state = systemError(errno, "write", m_path);
        } else {
            left.remove_prefix(static_cast<std::size_t>(count));
        }
    }
}

Result<void> NewFile::takePlace(Safety safety) {
    flush();
    if (!m_state) return m_state;
    const bool mustBeSafe = safety == Safety::onDisk;
    if (mustBeSafe && ::fsync(m_file.descriptor()) != 0) return systemError(errno, "write", m_path);
    const Result<FileStamp> stamp = m_file.stamp();
    if (!stamp) return stamp.error();
    if (std::rename(m_file.path().c_str(), m_path.c_str()) != 0)
        return systemError(errno, "put a new version in the place of", m_path);
    m_file.release();
    m_stamp = stamp.value();
    if (mustBeSafe) flushFolder(folderOf(m_path));
    return {};
}

} // namespace songsweep
