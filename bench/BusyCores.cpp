// SPDX-License-Identifier: MIT
#include "BusyCores.h"

#include <sys/prctl.h>
#include <sys/wait.h>
#include <unistd.h>

#include <atomic>
#include <csignal>
#include <thread>

namespace songsweep::bench {

namespace {

/// In the child: ends with its parent, else never.
[[noreturn]] void beBusy() {
    prctl(PR_SET_PDEATHSIG, SIGKILL);
    std::atomic<unsigned> turns = 0;
    while (true)
        turns.fetch_add(1, std::memory_order_relaxed);
}

} // namespace

BusyCores::BusyCores() {
    const auto cores = std::thread::hardware_concurrency();
    for (unsigned core = 0; core < cores; ++core) {
        const pid_t process = fork();
        if (process == 0) beBusy();
        if (process > 0) m_processes.push_back(process);
    }
}

BusyCores::~BusyCores() {
    for (const auto process : m_processes) {
        kill(process, SIGKILL);
        waitpid(process, nullptr, 0);
    }
}

} // namespace songsweep::bench
