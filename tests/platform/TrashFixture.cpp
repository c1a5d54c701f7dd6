// SPDX-License-Identifier: MIT
#include "TrashFixture.h"

#include <QByteArray>
#include <QProcess>

#include <sys/mount.h>

#include <cstring>
#include <fstream>
#include <iterator>

namespace songsweep::test {

namespace fs = std::filesystem;

namespace {

/// The value of a record's line "NAME=value".
std::string valueOf(const QByteArray& record, const char* name) {
    const qsizetype start = record.indexOf(QByteArray("\n") + name + '=') + qsizetype(std::strlen(name)) + 2;
    return record.mid(start, record.indexOf('\n', start) - start).toStdString();
}

} // namespace

std::string contentsOf(const fs::path& path) {
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

std::vector<Trashed> listTrash(const fs::path& trash) {
    std::vector<Trashed> files;
    if (!fs::exists(trash / "info")) return files;
    for (const fs::directory_entry& entry : fs::directory_iterator(trash / "info")) {
        const QByteArray record = QByteArray::fromStdString(contentsOf(entry.path()));
        EXPECT_TRUE(record.startsWith("[Trash Info]\n")) << record.toStdString();
        const QByteArray path = QByteArray::fromStdString(valueOf(record, "Path"));
        files.push_back({trash / "files" / entry.path().stem(), entry.path(),
                         QByteArray::fromPercentEncoding(path).toStdString(),
                         valueOf(record, "DeletionDate")});
    }
    return files;
}

Mount::Mount(const std::string& place, const QStringList& arguments)
    : m_place(place) {
    fs::create_directories(place);
    QProcess mount;
    mount.start(QStringLiteral("mount"), arguments + QStringList{QString::fromStdString(place)});
    m_mounted =
        mount.waitForFinished() && mount.exitStatus() == QProcess::NormalExit && mount.exitCode() == 0;
}

bool makeFileSystem(const std::string& image) {
    return QProcess::execute(QStringLiteral("mkfs.ext4"),
                             {QStringLiteral("-q"), QStringLiteral("-b"), QStringLiteral("1024"),
                              QStringLiteral("-m"), QStringLiteral("0"), QStringLiteral("-N"),
                              QStringLiteral("20000"), QString::fromStdString(image)}) == 0;
}

Mount::~Mount() {
    if (m_mounted) ::umount2(m_place.c_str(), MNT_DETACH);
}

} // namespace songsweep::test
