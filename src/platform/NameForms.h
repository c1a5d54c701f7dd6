// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace songsweep {

/// Looks for a path whose accented names are written in another Unicode form on disk than in the library.
///
/// A library made on one file system names "é" by one code point, a copy on another by two, and a folder and
/// the file in it may differ. Each component is therefore tried as written, composed and decomposed, from the
/// left, and the first form that exists is kept: at most three calls of stat a component, and no search
/// through combinations. Give it only paths that do not exist as written. A name that is not UTF-8 has one
/// form only. Thread-safe.
std::optional<std::string> existingInOtherForm(std::string_view path);

/// The text with its accented letters in one code point each, so that two forms of one name are equal; as it
/// is where it is not UTF-8. Thread-safe.
std::string composedForm(std::string_view text);

} // namespace songsweep
