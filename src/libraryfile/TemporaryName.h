// SPDX-License-Identifier: MIT
#pragma once

#include "libraryfile/LibraryFile.h"

#include <optional>
#include <string>
#include <string_view>

namespace songsweep {

/// The names of a library's temporary files: ".songsweep-", a number made of the library's name, and more, so
/// that they are never too long.
struct TemporaryName {
    /// What a file that changes places with its library is, and what is to come out.
    struct Exchange {
        FileStamp own;
        FileStamp expected;
        bool operator==(const Exchange&) const = default;
    };

    /// Of a file that is not complete, or not yet in use.
    static std::string forWriting(std::string_view library, unsigned number);
    static std::string forExchange(std::string_view library, const Exchange& exchange);

    /// Of the lock, which is no temporary file.
    static std::string ofLock(std::string_view library);

    /// Whether a name in the library's folder is that of one of its temporary files.
    static bool isOf(std::string_view library, std::string_view name);
    /// What the name of a file says that changes places; nothing for any other.
    static std::optional<Exchange> exchangeOf(std::string_view library, std::string_view name);
};

} // namespace songsweep
