// SPDX-License-Identifier: MIT
#include "libraryfile/SmallDisk.h"

#include <QProcess>

#include <fcntl.h>
#include <sys/statvfs.h>
#include <unistd.h>

#include <algorithm>
#include <filesystem>
#include <fstream>

namespace songsweep::test {

namespace {

bool run(const QString& program, const QStringList& arguments) {
    QProcess process;
    process.start(program, arguments);
    return process.waitForFinished() && process.exitStatus() == QProcess::NormalExit &&
           process.exitCode() == 0;
}

} // namespace

SmallDisk::SmallDisk(const std::string& folder, std::size_t megabytes)
    : m_path(folder)
    , m_image(folder + ".image") {
    std::filesystem::create_directory(m_path);
    std::ofstream(m_image).flush();
    std::filesystem::resize_file(m_image, megabytes << 20);
    const QString image = QString::fromStdString(m_image);
    m_mounted = run(QStringLiteral("mkfs.ext4"),
                    {QStringLiteral("-q"), QStringLiteral("-m"), QStringLiteral("0"), image}) &&
                run(QStringLiteral("mount"),
                    {QStringLiteral("-o"), QStringLiteral("loop"), image, QString::fromStdString(m_path)});
}

SmallDisk::~SmallDisk() {
    if (m_mounted) run(QStringLiteral("umount"), {QStringLiteral("-l"), QString::fromStdString(m_path)});
    std::filesystem::remove(m_image);
}

void SmallDisk::leaveFree(std::size_t bytes) const {
    const std::string filler = m_path + "/filler";
    const int descriptor = ::open(filler.c_str(), O_WRONLY | O_CREAT | O_TRUNC, 0600);
    off_t size = 0;
    for (std::size_t step = 1 << 20; step >= 1024; step /= 2) {
        struct statvfs status {};
        while (::fstatvfs(descriptor, &status) == 0 && status.f_bfree * status.f_frsize >= bytes + step) {
            if (::fallocate(descriptor, 0, size, static_cast<off_t>(step)) != 0) break;
            size += static_cast<off_t>(step);
        }
    }
    ::close(descriptor);
}

} // namespace songsweep::test
