// SPDX-License-Identifier: MIT
#pragma once

namespace songsweep {

enum class Kind : int;

template <typename Value>
class Part : Value {};

struct Declared {};

namespace test {

class Kind {};

} // namespace test
} // namespace songsweep
