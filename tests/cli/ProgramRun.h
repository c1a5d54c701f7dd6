// SPDX-License-Identifier: MIT
#pragma once

#include "support/TemporaryFolder.h"

#include <QProcess>
#include <QProcessEnvironment>

#include <gtest/gtest.h>

#include <chrono>
#include <functional>
#include <string>
#include <vector>

namespace songsweep::test {

/// What a run of the program came to.
struct RunResult {
    int exitCode = -1; ///< -1 for a crash or a run that does not end
    std::string output;
    std::string errors;
};

/// How often a test kills the program at random moments: few times, since each needs a run of its own, or as
/// many as SONGSWEEP_KILLS says.
int killsATest(int few);

/// A test that runs the real program, in a home of its own and without a desktop session.
class ProgramTest : public ::testing::Test {
  protected:
    ProgramTest();

    /// Runs it to its end with the arguments and what it reads from standard input.
    RunResult run(const std::vector<std::string>& arguments, const std::string& input = {});

    /// Runs a line of the shell in which "$0" is the program and "$1" and so on the arguments.
    RunResult runInShell(const std::string& line, const std::vector<std::string>& arguments);

    /// Prepares a process of the program; the test starts it and waits for it.
    void prepare(QProcess& process, const std::vector<std::string>& arguments) const;

    /// Runs it for a while and kills it; it may have ended before.
    void runAndKill(const std::vector<std::string>& arguments, std::chrono::microseconds after) const;

    /// Sends a signal and waits until the process has taken it.
    static void sendSignal(const QProcess& process, int signal);

    static std::string program();
    std::string path(const std::string& name) const { return m_folder.path() + "/" + name; }

    TemporaryFolder m_folder;
    QProcessEnvironment m_environment;
    /// Runs in the child before the program begins.
    std::function<void()> m_beforeStart;
};

/// The result of a process that was started.
RunResult resultOf(QProcess& process);

} // namespace songsweep::test
