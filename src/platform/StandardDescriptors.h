// SPDX-License-Identifier: MIT
#pragma once

namespace songsweep {

/// Opens descriptors 0 to 2 on the null device where the process was started without them.
///
/// The next file or event queue that anything opens would take such a number, and what is meant for standard
/// output or standard error would go there. First thing in `main`, before any library opens anything.
void openStandardDescriptors();

/// A pipe that nobody reads any longer fails the write to it and does not end the process. What the program
/// starts is not affected.
void survivePipesThatClose();

} // namespace songsweep
