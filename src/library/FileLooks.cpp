// SPDX-License-Identifier: MIT
#include "library/FileLooks.h"

#include "platform/Files.h"

#include <algorithm>
#include <atomic>
#include <cstddef>
#include <cstdint>
#include <exception>
#include <mutex>
#include <thread>

namespace songsweep {

namespace {

constexpr std::size_t timedLooks = 16;

/// 1 where the file is there, as a byte of its own, since threads write these side by side.
char look(const Files& files, const char* path) { return *path != '\0' && files.exists(path) ? 1 : 0; }

/// The paths that are still to be looked at, shared by threads.
class SharedLooks {
  public:
    SharedLooks(const Files& files, const std::vector<const char*>& paths, std::vector<char>& found,
                std::size_t first)
        : m_files(files)
        , m_paths(paths)
        , m_found(found)
        , m_next(first) {}

    void run() {
        const auto left = static_cast<int>(m_paths.size() - std::min(m_next.load(), m_paths.size()));
        std::vector<std::jthread> threads;
        for (int thread = 1; thread < std::min(left, FileLooks::mostThreads); ++thread)
            threads.emplace_back([this] { work(); });
        work();
        threads.clear(); // joins
        if (m_failure) std::rethrow_exception(m_failure);
    }

  private:
    void work() {
        try {
            for (std::size_t path = m_next++; path < m_paths.size(); path = m_next++)
                m_found[path] = look(m_files, m_paths[path]);
        } catch (...) {
            const std::lock_guard lock(m_failureLock);
            m_failure = std::current_exception();
        }
    }

    const Files& m_files;
    const std::vector<const char*>& m_paths;
    std::vector<char>& m_found;
    std::atomic<std::size_t> m_next;
    std::mutex m_failureLock;
    std::exception_ptr m_failure;
};

} // namespace

std::vector<char> FileLooks::exist(const std::vector<const char*>& paths) {
    std::vector<char> found(paths.size());
    std::size_t next = 0;
    while (next < paths.size() && !m_areSlow) {
        const std::size_t end = std::min(next + timedLooks, paths.size());
        const auto looks = static_cast<std::int64_t>(end - next);
        const Clock::time_point start = m_now();
        for (; next < end; ++next)
            found[next] = look(m_files, paths[next]);
        m_areSlow = m_now() - start > looks * slowLook;
    }
    if (next == paths.size()) return found;
    const Clock::time_point start = m_now();
    const auto looks = static_cast<std::int64_t>(paths.size() - next);
    SharedLooks(m_files, paths, found, next).run();
    m_areSlow = (m_now() - start) * mostThreads > looks * slowLook;
    return found;
}

} // namespace songsweep
