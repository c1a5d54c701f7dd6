// SPDX-License-Identifier: MIT
#include "libraryfile/CleanupLock.h"

#include "libraryfile/FileNames.h"
#include "libraryfile/LibraryFile.h"
#include "libraryfile/LockHolder.h"
#include "libraryfile/TemporaryName.h"
#include "platform/SystemError.h"

#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <memory>
#include <thread>
#include <utility>

namespace songsweep {

namespace {

constexpr std::chrono::milliseconds pause{20};
constexpr int mostChanges = 100; // of holders while this program looks

/// The path without links: what leads to one file is one library.
Result<std::string> realPath(const std::string& path) {
    const std::unique_ptr<char, decltype(&std::free)> real(::realpath(path.c_str(), nullptr), &std::free);
    if (!real) return systemError(errno, "find", path);
    return std::string(real.get());
}

/// The lock file, open; whether this call made it.
struct OpenLock {
    int descriptor = -1;
    bool isNew = false;
};

OpenLock openLock(const std::string& path) {
    const int made = ::open(path.c_str(), O_RDWR | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC, 0644);
    if (made >= 0) return {made, true};
    if (errno != EEXIST) return {};
    int present = ::open(path.c_str(), O_RDWR | O_NOFOLLOW | O_CLOEXEC);
    if (present < 0 && errno == EACCES) present = ::open(path.c_str(), O_RDONLY | O_NOFOLLOW | O_CLOEXEC);
    return {present, false};
}

LockHolder holderIn(int descriptor) {
    std::array<char, 4096> bytes{};
    const ssize_t count = ::pread(descriptor, bytes.data(), bytes.size(), 0);
    return LockHolder::fromText({bytes.data(), static_cast<std::size_t>(count > 0 ? count : 0)});
}

/// A lock that tells nothing is a lock all the same.
void tellHolder(int descriptor, const std::string& purpose) {
    const std::string text = LockHolder::present(purpose).text();
    if (::ftruncate(descriptor, 0) == 0)
        static_cast<void>(!::pwrite(descriptor, text.data(), text.size(), 0));
}

/// Whether the name still is that of the open file: a holder that ends removes it.
bool isNameOf(const std::string& path, int descriptor) {
    const auto named = LibraryFile::stampOf(path);
    const auto open = LibraryFile::stampOf(descriptor, path);
    return named && open && named.value().inode == open.value().inode &&
           named.value().device == open.value().device;
}

/// Takes a lock file away whose holder has ended; not one that somebody else has made in the meantime.
void removeEnded(const std::string& path) {
    const std::string aside = path + "-" + std::to_string(::getpid());
    if (std::rename(path.c_str(), aside.c_str()) != 0) return;
    const int descriptor = ::open(aside.c_str(), O_RDONLY | O_CLOEXEC);
    const bool ended = descriptor >= 0 && holderIn(descriptor).hasEnded();
    if (descriptor >= 0) ::close(descriptor);
    if (ended || renameToFreeName(aside, path) != 0) ::unlink(aside.c_str());
}

struct Attempt {
    enum class Outcome : std::uint8_t { locked, held, changed, failed };

    Outcome outcome = Outcome::failed;
    int descriptor = -1; ///< of the lock, once it is held
    Error error;
};

Attempt heldBy(const LockHolder& holder) {
    return {Attempt::Outcome::held, -1, {Error::Code::busy, holder.sentence()}};
}

/// Where the file system knows no locks: the file itself is the lock.
Attempt lockByName(const OpenLock& lock, const std::string& path) {
    if (lock.isNew) return {Attempt::Outcome::locked, lock.descriptor, {}};
    const LockHolder holder = holderIn(lock.descriptor);
    ::close(lock.descriptor);
    Attempt attempt = heldBy(holder);
    attempt.error.message += "; if that is not so, remove " + path;
    if (!holder.hasEnded()) return attempt;
    removeEnded(path);
    attempt.outcome = Attempt::Outcome::changed;
    return attempt;
}

Attempt tryOnce(const std::string& path) {
    const OpenLock lock = openLock(path);
    if (lock.descriptor < 0) {
        const bool vanished = errno == ENOENT && ::access(folderOf(path).c_str(), F_OK) == 0;
        return {vanished ? Attempt::Outcome::changed : Attempt::Outcome::failed, -1,
                systemError(errno, "lock the library by", path)};
    }
    if (::flock(lock.descriptor, LOCK_EX | LOCK_NB) != 0) {
        if (errno != EWOULDBLOCK && errno != EINTR) return lockByName(lock, path);
        Attempt attempt = heldBy(holderIn(lock.descriptor));
        ::close(lock.descriptor);
        return attempt;
    }
    if (isNameOf(path, lock.descriptor)) return {Attempt::Outcome::locked, lock.descriptor, {}};
    ::close(lock.descriptor); // Its holder has ended between the two calls.
    return {Attempt::Outcome::changed, -1, {Error::Code::busy, LockHolder().sentence()}};
}

/// Tries until the lock is held, or somebody else has held it for too long.
Attempt lockWithin(const std::string& path, std::chrono::milliseconds timeout) {
    const auto last = std::chrono::steady_clock::now() + timeout;
    for (int changes = 0;;) {
        Attempt attempt = tryOnce(path);
        if (attempt.outcome == Attempt::Outcome::changed && ++changes < mostChanges) continue;
        if (attempt.outcome == Attempt::Outcome::locked || attempt.outcome == Attempt::Outcome::failed)
            return attempt;
        if (std::chrono::steady_clock::now() >= last) return attempt;
        std::this_thread::sleep_for(pause);
    }
}

} // namespace

Result<CleanupLock> CleanupLock::acquire(const std::string& library, const Request& request) {
    auto real = realPath(library);
    if (!real) return real.error();
    const std::string path = folderOf(real.value()) + "/" + TemporaryName::ofLock(nameOf(real.value()));
    const Attempt attempt = lockWithin(path, request.timeout);
    if (attempt.outcome != Attempt::Outcome::locked) return attempt.error;
    tellHolder(attempt.descriptor, request.purpose);
    return CleanupLock(std::move(real).value(), path, attempt.descriptor);
}

CleanupLock::CleanupLock(CleanupLock&& other) noexcept
    : m_library(std::move(other.m_library))
    , m_path(std::move(other.m_path))
    , m_descriptor(std::exchange(other.m_descriptor, -1)) {}

CleanupLock& CleanupLock::operator=(CleanupLock&& other) noexcept {
    std::swap(m_library, other.m_library);
    std::swap(m_path, other.m_path);
    std::swap(m_descriptor, other.m_descriptor);
    return *this;
}

CleanupLock::~CleanupLock() {
    if (m_descriptor < 0) return;
    if (isNameOf(m_path, m_descriptor)) ::unlink(m_path.c_str());
    ::close(m_descriptor);
}

} // namespace songsweep
