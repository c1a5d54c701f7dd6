// SPDX-License-Identifier: MIT
#pragma once

#include "hosts/ITunesTerms.h"
#include "libraryfile/EntryEdit.h"
#include "platform/Result.h"
#include "scripting/interpreter/Value.h"

#include <vector>

namespace songsweep {

/// What setting a property of a track changes in its entry; nothing for a property that cannot be set. An
/// empty text and the number 0 take the key out, as iTunes writes neither. An error for a value of another
/// kind or beyond what iTunes has.
Result<std::vector<ValueChange>> changesOf(ITunesProperty property, const interpreter::Value& value);

} // namespace songsweep
