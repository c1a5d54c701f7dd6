// SPDX-License-Identifier: MIT
#include "sound/listen/ProcessLimits.h"

#include <sys/resource.h>
#include <unistd.h>

namespace songsweep {

namespace {

/// A gigabyte, of which the codecs' own libraries take a part; without end under a sanitizer, which maps
/// terabytes.
constexpr rlim_t memory = SONGSWEEP_LISTEN_MEMORY;

void limit(int resource, rlim_t value) {
    const rlimit both = {value, value};
    setrlimit(resource, &both); // where it fails, the watching parent is left
}

} // namespace

void limitThisProcess() {
    limit(RLIMIT_AS, memory);
    limit(RLIMIT_CORE, 0);
    limit(RLIMIT_FSIZE, 0);
}

void endThisProcessAfter(unsigned seconds) { alarm(seconds); }

} // namespace songsweep
