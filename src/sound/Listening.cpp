// SPDX-License-Identifier: MIT
#include "sound/Listening.h"

#include "sound/ListenProcess.h"

#include <algorithm>
#include <atomic>
#include <optional>
#include <set>
#include <thread>
#include <utility>

namespace songsweep {

namespace {

constexpr auto glance = std::chrono::milliseconds(50);

Listening::Heard problem(const char* message) {
    return std::make_shared<const Result<Fingerprint>>(Error{.message = message});
}

} // namespace

Listening::Listening(ListeningSettings settings, const Files& files)
    : m_settings(std::move(settings))
    , m_files(files) {}

Result<std::vector<Listening::Heard>> Listening::hear(const std::vector<std::string>& paths,
                                                      const ListeningWatch& watch) {
    std::vector<std::optional<FileKey>> keys;
    std::vector<Task> tasks = tasksOf(paths, keys);
    const bool completed = carryOut(tasks, watch);
    for (Task& task : tasks)
        if (task.heard) m_known[task.key] = std::move(task.heard);
    if (!completed) return Error{Error::Code::cancelled, "cancelled"};
    std::vector<Heard> heard;
    heard.reserve(keys.size());
    for (const auto& key : keys)
        heard.push_back(key ? m_known.at(*key) : problem("not a file"));
    return heard;
}

/// Those that are not known yet, each file once; and which file each path is.
std::vector<Listening::Task> Listening::tasksOf(const std::vector<std::string>& paths,
                                                std::vector<std::optional<FileKey>>& keys) const {
    std::vector<Task> tasks;
    std::set<FileKey> met;
    for (const std::string& path : paths) {
        const std::optional<FileAttributes> file = m_files.attributes(path);
        const bool isFile = file && file->kind == FileAttributes::Kind::file;
        keys.emplace_back();
        if (!isFile) continue;
        const FileKey key = {file->device, file->inode, file->size, file->modificationNanoseconds};
        keys.back() = key;
        if (!m_known.contains(key) && met.insert(key).second)
            tasks.push_back({key, m_files.localPath(path), nullptr});
    }
    return tasks;
}

/// False where it was cancelled.
bool Listening::carryOut(std::vector<Task>& tasks, const ListeningWatch& watch) const {
    std::atomic<std::size_t> next = 0;
    std::atomic<std::size_t> done = 0;
    std::atomic<bool> stopped = false;
    const auto work = [&] {
        ListenProcess process(m_settings.program, m_settings.limit);
        for (std::size_t i = next++; i < tasks.size() && !stopped; i = next++) {
            auto heard = process.listen(tasks[i].path, [&] { return stopped.load(); });
            const bool isKnown = heard || heard.error().code != Error::Code::cancelled;
            if (isKnown) tasks[i].heard = std::make_shared<const Result<Fingerprint>>(std::move(heard));
            ++done;
        }
    };
    std::vector<std::jthread> threads;
    for (std::size_t i = 0; i < std::min(m_settings.processes, tasks.size()); ++i)
        threads.emplace_back(work);
    while (done < tasks.size() && !stopped) {
        stopped = watch.cancelled();
        watch.progress(done, tasks.size());
        std::this_thread::sleep_for(glance);
    }
    threads.clear();
    return !stopped;
}

} // namespace songsweep
