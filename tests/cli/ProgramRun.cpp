// SPDX-License-Identifier: MIT
#include "ProgramRun.h"

#include <QStringList>

#include <sys/types.h>

#include <csignal>
#include <thread>

namespace songsweep::test {

namespace {

constexpr int longestRun = 60'000; // milliseconds; a run that takes so long hangs

QStringList listOf(const std::vector<std::string>& arguments) {
    QStringList list;
    for (const std::string& argument : arguments)
        list.append(QString::fromStdString(argument));
    return list;
}

/// Whether a signal that was sent waits to be taken.
bool hasPendingSignal(pid_t process) {
    std::ifstream status("/proc/" + std::to_string(process) + "/status");
    for (std::string line; std::getline(status, line);)
        if (line.starts_with("ShdPnd:")) return line.find_first_of("123456789abcdef", 7) != std::string::npos;
    return false;
}

} // namespace

int killsATest(int few) {
    bool isNumber = false;
    const int wanted = qEnvironmentVariableIntValue("SONGSWEEP_KILLS", &isNumber);
    return isNumber ? wanted : few;
}

ProgramTest::ProgramTest()
    : m_environment(QProcessEnvironment::systemEnvironment()) {
    const QString home = QString::fromStdString(path("home"));
    std::filesystem::create_directories(path("home/data"));
    m_environment.insert(QStringLiteral("HOME"), home);
    m_environment.insert(QStringLiteral("XDG_DATA_HOME"), home + QStringLiteral("/data"));
    m_environment.insert(QStringLiteral("LC_ALL"), QStringLiteral("C.UTF-8"));
    m_environment.insert(QStringLiteral("TZ"), QStringLiteral("UTC"));
    m_environment.insert(QStringLiteral("DBUS_SESSION_BUS_ADDRESS"),
                         QStringLiteral("unix:path=/nonexistent"));
}

std::string ProgramTest::program() { return SONGSWEEP_PROGRAM; }

void ProgramTest::prepare(QProcess& process, const std::vector<std::string>& arguments) const {
    process.setProcessEnvironment(m_environment);
    process.setWorkingDirectory(QString::fromStdString(m_folder.path()));
    process.setProgram(QString::fromStdString(program()));
    process.setArguments(listOf(arguments));
    if (m_beforeStart) process.setChildProcessModifier(m_beforeStart);
}

RunResult ProgramTest::run(const std::vector<std::string>& arguments, const std::string& input) {
    QProcess process;
    prepare(process, arguments);
    process.start();
    process.write(QByteArray::fromStdString(input));
    process.closeWriteChannel();
    return resultOf(process);
}

RunResult ProgramTest::runInShell(const std::string& line, const std::vector<std::string>& arguments) {
    QProcess process;
    prepare(process, {});
    process.setProgram(QStringLiteral("/bin/sh"));
    process.setArguments(
        QStringList{QStringLiteral("-c"), QString::fromStdString(line), QString::fromStdString(program())} +
        listOf(arguments));
    process.start();
    return resultOf(process);
}

void ProgramTest::runAndKill(const std::vector<std::string>& arguments,
                             std::chrono::microseconds after) const {
    QProcess process;
    prepare(process, arguments);
    process.setStandardOutputFile(QProcess::nullDevice());
    process.setStandardErrorFile(QProcess::nullDevice());
    process.start();
    ASSERT_TRUE(process.waitForStarted());
    std::this_thread::sleep_for(after);
    process.kill();
    ASSERT_TRUE(process.waitForFinished());
}

void ProgramTest::sendSignal(const QProcess& process, int signal) {
    const auto id = static_cast<pid_t>(process.processId());
    ASSERT_EQ(::kill(id, signal), 0);
    while (hasPendingSignal(id))
        std::this_thread::yield();
}

RunResult resultOf(QProcess& process) {
    RunResult result;
    if (process.state() != QProcess::NotRunning) process.waitForFinished(longestRun);
    if (process.state() == QProcess::NotRunning && process.exitStatus() == QProcess::NormalExit)
        result.exitCode = process.exitCode();
    process.kill();
    process.waitForFinished();
    result.output = process.readAllStandardOutput().toStdString();
    result.errors = process.readAllStandardError().toStdString();
    return result;
}

} // namespace songsweep::test
