// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace songsweep {

/// The path of a URL as a library writes locations:
/// "file://localhost/Users/ann/a%20b.mp3" gives "/Users/ann/a b.mp3",
/// "file://localhost/C:/Music/a.mp3" gives "/C:/Music/a.mp3".
///
/// Percent escapes are decoded; host, query and fragment are dropped, and so is one trailing "/". Nothing
/// where the text is no URL: a character that must be escaped, a broken escape, a decoded path that is not
/// UTF-8 or holds a zero byte, or no path at all. Thread-safe.
std::optional<std::string> pathOfUrl(std::string_view url);

} // namespace songsweep
