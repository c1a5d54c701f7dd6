// SPDX-License-Identifier: MIT
#include "libraryfile/FileCopy.h"
#include "libraryfile/LibraryRewrite.h"

#include <unistd.h>

#include <array>
#include <cerrno>
#include <ctime>

namespace songsweep {

namespace {

constexpr std::size_t longestName = 255; // bytes
constexpr int mostBackupsASecond = 1000;

std::string localTime() {
    const std::time_t now = std::time(nullptr);
    std::tm local{};
    ::localtime_r(&now, &local);
    std::array<char, 32> text{};
    const std::size_t length = std::strftime(text.data(), text.size(), "%Y-%m-%d %H.%M.%S", &local);
    return {text.data(), length};
}

/// "iTunes Library.xml" becomes "iTunes Library (before deletions of 2026-01-31 12.00.00).xml".
std::string backupName(const std::string& name, const std::string& time, int counter) {
    const std::size_t point = name.rfind('.');
    const bool hasExtension = point != std::string::npos && point > 0 && name.size() - point < 16;
    const std::string extension = hasExtension ? name.substr(point) : "";
    std::string stem = name.substr(0, name.size() - extension.size());
    const std::string mark =
        " (before deletions of " + time + (counter > 1 ? ", " + std::to_string(counter) : "") + ")";
    const std::size_t room = longestName - mark.size() - extension.size();
    if (stem.size() > room) {
        stem.resize(room);
        // A character of several bytes must not be cut.
        while (!stem.empty() && (static_cast<unsigned char>(stem.back()) & 0xC0) == 0x80)
            stem.pop_back();
        if (!stem.empty() && static_cast<unsigned char>(stem.back()) >= 0xC0) stem.pop_back();
    }
    return stem + mark + extension;
}

bool linksAreMissing(int errorNumber) {
    return errorNumber == EPERM || errorNumber == EOPNOTSUPP || errorNumber == ENOSYS ||
           errorNumber == EMLINK;
}

} // namespace

Result<std::string> keepBackup(const std::string& path) {
    const std::size_t nameBegin = path.rfind('/') + 1;
    const std::string time = localTime();
    for (int counter = 1; counter <= mostBackupsASecond; ++counter) {
        std::string backup = path.substr(0, nameBegin) + backupName(path.substr(nameBegin), time, counter);
        if (::link(path.c_str(), backup.c_str()) == 0) return backup;
        if (errno == EEXIST) continue;
        if (!linksAreMissing(errno)) return systemError(errno, "create", backup);

        if (::access(backup.c_str(), F_OK) == 0) continue;
        const auto original = LibraryFile::open(path);
        if (!original) return original.error();
        const auto copied = copyWithoutRanges(original.value(), {}, backup);
        if (!copied) return copied.error();
        return backup;
    }
    return Error{Error::Code::failed, "there is no free name for a backup of " + path};
}

} // namespace songsweep
