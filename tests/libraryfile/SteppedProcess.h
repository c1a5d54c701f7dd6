// SPDX-License-Identifier: MIT
#pragma once

#include <sys/types.h>

#include <functional>

namespace songsweep::test {

/// A function in a process of its own that runs from one system call to the next, and no further than it is
/// let.
///
/// Nothing that others can see of a process changes but by its system calls. Killing it before each of them
/// in turn therefore tries every moment at which it could have died, and the same ones every time; kills
/// after some random time try a few, on a busy machine other ones than on a quiet one.
class SteppedProcess {
  public:
    /// Starts the function up to where it calls `stepFromHere`; its result becomes the exit status.
    explicit SteppedProcess(const std::function<int()>& function);
    /// Kills it where it stands.
    ~SteppedProcess();
    SteppedProcess(const SteppedProcess&) = delete;
    SteppedProcess& operator=(const SteppedProcess&) = delete;

    /// In the function: from here on it waits for `step`.
    static void stepFromHere();

    /// Lets it make one system call and run up to its next; false if that ended it.
    bool step();
    /// Whether it came to its end with status 0.
    bool succeeded() const;

  private:
    bool runToStop();

    pid_t m_process = -1;
    int m_status = 0;
};

} // namespace songsweep::test
