// SPDX-License-Identifier: MIT
#pragma once

#include <sys/wait.h>
#include <unistd.h>

#include <functional>

namespace songsweep::test {

/// Whether all that is checked holds for a user who is nobody in particular. For root, to whom nothing is
/// closed; runs in a process of its own.
inline bool holdsForAnotherUser(const std::function<bool()>& checks) {
    const pid_t child = ::fork();
    if (child == 0) ::_exit(::seteuid(65534) == 0 && checks() ? 0 : 1);
    int status = -1;
    ::waitpid(child, &status, 0);
    return WIFEXITED(status) && WEXITSTATUS(status) == 0;
}

} // namespace songsweep::test
