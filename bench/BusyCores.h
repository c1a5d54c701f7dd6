// SPDX-License-Identifier: MIT
#pragma once

#include <sys/types.h>

#include <vector>

namespace songsweep::bench {

/// A busy process on each core, for as long as the object lives.
class BusyCores {
  public:
    BusyCores();
    BusyCores(const BusyCores&) = delete;
    BusyCores& operator=(const BusyCores&) = delete;
    ~BusyCores();

  private:
    std::vector<pid_t> m_processes;
};

} // namespace songsweep::bench
