// SPDX-License-Identifier: MIT
#include "libraryfile/SteppedProcess.h"

#include <gtest/gtest.h>
#include <sys/ptrace.h>
#include <sys/wait.h>
#include <unistd.h>

#include <csignal>

namespace songsweep::test {

SteppedProcess::SteppedProcess(const std::function<int()>& function)
    : m_process(::fork()) {
    if (m_process == 0) {
        if (::ptrace(PTRACE_TRACEME, 0, nullptr, nullptr) != 0) ::_exit(1);
        ::_exit(function());
    }
    EXPECT_EQ(::waitpid(m_process, &m_status, 0), m_process);
    EXPECT_TRUE(WIFSTOPPED(m_status)) << "ended early, with status " << WEXITSTATUS(m_status);
    runToStop();
}

SteppedProcess::~SteppedProcess() {
    if (!WIFSTOPPED(m_status)) return;
    ::kill(m_process, SIGKILL);
    ::waitpid(m_process, nullptr, 0);
}

void SteppedProcess::stepFromHere() { ::raise(SIGSTOP); }

bool SteppedProcess::step() {
    return runToStop() && runToStop(); // To where the system call returns, and to where the next begins.
}

bool SteppedProcess::succeeded() const { return WIFEXITED(m_status) && WEXITSTATUS(m_status) == 0; }

bool SteppedProcess::runToStop() {
    if (!WIFSTOPPED(m_status) || ::ptrace(PTRACE_SYSCALL, m_process, nullptr, nullptr) != 0) return false;
    EXPECT_EQ(::waitpid(m_process, &m_status, 0), m_process);
    return WIFSTOPPED(m_status);
}

} // namespace songsweep::test
