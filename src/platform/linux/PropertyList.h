// SPDX-License-Identifier: MIT
#pragma once

#include "platform/Preferences.h"

#include <optional>
#include <string>

namespace songsweep {

/// Reads the iApps domain from a property list file, XML or binary, of at most 16 MB. Nothing where the file
/// cannot be read or holds no dictionary. An entry that is no text counts as an empty one, so that the first
/// stays the first.
std::optional<IAppsDomain> readIAppsPropertyList(const std::string& path);

} // namespace songsweep
