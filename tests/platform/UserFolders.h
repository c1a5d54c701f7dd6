// SPDX-License-Identifier: MIT
#pragma once

#include <string>

namespace songsweep::test {

/// A home of the tests' own with everything that a desktop keeps there: the Trash, the default programs.
/// GLib reads these places once a process, so that they are set before the first test.
std::string userHome();
std::string userData();
std::string userApplications();
std::string userConfiguration();

} // namespace songsweep::test
