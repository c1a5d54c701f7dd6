// SPDX-License-Identifier: MIT
#include "cli/Output.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstring>
#include <utility>

namespace songsweep::cli {

namespace {

constexpr std::size_t bufferSize = std::size_t{1} << 16;

Error cannotWrite(const std::string& path, int errorNumber) {
    return {Error::Code::inputOutput, "cannot write " + path + ": " + std::strerror(errorNumber)};
}

bool isSpecialFile(const std::string& path) {
    struct stat status = {};
    return ::stat(path.c_str(), &status) == 0 && !S_ISREG(status.st_mode) && !S_ISDIR(status.st_mode);
}

} // namespace

Result<Output> Output::open(const std::string& path) {
    if (path.empty()) return Output({}, {}, STDOUT_FILENO);
    if (isSpecialFile(path)) { // a device or a pipe is written to, never replaced
        const int descriptor = ::open(path.c_str(), O_WRONLY | O_CLOEXEC);
        if (descriptor < 0) return cannotWrite(path, errno);
        return Output(path, {}, descriptor);
    }
    struct stat status = {};
    if (::stat(path.c_str(), &status) == 0 && S_ISDIR(status.st_mode)) return cannotWrite(path, EISDIR);
    std::string temporary = path + ".XXXXXX";
    const int descriptor = ::mkstemp(temporary.data());
    if (descriptor < 0) return cannotWrite(path, errno);
    const mode_t mask = ::umask(0);
    ::umask(mask);
    (void)::fchmod(descriptor, 0666 & ~mask);
    return Output(path, temporary, descriptor);
}

Output::Output(std::string path, std::string temporaryPath, int descriptor)
    : m_path(std::move(path))
    , m_temporaryPath(std::move(temporaryPath))
    , m_descriptor(descriptor) {}

Output::Output(Output&& other) noexcept
    : m_path(std::move(other.m_path))
    , m_temporaryPath(std::exchange(other.m_temporaryPath, {}))
    , m_descriptor(std::exchange(other.m_descriptor, -1))
    , m_buffer(std::move(other.m_buffer))
    , m_closedPipe(other.m_closedPipe)
    , m_error(std::move(other.m_error)) {}

Output::~Output() {
    if (m_descriptor > STDERR_FILENO) ::close(m_descriptor);
    if (!m_temporaryPath.empty()) ::unlink(m_temporaryPath.c_str());
}

void Output::write(std::string_view text) {
    m_buffer += text;
    if (m_buffer.size() >= bufferSize) flush();
}

void Output::flush() {
    for (std::size_t done = 0; done < m_buffer.size() && !m_closedPipe && m_error.empty();) {
        const ssize_t written = ::write(m_descriptor, m_buffer.data() + done, m_buffer.size() - done);
        if (written >= 0) {
            done += static_cast<std::size_t>(written);
        } else if (errno == EPIPE) {
            m_closedPipe = true;
        } else if (errno != EINTR) {
            m_error = cannotWrite(m_path.empty() ? "the result" : m_path, errno).message;
        }
    }
    m_buffer.clear();
}

Result<void> Output::finish() {
    flush();
    if (m_error.empty() && !m_temporaryPath.empty()) {
        if (::fsync(m_descriptor) != 0 || ::rename(m_temporaryPath.c_str(), m_path.c_str()) != 0)
            m_error = cannotWrite(m_path, errno).message;
        else
            m_temporaryPath.clear();
    }
    if (!m_error.empty()) return Error{Error::Code::inputOutput, m_error};
    return {};
}

} // namespace songsweep::cli
