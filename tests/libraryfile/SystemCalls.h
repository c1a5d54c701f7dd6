// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <string>

namespace songsweep::test {

/// Watches the system calls by which the program changes files, and makes one of them fail, or ends the
/// process at it. The linker leads the calls of the test program here (--wrap); one thread at a time.
class SystemCalls {
  public:
    /// Counts from now on; nothing fails.
    static void watch();
    /// The call of that number, counted from 1, fails with this errno and does nothing.
    static void failAt(int number, int errorNumber);
    /// The process ends before the call of that number is made, as by a kill.
    static void killAt(int number);
    /// Every call of that name fails.
    static void failAll(const std::string& name, int errorNumber);
    /// Something is done before the next call of that name is made, once; what was to fail still does.
    static void before(const std::string& name, std::function<void()> action);

    /// Calls are made as ever again; the number of those since the watch began.
    static int stop();
    /// The name of the call that failed, "" while none has.
    static std::string failed();
};

} // namespace songsweep::test
