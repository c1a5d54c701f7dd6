// SPDX-License-Identifier: MIT
#include "platform/SignalWatch.h"

#include <fcntl.h>
#include <unistd.h>

#include <array>
#include <atomic>
#include <cerrno>

namespace songsweep {

namespace {

/// The pipe of the present watch, or -1. Static, as a signal handler can reach nothing else.
std::atomic<int> presentPipe{-1};
std::atomic<bool> signalCame{false};
static_assert(std::atomic<int>::is_always_lock_free && std::atomic<bool>::is_always_lock_free);

void tell(int) {
    const int formerError = errno;
    const char byte = 0;
    signalCame = true;
    // A pipe that is full has told enough.
    [[maybe_unused]] const ssize_t written = ::write(presentPipe, &byte, 1);
    errno = formerError;
}

} // namespace

SignalWatch::SignalWatch(std::function<void(int)> handler)
    : m_handler(std::move(handler)) {
    std::array<int, 2> ends{};
    if (::pipe(ends.data()) != 0) return; // The signals then do what they always do.
    for (const int end : ends)
        ::fcntl(end, F_SETFD, FD_CLOEXEC);
    ::fcntl(ends[1], F_SETFL, O_NONBLOCK);
    m_readingEnd = ends[0];
    m_writingEnd = ends[1];
    presentPipe = m_writingEnd;
    signalCame = false;
    m_thread = std::thread([this] { watch(); });
    replaceActions();
}

SignalWatch::~SignalWatch() {
    if (!m_thread.joinable()) return;
    for (const auto& [signal, action] : m_formerActions)
        ::sigaction(signal, &action, nullptr);
    presentPipe = -1;
    ::close(m_writingEnd);
    m_thread.join();
    ::close(m_readingEnd);
}

bool SignalWatch::hasSignal() { return signalCame; }

void SignalWatch::replaceActions() {
    struct sigaction action {};
    action.sa_handler = tell;
    action.sa_flags = SA_RESTART;
    sigemptyset(&action.sa_mask);
    for (const int signal : {SIGINT, SIGHUP, SIGTERM}) {
        struct sigaction former {};
        if (::sigaction(signal, nullptr, &former) != 0 || former.sa_handler == SIG_IGN) continue;
        if (::sigaction(signal, &action, nullptr) == 0) m_formerActions.emplace_back(signal, former);
    }
}

/// Ends when the other end of the pipe is closed.
void SignalWatch::watch() {
    for (int count = 0;;) {
        char byte = 0;
        const ssize_t read = ::read(m_readingEnd, &byte, 1);
        if (read == 0 || (read < 0 && errno != EINTR)) return;
        if (read == 1) m_handler(++count);
    }
}

} // namespace songsweep
