// SPDX-License-Identifier: MIT
#include "platform/Files.h"

#include "platform/Ascii.h"
#include "platform/NameForms.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace songsweep {

namespace {

#ifdef __APPLE__
timespec modificationTime(const struct stat& file) { return file.st_mtimespec; }
#else
timespec modificationTime(const struct stat& file) { return file.st_mtim; }
#endif

FileAttributes::Kind kindOf(const struct stat& file) {
    if (S_ISREG(file.st_mode)) return FileAttributes::Kind::file;
    return S_ISDIR(file.st_mode) ? FileAttributes::Kind::folder : FileAttributes::Kind::other;
}

FileAttributes attributesOf(const struct stat& file) {
    const timespec modified = modificationTime(file);
    FileAttributes attributes;
    attributes.kind = kindOf(file);
    attributes.modificationNanoseconds = std::int64_t{modified.tv_sec} * 1'000'000'000 + modified.tv_nsec;
    attributes.size = static_cast<std::uint64_t>(file.st_size);
    attributes.device = static_cast<std::uint64_t>(file.st_dev);
    attributes.inode = static_cast<std::uint64_t>(file.st_ino);
    attributes.linkCount = static_cast<std::uint64_t>(file.st_nlink);
    return attributes;
}

/// The usual case, a name that exists as written, costs the one call and no copy.
std::optional<FileAttributes> attributesInAnyForm(const char* path) {
    struct stat file {};
    if (::stat(path, &file) == 0) return attributesOf(file);
    if (isAscii(path)) return std::nullopt; // such a path has but one form
    const std::optional<std::string> other = existingInOtherForm(path);
    if (!other || ::stat(other->c_str(), &file) != 0) return std::nullopt;
    return attributesOf(file);
}

} // namespace

bool Files::exists(const char* path) const {
    if (m_map.empty()) return attributesInAnyForm(path).has_value();
    return attributesInAnyForm(m_map.map(path).c_str()).has_value();
}

std::optional<FileAttributes> Files::attributes(const std::string& path) const {
    return attributesInAnyForm(m_map.map(path).c_str());
}

bool Files::isReadable(const std::string& path) const {
    // A pipe is not waited for.
    const int descriptor = ::open(localPath(path).c_str(), O_RDONLY | O_NONBLOCK | O_NOCTTY | O_CLOEXEC);
    if (descriptor < 0) return false;
    ::close(descriptor);
    return true;
}

std::string Files::localPath(const std::string& path) const {
    std::string mapped = m_map.map(path);
    struct stat file {};
    if (isAscii(mapped) || ::stat(mapped.c_str(), &file) == 0) return mapped;
    return existingInOtherForm(mapped).value_or(mapped);
}

} // namespace songsweep
