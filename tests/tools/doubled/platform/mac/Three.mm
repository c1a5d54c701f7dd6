// SPDX-License-Identifier: MIT
namespace songsweep {

class Opened {};

} // namespace songsweep
