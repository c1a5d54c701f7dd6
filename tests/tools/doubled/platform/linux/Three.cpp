// SPDX-License-Identifier: MIT
namespace songsweep {
namespace {

struct Own {};

} // namespace

enum class Kind { one };
class Opened {};

} // namespace songsweep
