// SPDX-License-Identifier: MIT
#include "cli/Output.h"

#include "platform/OwnDescriptor.h"
#include "platform/TerminalText.h"

#include <fcntl.h>
#include <limits.h>
#include <poll.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstring>
#include <filesystem>
#include <optional>
#include <utility>

namespace songsweep::cli {

namespace {

constexpr std::size_t bufferSize = std::size_t{1} << 16;
constexpr int waitMilliseconds = 50; // how soon an interrupt is seen
constexpr int mostLinks = 40;        // as many as the system follows

Error cannotWrite(const std::string& path, int errorNumber) {
    return {Error::Code::inputOutput, "cannot write " + path + ": " + std::strerror(errorNumber)};
}

/// What is there already; nothing where a new file is made.
std::optional<struct stat> statusOf(const std::string& path) {
    struct stat status = {};
    if (::stat(path.c_str(), &status) != 0) return {};
    return status;
}

mode_t modeOfNewFiles() {
    const mode_t mask = ::umask(0);
    ::umask(mask);
    return 0666 & ~mask;
}

/// The file that the path leads to, through links, be it there or not.
std::string linkedFile(std::string path) {
    std::error_code error;
    for (int links = 0; links < mostLinks; ++links) {
        const std::filesystem::path target = std::filesystem::read_symlink(path, error);
        if (error) break;
        path = std::filesystem::path(path).parent_path() / target;
    }
    return path;
}

/// Waits for the reader of a pipe.
int openSpecial(const std::string& path, const Output::Interrupted& interrupted) {
    for (;;) {
        const int descriptor = ::open(path.c_str(), O_WRONLY | O_CLOEXEC | O_NONBLOCK);
        if (descriptor >= 0 || errno != ENXIO) return descriptor;
        if (interrupted()) {
            errno = ECANCELED;
            return -1;
        }
        ::poll(nullptr, 0, waitMilliseconds);
    }
}

/// What is writable takes so much at once without making the writer wait.
std::size_t largestPieceOf(int descriptor) {
    struct stat status = {};
    const bool isFile = ::fstat(descriptor, &status) == 0 && S_ISREG(status.st_mode);
    return isFile ? bufferSize : PIPE_BUF;
}

/// Gives one file the contents of another.
bool overwrite(int from, int to) {
    std::array<char, bufferSize> piece{};
    off_t done = 0;
    for (;;) {
        const ssize_t count = ::pread(from, piece.data(), piece.size(), done);
        if (count == 0) return ::ftruncate(to, done) == 0 && ::fsync(to) == 0;
        if (count < 0 || ::pwrite(to, piece.data(), static_cast<std::size_t>(count), done) != count)
            return false;
        done += count;
    }
}

} // namespace

Result<Output> Output::open(const std::string& path, Interrupted interrupted) {
    if (path.empty()) return Output({}, {}, STDOUT_FILENO, std::move(interrupted));
    if (const std::optional<int> own = ownDescriptor(path))
        return Output(path, {}, *own, std::move(interrupted));
    const std::optional<struct stat> present = statusOf(path);
    if (present && S_ISDIR(present->st_mode)) return cannotWrite(path, EISDIR);
    if (present && !S_ISREG(present->st_mode)) { // a device or a pipe is written to, never replaced
        const int descriptor = openSpecial(path, interrupted);
        if (descriptor < 0 && errno == ECANCELED) return Error{Error::Code::cancelled, "interrupted"};
        if (descriptor < 0) return cannotWrite(path, errno);
        return Output(path, {}, descriptor, std::move(interrupted));
    }
    const std::string file = linkedFile(path);
    std::string temporary = file + ".XXXXXX";
    const int descriptor = ::mkstemp(temporary.data());
    if (descriptor < 0) return cannotWrite(path, errno);
    Output output(file, temporary, descriptor, std::move(interrupted));
    if (present && ::fchown(descriptor, present->st_uid, present->st_gid) != 0) {
        // Only its contents can become others then, not the file itself.
        output.m_target = ::open(file.c_str(), O_WRONLY | O_CLOEXEC);
        if (output.m_target < 0) return cannotWrite(path, errno);
    }
    (void)::fchmod(descriptor, present ? present->st_mode & 0777U : modeOfNewFiles());
    return output;
}

Output::Output(std::string path, std::string temporaryPath, int descriptor, Interrupted interrupted)
    : m_path(std::move(path))
    , m_temporaryPath(std::move(temporaryPath))
    , m_descriptor(descriptor)
    , m_interrupted(std::move(interrupted))
    , m_terminal(::isatty(descriptor) == 1)
    , m_largestPiece(largestPieceOf(descriptor)) {}

Output::Output(Output&& other) noexcept
    : m_path(std::move(other.m_path))
    , m_temporaryPath(std::exchange(other.m_temporaryPath, {}))
    , m_descriptor(std::exchange(other.m_descriptor, -1))
    , m_target(std::exchange(other.m_target, -1))
    , m_interrupted(std::move(other.m_interrupted))
    , m_terminal(other.m_terminal)
    , m_largestPiece(other.m_largestPiece)
    , m_buffer(std::move(other.m_buffer))
    , m_closedPipe(other.m_closedPipe)
    , m_error(std::move(other.m_error)) {}

Output::~Output() {
    if (m_descriptor > STDERR_FILENO) ::close(m_descriptor);
    if (m_target >= 0) ::close(m_target);
    if (!m_temporaryPath.empty()) ::unlink(m_temporaryPath.c_str());
}

void Output::write(std::string_view text) {
    if (m_terminal)
        m_buffer += terminalText(text);
    else
        m_buffer += text;
    if (m_buffer.size() >= bufferSize) flush();
}

void Output::flush() {
    for (std::size_t done = 0; done < m_buffer.size() && waitUntilWritable();) {
        const std::size_t piece = std::min(m_buffer.size() - done, m_largestPiece);
        const ssize_t written = ::write(m_descriptor, m_buffer.data() + done, piece);
        if (written >= 0) {
            done += static_cast<std::size_t>(written);
        } else if (errno == EPIPE) {
            m_closedPipe = true;
        } else if (errno != EINTR && errno != EAGAIN) {
            m_error = cannotWrite(m_path.empty() ? "the result" : m_path, errno);
        }
    }
    m_buffer.clear();
}

/// False where nothing more is to be written.
bool Output::waitUntilWritable() {
    while (!m_closedPipe && m_error.message.empty()) {
        if (m_interrupted()) {
            m_error = {Error::Code::cancelled, "interrupted"};
            break;
        }
        pollfd target{m_descriptor, POLLOUT, 0};
        const int ready = ::poll(&target, 1, waitMilliseconds);
        // The signal of an interrupt may end the waiting, too; any other error shows in the write.
        if (ready > 0 || (ready < 0 && errno != EINTR)) return true;
    }
    return false;
}

Result<void> Output::finish() {
    flush();
    if (m_error.message.empty() && !m_temporaryPath.empty()) takePlace();
    if (!m_error.message.empty()) return m_error;
    return {};
}

void Output::takePlace() {
    const bool replaced =
        m_target >= 0 ? overwrite(m_descriptor, m_target)
                      : ::fsync(m_descriptor) == 0 && ::rename(m_temporaryPath.c_str(), m_path.c_str()) == 0;
    if (!replaced)
        m_error = cannotWrite(m_path, errno);
    else if (m_target < 0)
        m_temporaryPath.clear();
}

} // namespace songsweep::cli
