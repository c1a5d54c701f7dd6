// SPDX-License-Identifier: MIT
#pragma once

namespace songsweep {

/// Takes from this process what a hostile file could misuse: memory beyond what decoding needs, files to
/// write, a core dump. For the program that decodes, at its start.
void limitThisProcess();

/// Has the system end this process where a file takes longer than it may, for the case that nobody watches
/// any more; 0 seconds for no file in hand.
void endThisProcessAfter(unsigned seconds);

} // namespace songsweep
