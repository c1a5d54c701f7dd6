// SPDX-License-Identifier: MIT
#pragma once

#include <string_view>
#include <vector>

namespace songsweep {

/// What of a text counts for a search with small differences.
enum class Featuring { counts, ignored };

/// The pieces of a name's letters (LooseText.h) that tell which recording it is, in their order.
///
///     essentialParts("run this town (feat. rihanna) [live] - 2009 remaster", Featuring::ignored)
///         // "run this town (", ") ", "[live] "
///
/// A name is a title followed by parts in brackets or behind dashes. Parts that speak of remastering alone do
/// not count: the performance is the same. Every other part is kept, since (Live), (Remix), (Demo) are other
/// recordings; a guest is left out up to the end of the part, unless the words behind it tell of a version
/// ("feat. X remix"). The pieces point into the text. One element, the text, where nothing is left out, and
/// where nothing else would be left. Linear.
std::vector<std::string_view> essentialParts(std::string_view letters, Featuring featuring);

/// Whether essentialParts() may leave anything out, for much less than a call of it.
bool mayHaveOtherParts(std::string_view letters, Featuring featuring);

} // namespace songsweep
