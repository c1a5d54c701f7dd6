// SPDX-License-Identifier: MIT
#include "libraryfile/SystemCalls.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <sys/types.h>
#include <unistd.h>

#include <cerrno>
#include <csignal>
#include <cstdarg>
#include <cstdio>
#include <cstring>
#include <utility>

namespace songsweep::test {

namespace {

struct Watch {
    bool active = false;
    int count = 0;
    int failing = 0;
    int killing = 0;
    int errorNumber = 0;
    std::string failingName;
    std::string awaited;
    std::function<void()> action;
    std::string failed;
};

Watch& current() {
    static Watch watch; // The linker's calls have no other way to know of it.
    return watch;
}

/// Whether the call is to fail; errno is set then.
bool fails(const char* name) {
    Watch& watch = current();
    if (!watch.active) return false;
    if (watch.awaited == name && watch.action) {
        const auto action = std::exchange(watch.action, nullptr);
        watch.active = false;
        action();
        watch.active = true;
    }
    ++watch.count;
    if (watch.count == watch.killing) ::kill(::getpid(), SIGKILL);
    if (watch.count != watch.failing && watch.failingName != name) return false;
    watch.failed = name;
    errno = watch.errorNumber;
    return true;
}

} // namespace

void SystemCalls::watch() {
    current() = {};
    current().active = true;
}

void SystemCalls::failAt(int number, int errorNumber) {
    watch();
    current().failing = number;
    current().errorNumber = errorNumber;
}

void SystemCalls::killAt(int number) {
    watch();
    current().killing = number;
}

void SystemCalls::failAll(const std::string& name, int errorNumber) {
    watch();
    current().failingName = name;
    current().errorNumber = errorNumber;
}

void SystemCalls::before(const std::string& name, std::function<void()> action) {
    if (!current().active) watch();
    current().awaited = name;
    current().action = std::move(action);
}

int SystemCalls::stop() {
    current().active = false;
    return current().count;
}

std::string SystemCalls::failed() { return current().failed; }

} // namespace songsweep::test

// NOLINTBEGIN: the names are the linker's.
using songsweep::test::fails;

extern "C" {

int __real_open(const char* path, int flags, mode_t mode);
int __wrap_open(const char* path, int flags, mode_t mode) {
    return fails("open") ? -1 : __real_open(path, flags, mode);
}
ssize_t __real_write(int file, const void* bytes, size_t size);
ssize_t __wrap_write(int file, const void* bytes, size_t size) {
    return fails("write") ? -1 : __real_write(file, bytes, size);
}
ssize_t __real_pwrite(int file, const void* bytes, size_t size, off_t offset);
ssize_t __wrap_pwrite(int file, const void* bytes, size_t size, off_t offset) {
    return fails("pwrite") ? -1 : __real_pwrite(file, bytes, size, offset);
}
ssize_t __real_copy_file_range(int in, off_t* from, int out, off_t* to, size_t size, unsigned flags);
ssize_t __wrap_copy_file_range(int in, off_t* from, int out, off_t* to, size_t size, unsigned flags) {
    return fails("copy_file_range") ? -1 : __real_copy_file_range(in, from, out, to, size, flags);
}
int __real_ftruncate(int file, off_t size);
int __wrap_ftruncate(int file, off_t size) { return fails("ftruncate") ? -1 : __real_ftruncate(file, size); }
int __real_fallocate(int file, int mode, off_t offset, off_t size);
int __wrap_fallocate(int file, int mode, off_t offset, off_t size) {
    return fails("fallocate") ? -1 : __real_fallocate(file, mode, offset, size);
}
int __real_fsync(int file);
int __wrap_fsync(int file) { return fails("fsync") ? -1 : __real_fsync(file); }
int __real_fdatasync(int file);
int __wrap_fdatasync(int file) { return fails("fdatasync") ? -1 : __real_fdatasync(file); }
int __real_rename(const char* from, const char* to);
int __wrap_rename(const char* from, const char* to) { return fails("rename") ? -1 : __real_rename(from, to); }
int __real_renameat2(int oldFolder, const char* from, int newFolder, const char* to, unsigned flags);
int __wrap_renameat2(int oldFolder, const char* from, int newFolder, const char* to, unsigned flags) {
    return fails("renameat2") ? -1 : __real_renameat2(oldFolder, from, newFolder, to, flags);
}
int __real_link(const char* from, const char* to);
int __wrap_link(const char* from, const char* to) { return fails("link") ? -1 : __real_link(from, to); }
int __real_flock(int file, int operation);
int __wrap_flock(int file, int operation) { return fails("flock") ? -1 : __real_flock(file, operation); }
int __real_fchown(int file, uid_t owner, gid_t group);
int __wrap_fchown(int file, uid_t owner, gid_t group) {
    return fails("fchown") ? -1 : __real_fchown(file, owner, group);
}
int __real_fchmod(int file, mode_t mode);
int __wrap_fchmod(int file, mode_t mode) { return fails("fchmod") ? -1 : __real_fchmod(file, mode); }
ssize_t __real_flistxattr(int file, char* names, size_t size);
ssize_t __wrap_flistxattr(int file, char* names, size_t size) {
    return fails("flistxattr") ? -1 : __real_flistxattr(file, names, size);
}
ssize_t __real_fgetxattr(int file, const char* name, void* value, size_t size);
ssize_t __wrap_fgetxattr(int file, const char* name, void* value, size_t size) {
    return fails("fgetxattr") ? -1 : __real_fgetxattr(file, name, value, size);
}
int __real_fsetxattr(int file, const char* name, const void* value, size_t size, int flags);
int __wrap_fsetxattr(int file, const char* name, const void* value, size_t size, int flags) {
    return fails("fsetxattr") ? -1 : __real_fsetxattr(file, name, value, size, flags);
}
int __real_futimens(int file, const struct timespec times[2]);
int __wrap_futimens(int file, const struct timespec times[2]) {
    return fails("futimens") ? -1 : __real_futimens(file, times);
}
}
// NOLINTEND
