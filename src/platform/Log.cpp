// SPDX-License-Identifier: MIT
#include "platform/Log.h"

#include <unistd.h>

#include <cerrno>

namespace songsweep {

void DescriptorLog::line(std::string_view text) {
    std::string whole(text);
    whole += '\n';
    // One write for a whole line keeps lines of two threads apart.
    for (std::size_t done = 0; done < whole.size();) {
        const ssize_t written = ::write(m_descriptor, whole.data() + done, whole.size() - done);
        if (written < 0 && errno == EINTR) continue;
        if (written <= 0) return;
        done += static_cast<std::size_t>(written);
    }
}

} // namespace songsweep
