// SPDX-License-Identifier: MIT
#include "platform/StandardDescriptors.h"

#include <fcntl.h>
#include <unistd.h>

#include <csignal>

namespace songsweep {

void openStandardDescriptors() {
    for (int descriptor = STDIN_FILENO; descriptor <= STDERR_FILENO; ++descriptor)
        // The lowest free number is taken, which is this one, as all below it are open.
        if (::fcntl(descriptor, F_GETFD) < 0) static_cast<void>(::open("/dev/null", O_RDWR));
}

void survivePipesThatClose() { std::signal(SIGPIPE, SIG_IGN); }

} // namespace songsweep
