// SPDX-License-Identifier: MIT
#pragma once

#include <string>

namespace songsweep {

/// The current user's home folder by the password database, whatever the environment says; empty where the
/// user has no entry. Thread-safe.
std::string passwordHomeFolder();

} // namespace songsweep
