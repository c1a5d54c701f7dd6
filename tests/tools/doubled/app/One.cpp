// SPDX-License-Identifier: MIT
namespace songsweep {
namespace {

struct Own {};

} // namespace

class Declared;

struct Part {};
enum class Kind { none };

class Part::Inner {};

} // namespace songsweep
