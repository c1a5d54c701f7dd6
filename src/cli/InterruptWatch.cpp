// SPDX-License-Identifier: MIT
#include "cli/InterruptWatch.h"

#include "cli/Options.h"

#include <QCoreApplication>

#include <pthread.h>
#include <unistd.h>

#include <csignal>

namespace songsweep::cli {

namespace {

/// Ends the watching thread; nobody else sends it.
constexpr int endSignal = SIGUSR2;

sigset_t watchedSignals() {
    sigset_t signals;
    sigemptyset(&signals);
    for (const int signal : {SIGINT, SIGTERM, endSignal})
        sigaddset(&signals, signal);
    return signals;
}

} // namespace

InterruptWatch::InterruptWatch(std::function<void()> handler)
    : m_handler(std::move(handler)) {
    const sigset_t signals = watchedSignals();
    pthread_sigmask(SIG_BLOCK, &signals, nullptr);
    m_thread = std::thread([this] { watch(); });
}

InterruptWatch::~InterruptWatch() {
    pthread_kill(m_thread.native_handle(), endSignal);
    m_thread.join();
}

void InterruptWatch::watch() {
    const sigset_t signals = watchedSignals();
    for (bool first = true;; first = false) {
        int signal = 0;
        if (sigwait(&signals, &signal) != 0 || signal == endSignal) return;
        if (!first) ::_exit(static_cast<int>(ExitCode::interrupted));
        QMetaObject::invokeMethod(QCoreApplication::instance(), m_handler, Qt::QueuedConnection);
    }
}

} // namespace songsweep::cli
