// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <optional>
#include <span>
#include <string>
#include <string_view>

namespace songsweep {

/// The path of a URL as a library writes locations:
/// "file://localhost/Users/ann/a%20b.mp3" gives "/Users/ann/a b.mp3",
/// "file://localhost/C:/Music/a.mp3" gives "/C:/Music/a.mp3".
///
/// Percent escapes are decoded to bytes, of whatever encoding the file's name is; host, query and fragment
/// are dropped, and so is one trailing "/". Nothing where the text is no URL: a character that must be
/// escaped, a broken escape, an escaped zero byte, or no path at all. Thread-safe.
std::optional<std::string> pathOfUrl(std::string_view url);

/// The path of a file as people see it in iTunes: nothing for an address of any scheme but "file", such as a
/// stream's. A location that is not quite a URL (a raw blank, an umlaut, a quote, a "%" that begins no
/// escape) still has a path, its whole escapes decoded and all else as it stands, "?" and "#" included.
std::optional<std::string> pathOfFileUrl(std::string_view url);

/// pathOfUrl() in place, for a million of them: the path's bytes take the place of the URL's first ones.
/// Gives the path's length; nothing where there is no path, and the bytes are spoilt then.
std::optional<std::size_t> makePathOfUrl(std::span<char> url);

} // namespace songsweep
