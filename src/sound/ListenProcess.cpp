// SPDX-License-Identifier: MIT
#include "sound/ListenProcess.h"

#include "sound/ListenAnswer.h"

#include <QByteArray>
#include <QString>

#include <utility>

namespace songsweep {

namespace {

constexpr int glance = 50;        // milliseconds between two questions whether to go on
constexpr int startLimit = 5'000; // milliseconds

} // namespace

ListenProcess::ListenProcess(std::string program, std::chrono::milliseconds limit)
    : m_program(std::move(program))
    , m_limit(limit) {
    m_process.setStandardErrorFile(QProcess::nullDevice());
}

ListenProcess::~ListenProcess() { end(); }

Result<Fingerprint> ListenProcess::listen(const std::string& path, const std::function<bool()>& cancelled) {
    if (!start()) return Error{.message = m_program + " does not start"};
    m_process.write(path.c_str(), static_cast<qint64>(path.size()) + 1); // with the zero behind it
    const Result<std::string> line = readLine(cancelled);
    if (line) return readAnswer(line.value());
    end(); // what it may still say belongs to no later file
    return line.error();
}

bool ListenProcess::start() {
    if (m_process.state() == QProcess::Running) return true;
    m_process.start(QString::fromStdString(m_program), QStringList());
    return m_process.waitForStarted(startLimit);
}

void ListenProcess::end() {
    if (m_process.state() == QProcess::NotRunning) return;
    m_process.kill();
    m_process.waitForFinished();
}

Result<std::string> ListenProcess::readLine(const std::function<bool()>& cancelled) {
    const auto deadline = std::chrono::steady_clock::now() + m_limit;
    while (!m_process.canReadLine()) {
        if (cancelled()) return Error{Error::Code::cancelled, "cancelled"};
        if (std::chrono::steady_clock::now() >= deadline) return Error{.message = "takes too long"};
        if (m_process.bytesAvailable() > static_cast<qint64>(longestAnswer))
            return Error{.message = "answers too much"};
        if (m_process.waitForReadyRead(glance)) continue;
        if (m_process.state() == QProcess::NotRunning) return Error{.message = "brings the decoder down"};
    }
    QByteArray line = m_process.readLine(static_cast<qint64>(longestAnswer));
    line.chop(1);
    return line.toStdString();
}

} // namespace songsweep
