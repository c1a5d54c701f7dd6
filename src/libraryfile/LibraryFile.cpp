// SPDX-License-Identifier: MIT
#include "libraryfile/LibraryFile.h"

#include "platform/SystemError.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstring>
#include <utility>

namespace songsweep {

namespace {

FileStamp stampFrom(const struct stat& status) {
#ifdef __APPLE__
    const struct timespec modified = status.st_mtimespec;
#else
    const struct timespec modified = status.st_mtim;
#endif
    return {static_cast<std::uint64_t>(status.st_dev), static_cast<std::uint64_t>(status.st_ino),
            static_cast<std::uint64_t>(status.st_size),
            std::int64_t{modified.tv_sec} * 1'000'000'000 + modified.tv_nsec};
}

} // namespace

Result<LibraryFile> LibraryFile::open(const std::string& path) {
    // A pipe of this name must not hang the program, so the open does not wait.
    const int descriptor = ::open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK);
    if (descriptor < 0) return systemError(errno, "open", path);
    LibraryFile file(path, descriptor);

    struct stat status {};
    if (::fstat(descriptor, &status) != 0) return systemError(errno, "read", path);
    if (S_ISDIR(status.st_mode)) return Error{Error::Code::invalid, path + " is a folder"};
    if (!S_ISREG(status.st_mode)) return Error{Error::Code::invalid, path + " is not a regular file"};
    return file;
}

Result<FileStamp> LibraryFile::stampOf(const std::string& path) {
    struct stat status {};
    if (::stat(path.c_str(), &status) != 0) return systemError(errno, "read", path);
    return stampFrom(status);
}

Result<FileStamp> LibraryFile::stampOf(int descriptor, const std::string& path) {
    struct stat status {};
    if (::fstat(descriptor, &status) != 0) return systemError(errno, "read", path);
    return stampFrom(status);
}

LibraryFile::LibraryFile(LibraryFile&& other) noexcept
    : m_path(std::move(other.m_path))
    , m_descriptor(std::exchange(other.m_descriptor, -1)) {}

LibraryFile& LibraryFile::operator=(LibraryFile&& other) noexcept {
    std::swap(m_path, other.m_path);
    std::swap(m_descriptor, other.m_descriptor);
    return *this;
}

LibraryFile::~LibraryFile() {
    if (m_descriptor >= 0) ::close(m_descriptor);
}

FileStamp LibraryFile::stamp() const {
    struct stat status {};
    if (::fstat(m_descriptor, &status) != 0) return {};
    return stampFrom(status);
}

Result<std::size_t> LibraryFile::read(std::uint64_t offset, char* bytes, std::size_t size) const {
    std::size_t done = 0;
    while (done < size) {
        const ssize_t count =
            ::pread(m_descriptor, bytes + done, size - done, static_cast<off_t>(offset + done));
        if (count < 0 && errno == EINTR) continue;
        if (count < 0) return systemError(errno, "read", m_path);
        if (count == 0) break;
        done += static_cast<std::size_t>(count);
    }
    return done;
}

Result<std::string> LibraryFile::read(ByteRange range) const {
    std::string bytes(range.length, '\0');
    const auto count = read(range.begin, bytes.data(), bytes.size());
    if (!count) return count.error();
    if (count.value() != range.length) return Error{Error::Code::busy, m_path + " is being rewritten"};
    return bytes;
}

} // namespace songsweep
