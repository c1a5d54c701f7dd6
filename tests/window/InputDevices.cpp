// SPDX-License-Identifier: MIT
#include "window/InputDevices.h"

#include <QProcess>
#include <QProcessEnvironment>

#include <gtest/gtest.h>

namespace songsweep::test {

namespace {

constexpr int actionLimit = 60'000; // milliseconds

QStringList movingTo(QPoint place) {
    return {QStringLiteral("mousemove"), QString::number(place.x()), QString::number(place.y())};
}

} // namespace

void InputDevices::press(const std::string& keys) const {
    act({QStringLiteral("key"), QString::fromStdString(keys)});
}

void InputDevices::click(QPoint place) const {
    act(movingTo(place) + QStringList{QStringLiteral("click"), QStringLiteral("1")});
}

void InputDevices::doubleClick(QPoint place) const {
    act(movingTo(place) + QStringList{QStringLiteral("click"), QStringLiteral("--repeat"),
                                      QStringLiteral("2"), QStringLiteral("--delay"), QStringLiteral("20"),
                                      QStringLiteral("1")});
}

std::string InputDevices::activeWindow() const {
    const Answer answer = run({QStringLiteral("getactivewindow"), QStringLiteral("getwindowname")});
    return answer.succeeded ? answer.text.trimmed().toStdString() : std::string();
}

InputDevices::Answer InputDevices::run(const QStringList& arguments) const {
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("DISPLAY"), m_display);
    QProcess tool;
    tool.setProcessEnvironment(environment);
    tool.start(QStringLiteral("xdotool"), arguments);
    const bool ended = tool.waitForFinished(actionLimit);
    return {.succeeded = ended && tool.exitStatus() == QProcess::NormalExit && tool.exitCode() == 0,
            .text = QString::fromUtf8(tool.readAllStandardOutput())};
}

void InputDevices::act(const QStringList& arguments) const {
    EXPECT_TRUE(run(arguments).succeeded) << arguments.join(QLatin1Char(' ')).toStdString();
}

} // namespace songsweep::test
