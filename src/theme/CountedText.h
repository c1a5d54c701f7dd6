// SPDX-License-Identifier: MIT
#pragma once

#include "platform/Words.h"

#include <QString>

namespace songsweep {

/// countedWords() for a widget: the wording for `count`, which stands where "%1" is. Below nought counts as
/// none.
inline QString countedText(const char* context, const char* many, const char* one, int count) {
    return QString::fromStdString(countedWords(context, many, one, count));
}

} // namespace songsweep
