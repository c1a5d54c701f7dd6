// SPDX-License-Identifier: MIT
#include "platform/LogFile.h"

#include <QSaveFile>
#include <QStandardPaths>

#include <fcntl.h>
#include <unistd.h>

#include <cerrno>
#include <cstring>

namespace songsweep {

namespace {

/// Makes or empties the file as a whole; a failure shows when it is opened.
void writeEmpty(const std::string& path) {
    QSaveFile file(QString::fromStdString(path));
    if (file.open(QIODevice::WriteOnly)) static_cast<void>(file.commit());
}

/// Lines to a file of its own.
class FileLog final : public Log {
  public:
    explicit FileLog(int descriptor)
        : m_descriptor(descriptor)
        , m_lines(descriptor) {}
    ~FileLog() override { ::close(m_descriptor); }
    void line(std::string_view text) override { m_lines.line(text); }

  private:
    int m_descriptor;
    DescriptorLog m_lines;
};

} // namespace

std::optional<std::string> documentsFolder() {
    const QString folder = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
    if (folder.isEmpty()) return std::nullopt;
    return folder.toStdString();
}

bool redirectStandardError(const std::optional<std::string>& folder, Log& log, int descriptor) {
    if (!folder) return false;
    const std::string path = *folder + "/songsweep-log.txt";
    log.line(path);
    writeEmpty(path);
    // Never closed: it lives as long as the process.
    const int file = ::open(path.c_str(), O_WRONLY | O_CLOEXEC);
    if (file < 0) {
        log.line("Opening log failed");
        return false;
    }
    if (::dup2(file, descriptor) != 0) return true;
    log.line("Couldn't redirect stderr");
    return false;
}

Result<std::unique_ptr<Log>> openLogFile(const std::string& path) {
    const int file = ::open(path.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_APPEND | O_CLOEXEC, 0666);
    if (file < 0)
        return Error{Error::Code::inputOutput, "cannot write " + path + ": " + std::strerror(errno)};
    return std::unique_ptr<Log>(std::make_unique<FileLog>(file));
}

} // namespace songsweep
