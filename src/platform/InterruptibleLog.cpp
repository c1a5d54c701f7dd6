// SPDX-License-Identifier: MIT
#include "platform/InterruptibleLog.h"

#include "platform/TerminalText.h"

#include <limits.h>
#include <poll.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>

namespace songsweep {

namespace {

constexpr int waitMilliseconds = 50; // how soon a request to end is seen
constexpr int mostWaitsInTheEnd = 20;
/// What a pipe that is writable takes without making the writer wait.
constexpr std::size_t largestPiece = PIPE_BUF;

} // namespace

InterruptibleLog::~InterruptibleLog() {
    if (m_end == Descriptor::isClosed) ::close(m_descriptor);
}

void InterruptibleLog::line(std::string_view text) {
    std::string whole = ::isatty(m_descriptor) == 1 ? terminalLine(text) : std::string(text);
    whole += '\n';
    const std::lock_guard lock(m_lock);
    for (std::size_t done = 0; done < whole.size();) {
        if (!waitUntilWritable()) return;
        const std::size_t piece = std::min(whole.size() - done, largestPiece);
        const ssize_t written = ::write(m_descriptor, whole.data() + done, piece);
        if (written < 0 && (errno == EINTR || errno == EAGAIN)) continue;
        if (written <= 0) return;
        done += static_cast<std::size_t>(written);
    }
}

/// False once the process ends and nobody has read for long enough.
bool InterruptibleLog::waitUntilWritable() {
    for (;;) {
        const bool hasWaited = m_endsSoon && m_waitsInTheEnd >= mostWaitsInTheEnd;
        pollfd target{m_descriptor, POLLOUT, 0};
        const int ready = ::poll(&target, 1, hasWaited ? 0 : waitMilliseconds);
        if (ready > 0 || (ready < 0 && errno != EINTR)) return true; // an error shows in the write
        if (ready == 0 && hasWaited) return false;
        if (ready == 0 && m_endsSoon) ++m_waitsInTheEnd;
    }
}

} // namespace songsweep
