// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string>

namespace songsweep {

/// Who holds the lock of a library, as the lock file tells others.
struct LockHolder {
    std::string purpose;
    std::int64_t process = 0; ///< 0 where nobody knows
    std::string host;
    std::int64_t since = 0; ///< seconds since 1970 UTC

    /// This process, now.
    static LockHolder present(const std::string& purpose);

    /// The contents of a lock file; of any others a holder of whom nothing is known.
    static LockHolder fromText(const std::string& text);
    std::string text() const;

    /// Whether the process ran on this machine and has ended.
    bool hasEnded() const;

    /// "another Songsweep (the command delete, process 4711, since 12:00) is cleaning up this library".
    std::string sentence() const;
};

} // namespace songsweep
