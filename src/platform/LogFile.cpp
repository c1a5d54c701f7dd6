// SPDX-License-Identifier: MIT
#include "platform/LogFile.h"

#include "platform/OwnDescriptor.h"

#include <QDir>
#include <QSaveFile>
#include <QStandardPaths>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdlib>
#include <cstring>
#include <filesystem>

namespace songsweep {

namespace {

/// By which a log that may be emptied is told from a file that somebody else needs.
constexpr std::string_view firstLine = "Songsweep log";

/// Makes or empties the file as a whole; a failure shows when it is opened.
void writeEmpty(const std::string& path) {
    QSaveFile file(QString::fromStdString(path));
    if (file.open(QIODevice::WriteOnly)) static_cast<void>(file.commit());
}

Error cannotWrite(const std::string& path, const std::string& reason) {
    return {Error::Code::inputOutput, "cannot write " + path + ": " + reason};
}

/// A file is looked at before it is emptied; a pipe or a device may be one that can only be written to.
int modeFor(const std::string& path) {
    struct stat status {};
    return ::stat(path.c_str(), &status) != 0 || S_ISREG(status.st_mode) ? O_RDWR : O_WRONLY;
}

bool beginsAsLog(int file) {
    std::string beginning(firstLine.size() + 1, '\0');
    const ssize_t count = ::pread(file, beginning.data(), beginning.size(), 0);
    return count == static_cast<ssize_t>(beginning.size()) && beginning == std::string(firstLine) + '\n';
}

} // namespace

std::optional<std::string> documentsFolder() {
    const QString folder = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
    if (folder.isEmpty()) return std::nullopt;
    return folder.toStdString();
}

std::string statesFolder() {
    const char* const given = std::getenv("XDG_STATE_HOME");
    if (given != nullptr && *given == '/') return given;
    return QDir::homePath().toStdString() + "/.local/state";
}

std::optional<std::string> logFolder(const std::optional<std::string>& documents, const std::string& states) {
    namespace fs = std::filesystem;
    std::error_code error;
    if (documents && fs::is_directory(*documents, error)) return documents;
    if (states.empty()) return std::nullopt;
    const std::string own = states + "/songsweep";
    fs::create_directories(own, error);
    if (!fs::is_directory(own, error)) return std::nullopt;
    return own;
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

Result<std::unique_ptr<InterruptibleLog>> openLogFile(const std::string& path) {
    if (const std::optional<int> own = ownDescriptor(path))
        return std::make_unique<InterruptibleLog>(*own, InterruptibleLog::Descriptor::staysOpen);
    // A pipe that nobody reads must not hang the program, so the open does not wait.
    const int file = ::open(path.c_str(), modeFor(path) | O_CREAT | O_APPEND | O_CLOEXEC | O_NONBLOCK, 0666);
    if (file < 0) return cannotWrite(path, errno == ENXIO ? "nobody reads this pipe" : std::strerror(errno));
    auto log = std::make_unique<InterruptibleLog>(file, InterruptibleLog::Descriptor::isClosed);
    struct stat status {};
    if (::fstat(file, &status) != 0) return cannotWrite(path, std::strerror(errno));
    if (S_ISREG(status.st_mode)) {
        if (status.st_size > 0 && !beginsAsLog(file)) return cannotWrite(path, "it is no log of Songsweep");
        if (::ftruncate(file, 0) != 0) return cannotWrite(path, std::strerror(errno));
        log->line(firstLine);
    }
    return log;
}

} // namespace songsweep
