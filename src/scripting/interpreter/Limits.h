// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>

namespace songsweep::interpreter {

/// Longest text of a script, in bytes.
inline constexpr std::size_t maximumSourceBytes = std::size_t(1) << 20;

/// Deepest nesting of lists, references and blocks in a text, a parenthesis counting as two; the parser and
/// the run call themselves as deep, on whatever stack a worker's thread has.
inline constexpr int maximumNesting = 100;

/// Deepest tree: a chain of operators makes one level for each of them.
inline constexpr int maximumTreeDepth = 500;

/// What a script may spend: one step for every node of the tree it passes, for every element it walks over
/// and for each few items and bytes of text it copies. The nodes of a filter cost a fraction, so that a
/// script can walk over every track of a large library.
inline constexpr std::size_t maximumSteps = 3'000'000;
inline constexpr std::size_t filterNodesOfOneStep = 10;
inline constexpr std::size_t listItemsOfOneStep = 8;
inline constexpr std::size_t textBytesOfOneStep = 64;

/// Largest text and largest list that a script may make.
inline constexpr std::size_t maximumTextBytes = std::size_t(4) << 20;
inline constexpr std::size_t maximumListItems = 1'000'000;

/// Deepest list in lists.
inline constexpr int maximumListNesting = 100;

} // namespace songsweep::interpreter
