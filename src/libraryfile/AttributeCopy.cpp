// SPDX-License-Identifier: MIT
#include "libraryfile/AttributeCopy.h"

#include "platform/SystemError.h"

#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <string_view>
#include <vector>

#ifdef __APPLE__
#include <copyfile.h>
#else
#include <sys/xattr.h>
#endif

namespace songsweep {

namespace {

#ifdef __APPLE__

Result<void> copyExtended(int from, int to, const std::string& path) {
    if (::fcopyfile(from, to, nullptr, COPYFILE_ACL | COPYFILE_XATTR) == 0) return {};
    return systemError(errno, "keep the attributes of", path);
}

#else

constexpr int mostAttempts = 8; // while somebody else sets longer ones

bool isMissing(int errorNumber) { return errorNumber == ENOTSUP || errorNumber == ENOSYS; }

/// Labels of the system's own, which it sets itself and need not let a program set.
bool isOfTheSystem(std::string_view name) { return name.starts_with("security."); }

/// Calls with growing buffers until what is asked for fits; nothing on an error, which errno has.
template <class Call>
bool readGrowing(std::string& bytes, const Call& call) {
    for (int attempt = 0; attempt < mostAttempts; ++attempt) {
        const ssize_t size = call(nullptr, 0);
        if (size < 0) return false;
        bytes.resize(static_cast<std::size_t>(size));
        if (size == 0) return true;
        const ssize_t read = call(bytes.data(), bytes.size());
        if (read >= 0) {
            bytes.resize(static_cast<std::size_t>(read));
            return true;
        }
        if (errno != ERANGE) return false;
    }
    return false;
}

bool readNames(int descriptor, std::vector<std::string>& names) {
    std::string list;
    const auto call = [&](char* bytes, std::size_t size) { return ::flistxattr(descriptor, bytes, size); };
    if (!readGrowing(list, call)) return isMissing(errno);
    for (std::size_t at = 0; at < list.size(); at += names.back().size() + 1)
        names.emplace_back(list.c_str() + at);
    // An access list may take this user's own right to set the others.
    std::stable_partition(names.begin(), names.end(),
                          [](const std::string& name) { return !name.starts_with("system."); });
    return true;
}

bool readValue(int descriptor, const std::string& name, std::string& value) {
    return readGrowing(value, [&](char* bytes, std::size_t size) {
        return ::fgetxattr(descriptor, name.c_str(), bytes, size);
    });
}

bool setAll(int from, int to, const std::vector<std::string>& names) {
    for (const std::string& name : names) {
        std::string value;
        std::string present;
        if (!readValue(from, name, value)) {
            if (errno == ENODATA || isOfTheSystem(name)) continue;
            return false;
        }
        if (readValue(to, name, present) && present == value) continue;
        if (::fsetxattr(to, name.c_str(), value.data(), value.size(), 0) != 0 && !isOfTheSystem(name))
            return false;
    }
    return true;
}

/// What the new file has of its folder, as an access list that the other file lacks.
bool removeOthers(int to, const std::vector<std::string>& names) {
    std::vector<std::string> present;
    if (!readNames(to, present)) return false;
    for (const std::string& name : present) {
        bool wanted = isOfTheSystem(name);
        for (const std::string& kept : names)
            wanted = wanted || kept == name;
        if (!wanted && ::fremovexattr(to, name.c_str()) != 0 && errno != ENODATA) return false;
    }
    return true;
}

Result<void> copyExtended(int from, int to, const std::string& path) {
    std::vector<std::string> names;
    if (readNames(from, names) && setAll(from, to, names) && removeOthers(to, names)) return {};
    return systemError(errno, "keep the attributes of", path);
}

#endif

Error ownerIsLost(const std::string& path) {
    return {Error::Code::noPermission,
            "cannot write " + path + ": it belongs to another user or group and would become yours"};
}

Result<void> copyOwner(const struct stat& original, int to, const std::string& path) {
    struct stat status {};
    if (::fstat(to, &status) != 0) return systemError(errno, "read", path);
    if (status.st_uid == original.st_uid && status.st_gid == original.st_gid) return {};
    if (::fchown(to, original.st_uid, original.st_gid) != 0) return ownerIsLost(path);
    return {};
}

} // namespace

Result<void> copyAttributes(int from, int to, const std::string& path) {
    struct stat original {};
    if (::fstat(from, &original) != 0) return systemError(errno, "read", path);
    if (auto owned = copyOwner(original, to, path); !owned) return owned;
    if (auto copied = copyExtended(from, to, path); !copied) return copied;
    if (::fchmod(to, original.st_mode & 07777) != 0)
        return systemError(errno, "keep the permissions of", path);
    return {};
}

void copyTimes(int from, int to) {
    struct stat original {};
    if (::fstat(from, &original) != 0) return;
#ifdef __APPLE__
    const struct timespec times[2] = {original.st_atimespec, original.st_mtimespec};
#else
    const struct timespec times[2] = {original.st_atim, original.st_mtim};
#endif
    ::futimens(to, times);
}

} // namespace songsweep
