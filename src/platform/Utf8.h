// SPDX-License-Identifier: MIT
#pragma once

#include <string_view>

namespace songsweep {

/// Whether the bytes are UTF-8, as the names of files need not be.
bool isUtf8(std::string_view bytes);

} // namespace songsweep
