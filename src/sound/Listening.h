// SPDX-License-Identifier: MIT
#pragma once

#include "platform/Files.h"
#include "platform/Result.h"
#include "sound/Fingerprint.h"

#include <chrono>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <tuple>
#include <vector>

namespace songsweep {

/// How files are listened to.
struct ListeningSettings {
    std::string program; ///< path of songsweep-listen
    std::size_t processes = 1;
    std::chrono::milliseconds limit = std::chrono::seconds(10); ///< of one file
};

/// Who waits for it: asked and told on the thread that called, about twenty times a second.
struct ListeningWatch {
    std::function<bool()> cancelled;
    std::function<void(std::size_t done, std::size_t total)> progress;
};

/// Hears files by several processes at once, and remembers what each sounded like.
///
/// A file is heard once, under whatever path it is met, and again where it has changed since (device, inode,
/// size, time). Some 2 KB a file. One thread uses it; it waits without an event loop.
class Listening {
  public:
    using Heard = std::shared_ptr<const Result<Fingerprint>>;

    Listening(ListeningSettings settings, const Files& files);

    /// What each path sounds like, or why it does not; an error where it was cancelled. Paths are those of
    /// records.
    Result<std::vector<Heard>> hear(const std::vector<std::string>& paths, const ListeningWatch& watch);

  private:
    using FileKey = std::tuple<std::uint64_t, std::uint64_t, std::uint64_t, std::int64_t>;
    struct Task {
        FileKey key;
        std::string path;
        Heard heard;
    };

    std::vector<Task> tasksOf(const std::vector<std::string>& paths,
                              std::vector<std::optional<FileKey>>& keys) const;
    bool carryOut(std::vector<Task>& tasks, const ListeningWatch& watch) const;

    ListeningSettings m_settings;
    const Files& m_files;
    std::map<FileKey, Heard> m_known;
};

} // namespace songsweep
