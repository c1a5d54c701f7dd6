// SPDX-License-Identifier: MIT
#include "platform/linux/SoundServer.h"

#include <QProcess>
#include <QStandardPaths>
#include <QStringList>

#include <unistd.h>

namespace songsweep {

namespace {

constexpr int toolLimitMilliseconds = 3000;

struct Tool {
    QString name;
    QStringList arguments;
};

Error failure(const Tool& tool, const QString& reason) {
    return {Error::Code::failed, (tool.name + QStringLiteral(": ") + reason).toStdString()};
}

Result<void> run(const Tool& tool, const QString& program) {
    QProcess process;
    process.setChildProcessModifier([] { ::setpgid(0, 0); }); // Ctrl-C is for this program, not for the tool
    process.start(program, tool.arguments, QIODevice::ReadOnly);
    process.closeWriteChannel();
    if (!process.waitForFinished(toolLimitMilliseconds)) {
        const QString reason = process.errorString();
        process.kill();
        process.waitForFinished(toolLimitMilliseconds);
        return failure(tool, reason);
    }
    if (process.exitStatus() == QProcess::NormalExit && process.exitCode() == 0) return {};
    return failure(tool, QString::fromLocal8Bit(process.readAllStandardError()).trimmed());
}

} // namespace

Result<void> muteDefaultOutput(bool muted) {
    const QString state = muted ? QStringLiteral("1") : QStringLiteral("0");
    const Tool tools[] = {{QStringLiteral("wpctl"),
                           {QStringLiteral("set-mute"), QStringLiteral("@DEFAULT_AUDIO_SINK@"), state}},
                          {QStringLiteral("pactl"),
                           {QStringLiteral("set-sink-mute"), QStringLiteral("@DEFAULT_SINK@"), state}}};
    Result<void> result;
    for (const Tool& tool : tools) {
        const QString program = QStandardPaths::findExecutable(tool.name);
        if (program.isEmpty()) continue;
        result = run(tool, program);
        if (result) break;
    }
    return result;
}

} // namespace songsweep
