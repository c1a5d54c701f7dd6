// SPDX-License-Identifier: MIT
#include "scan/SoundStream.h"

#include "libraryfile/LibraryFile.h"
#include "platform/SystemError.h"
#include "scan/Hash64.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstring>

namespace songsweep {

namespace {

constexpr std::size_t windowSize = 8192;
constexpr std::size_t hashedSize = 4096;

} // namespace

Result<void> SoundStream::open(const std::string& path, SoundStream& stream) {
    stream.m_path = path;
    // A pipe that took the file's place meanwhile must not hold the scan up.
    stream.m_descriptor = ::open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK | O_NOCTTY);
    if (stream.m_descriptor < 0) return systemError(errno, "open", path);
    struct stat status {};
    if (::fstat(stream.m_descriptor, &status) != 0) return systemError(errno, "look at", path);
    if (!S_ISREG(status.st_mode)) return Error{Error::Code::invalid, path + " is no file"};
#ifdef __APPLE__
    const struct timespec& changed = status.st_mtimespec;
#else
    const struct timespec& changed = status.st_mtim;
#endif
    stream.m_size = static_cast<std::uint64_t>(status.st_size);
    stream.m_modificationNanoseconds = changed.tv_sec * std::int64_t{1'000'000'000} + changed.tv_nsec;
    return {};
}

SoundStream::~SoundStream() {
    if (m_descriptor >= 0) ::close(m_descriptor);
}

std::uint64_t SoundStream::soundHash() {
    const std::uint64_t begin = m_size / 2;
    std::string sound(static_cast<std::size_t>(std::min<std::uint64_t>(hashedSize, m_size - begin)), '\0');
    sound.resize(readAt(begin, sound.data(), sound.size()));
    return hash64(sound);
}

TagLib::ByteVector SoundStream::readBlock(unsigned long length) {
    if (length == 0 || m_place >= m_size) return {};
    const auto wanted = static_cast<std::size_t>(std::min<std::uint64_t>(length, m_size - m_place));
    TagLib::ByteVector block(static_cast<unsigned int>(wanted), 0);
    std::size_t count = 0;
    if (wanted >= windowSize) {
        count = readAt(m_place, block.data(), wanted);
    } else {
        if (m_place < m_windowBegin || m_place + wanted > m_windowBegin + m_window.size()) {
            m_window.resize(windowSize);
            m_window.resize(readAt(m_place, m_window.data(), windowSize));
            m_windowBegin = m_place;
        }
        count = std::min<std::size_t>(wanted, m_window.size() - (m_place - m_windowBegin));
        std::memcpy(block.data(), m_window.data() + (m_place - m_windowBegin), count);
    }
    m_place += count;
    if (count < wanted) block.resize(static_cast<unsigned int>(count));
    return block;
}

void SoundStream::seek(long offset, Position position) {
    const auto from =
        position == Beginning ? 0 : static_cast<std::int64_t>(position == Current ? m_place : m_size);
    m_place = static_cast<std::uint64_t>(std::max<std::int64_t>(0, from + offset));
}

std::size_t SoundStream::readAt(std::uint64_t place, char* bytes, std::size_t count) {
    std::size_t done = 0;
    while (done < count) {
        const ssize_t read =
            ::pread(m_descriptor, bytes + done, count - done, static_cast<off_t>(place + done));
        if (read < 0 && errno == EINTR) continue;
        if (read < 0 && !m_error) m_error = systemError(errno, "read", m_path);
        if (read <= 0) break;
        done += static_cast<std::size_t>(read);
    }
    return done;
}

} // namespace songsweep
