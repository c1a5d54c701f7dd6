// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace songsweep::fuzz {

/// Ends the process where a property does not hold, so that the fuzzer keeps the input.
void check(bool holds, std::string_view what);

/// The input as text.
std::string_view textOf(const std::uint8_t* data, std::size_t size);

/// A folder of this process for the files that a target needs: below TMPDIR, else below /dev/shm, removed
/// when the process ends.
const std::string& scratchFolder();

/// Writes the file `name` of the scratch folder, and gives its path.
std::string scratchFile(const std::string& name, std::string_view contents);

std::string contentOf(const std::string& path);

/// Removes all that lies in the scratch folder.
void clearScratchFolder();

} // namespace songsweep::fuzz
