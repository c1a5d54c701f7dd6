// SPDX-License-Identifier: MIT
#include "window/VirtualDisplay.h"

#include <QProcessEnvironment>
#include <QtEndian>

#include <sys/prctl.h>

#include <csignal>

namespace songsweep::test {

namespace {

constexpr int startLimit = 60'000; // milliseconds; only a server that does not work takes so long

/// Where the values stand in the head of the server's picture, in words of four bytes, the highest byte
/// first.
enum Head : int { headSize = 0, width = 4, height = 5, bytesPerLine = 12, colors = 19, headWords = 25 };

void endWithUs(QProcess& process) {
    process.setStandardErrorFile(QProcess::nullDevice());
    process.setChildProcessModifier([] { ::prctl(PR_SET_PDEATHSIG, SIGKILL); });
}

void end(QProcess& process) {
    process.terminate();
    process.waitForFinished();
}

} // namespace

VirtualDisplay::VirtualDisplay() {
    startServer();
    if (!m_name.isEmpty()) startWindowManager();
}

VirtualDisplay::~VirtualDisplay() {
    end(m_windowManager);
    end(m_server);
}

void VirtualDisplay::startServer() {
    endWithUs(m_server);
    m_server.start(QStringLiteral("Xvfb"),
                   {QStringLiteral("-displayfd"), QStringLiteral("1"), QStringLiteral("-screen"),
                    QStringLiteral("0"), QStringLiteral("1400x900x24"), QStringLiteral("-nolisten"),
                    QStringLiteral("tcp"), QStringLiteral("-noreset"), QStringLiteral("-fbdir"),
                    QString::fromStdString(m_folder.path())});
    while (!m_server.canReadLine() && m_server.waitForReadyRead(startLimit)) {
    }
    const QByteArray number = m_server.readLine().trimmed();
    if (!number.isEmpty()) m_name = QLatin1Char(':') + QString::fromLatin1(number);
}

void VirtualDisplay::startWindowManager() {
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("DISPLAY"), m_name);
    environment.insert(QStringLiteral("HOME"), QString::fromStdString(m_folder.path()));
    environment.remove(QStringLiteral("XDG_CONFIG_HOME"));
    endWithUs(m_windowManager);
    m_windowManager.setStandardOutputFile(QProcess::nullDevice());
    m_windowManager.setProcessEnvironment(environment);
    m_windowManager.start(QStringLiteral("openbox"), {QStringLiteral("--sm-disable")});
    m_windowManager.waitForStarted(startLimit);
}

QImage VirtualDisplay::picture() const {
    const std::string bytes = m_folder.read("Xvfb_screen0");
    const auto word = [&bytes](int index) { return qFromBigEndian<quint32>(bytes.data() + 4 * index); };
    if (bytes.size() < 4 * headWords) return {};
    constexpr quint32 bytesPerColor = 12;
    const quint32 start = word(headSize) + word(colors) * bytesPerColor;
    if (bytes.size() < start + std::size_t{word(bytesPerLine)} * word(height)) return {};
    const auto* pixels = reinterpret_cast<const uchar*>(bytes.data() + start);
    return QImage(pixels, static_cast<int>(word(width)), static_cast<int>(word(height)),
                  static_cast<int>(word(bytesPerLine)), QImage::Format_RGB32)
        .copy();
}

} // namespace songsweep::test
