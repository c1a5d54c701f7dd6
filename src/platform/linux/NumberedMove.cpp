// SPDX-License-Identifier: MIT
#include "platform/linux/NumberedMove.h"

#include "platform/LocalName.h"
#include "platform/linux/Gio.h"
#include "platform/linux/MoveToFreeName.h"
#include "platform/linux/PathParts.h"
#include "platform/linux/TrashFolders.h"

#include <fcntl.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <ctime>
#include <string_view>

namespace songsweep {

namespace {

enum class Attempt { moved, taken, failed };

/// Records of a volume name paths below its top folder.
std::string pathToRecord(const std::string& path, const TrashFolder& folder) {
    if (folder.top.empty()) return path;
    const std::string top = joined(folder.top, "");
    const std::string real = joined(canonicalPath(folderOf(path)), nameOf(path));
    return real.starts_with(top) ? real.substr(top.size()) : path;
}

std::string localTime() {
    const std::time_t now = std::time(nullptr);
    std::tm local{};
    ::localtime_r(&now, &local);
    std::array<char, 32> text{};
    std::strftime(text.data(), text.size(), "%Y-%m-%dT%H:%M:%S", &local);
    return text.data();
}

std::string recordText(const std::string& path, const TrashFolder& folder) {
    const gio::Owned<gchar> escaped(g_uri_escape_string(pathToRecord(path, folder).c_str(), "/", FALSE));
    return "[Trash Info]\nPath=" + std::string(escaped.get()) + "\nDeletionDate=" + localTime() + "\n";
}

bool writeAll(int file, std::string_view text) {
    while (!text.empty()) {
        const ssize_t count = ::write(file, text.data(), text.size());
        if (count < 0 && errno == EINTR) continue;
        if (count <= 0) return false;
        text.remove_prefix(static_cast<std::size_t>(count));
    }
    return true;
}

/// Nothing is left of a record that could not be written.
Attempt writeRecord(const std::string& record, const std::string& text) {
    const int file = ::open(record.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC | O_NOFOLLOW, 0600);
    if (file < 0) return errno == EEXIST ? Attempt::taken : Attempt::failed;
    const bool isWritten = writeAll(file, text);
    if (::close(file) == 0 && isWritten) return Attempt::moved;
    ::unlink(record.c_str());
    return Attempt::failed;
}

Attempt moveUnder(const std::string& name, const std::string& path, const TrashFolder& folder,
                  const std::string& text) {
    const std::string record = folder.recordOf(name);
    if (const Attempt written = writeRecord(record, text); written != Attempt::moved) return written;
    const Result<void> moved = moveToFreeName(path, folder.filesFolder() + '/' + name);
    if (moved) return Attempt::moved;
    ::unlink(record.c_str());
    return moved.error().code == Error::Code::alreadyExists ? Attempt::taken : Attempt::failed;
}

} // namespace

std::optional<int> moveToNumber(const std::string& path, const TrashFolder& folder, int firstNumber) {
    const std::string text = recordText(path, folder);
    for (int number = firstNumber;; ++number) {
        const Attempt attempt = moveUnder(numberedName(nameOf(path), number), path, folder, text);
        if (attempt == Attempt::moved) return number;
        if (attempt == Attempt::failed) return std::nullopt;
    }
}

} // namespace songsweep
