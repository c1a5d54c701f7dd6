// SPDX-License-Identifier: MIT
#pragma once

#include "library/ReaderServices.h"
#include "platform/Files.h"

#include <cstdint>
#include <optional>
#include <string>

namespace songsweep {

class Operation;

/// How long to wait for a library file that a deletion has made stale.
struct RewriteWait {
    bool hasDelete = false;        ///< whether there was a deletion at all
    std::int64_t lastModified = 0; ///< of the file read before the deletion; nanoseconds since 1970 UTC
    std::int32_t readDelay = 0;    ///< seconds of the first wait
    std::int32_t readDelayMax = 0; ///< bounds the second, which lasts readDelayMax - readDelay + 1 seconds
};

/// Finds iTunes' library file, and waits until it can be trusted.
///
/// The library is the file of that very name, whatever the path map says of its tracks' files. The waits
/// block the calling thread; they end early when the operation is cancelled.
class LibraryFileFinder {
  public:
    LibraryFileFinder(const ReaderServices& services, const Operation& operation)
        : m_services(services)
        , m_operation(operation) {}

    /// The path of the library that iTunes used last; nothing, and a log line, where there is none.
    std::optional<std::string> locate() const;

    /// The file's attributes as soon as iTunes has rewritten it; nothing where both waits pass in vain.
    std::optional<FileAttributes> waitUntilRewritten(const std::string& path, const RewriteWait& wait) const;

    /// The name under which the file can be opened.
    std::string localPath(const std::string& path) const { return m_files.localPath(path); }

  private:
    FileAttributes attributes(const std::string& path) const;
    void sleepSeconds(std::int64_t seconds) const;

    const ReaderServices& m_services;
    const Operation& m_operation;
    Files m_files; // without a map
};

} // namespace songsweep
