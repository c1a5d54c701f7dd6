// SPDX-License-Identifier: MIT
#include "platform/linux/Opener.h"

#include "platform/FileUrl.h"
#include "platform/linux/SessionBus.h"

#include <QProcess>
#include <QStandardPaths>
#include <QStringList>

namespace songsweep {

namespace {

constexpr std::chrono::milliseconds fileManagerLimit{5000};

Result<void> openByCommand(const std::string& url, const Error& reason) {
    const QString command = QStandardPaths::findExecutable(QStringLiteral("xdg-open"));
    if (command.isEmpty() || !QProcess::startDetached(command, {QString::fromStdString(url)})) return reason;
    return {};
}

Result<void> selectInFileManager(const std::string& path) {
    const Result<SessionBus> bus = SessionBus::open();
    if (!bus) return bus.error();
    const std::string url = fileUrl(path);
    const char* urls[] = {url.c_str(), nullptr};
    const SessionBus::Method showItems{"org.freedesktop.FileManager1", "/org/freedesktop/FileManager1",
                                       "org.freedesktop.FileManager1", "ShowItems"};
    const auto answer = bus.value().call(showItems, g_variant_new("(^ass)", urls, ""), fileManagerLimit);
    if (!answer) return answer.error();
    return {};
}

std::string folderOf(const std::string& path) {
    const std::size_t slash = path.find_last_of('/');
    return slash == 0 ? "/" : path.substr(0, slash);
}

} // namespace

Result<void> openWithDefault(const std::string& url) {
    GError* error = nullptr;
    if (g_app_info_launch_default_for_uri(url.c_str(), nullptr, &error) != 0) return {};
    return openByCommand(url, gio::errorFrom(error));
}

Result<void> showFile(const std::string& path) {
    if (!path.starts_with('/')) return Error{Error::Code::invalid, "Not an absolute path"};
    if (selectInFileManager(path)) return {};
    return openWithDefault(fileUrl(folderOf(path)));
}

} // namespace songsweep
