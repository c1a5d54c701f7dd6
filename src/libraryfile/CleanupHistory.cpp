// SPDX-License-Identifier: MIT
#include "libraryfile/CleanupHistory.h"

#include "libraryfile/DatedName.h"
#include "libraryfile/FileNames.h"
#include "libraryfile/RecordLine.h"
#include "platform/SystemError.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <set>
#include <system_error>

namespace songsweep {

namespace {

constexpr std::streamoff longestLine = 64 << 10; // of those at the ends: without the names of tracks

void markRestored(std::vector<CleanupSummary>& cleanups) {
    std::set<std::string> restored;
    for (const CleanupSummary& cleanup : cleanups)
        if (cleanup.end && cleanup.end->how == RecordEnd::How::complete)
            restored.insert(cleanup.heading.restores);
    for (CleanupSummary& cleanup : cleanups)
        cleanup.isRestored = restored.contains(cleanup.name());
}

} // namespace

std::optional<CleanupSummary> cleanupOfRecord(const std::string& path) {
    std::ifstream file(path, std::ios::binary);
    std::string text;
    if (!std::getline(file, text)) return {};
    const auto first = RecordLine::parse(text);
    if (!first || first->text("step") != "begin") return {};
    CleanupSummary summary{path, recordHeadingIn(*first, folderOf(path)), {}, false, false};

    file.clear();
    file.seekg(0, std::ios::end);
    const std::streamoff size = file.tellg();
    file.seekg(std::max<std::streamoff>(0, size - longestLine));
    std::string last;
    while (std::getline(file, text))
        if (!file.eof()) last = std::move(text);
    const auto end = RecordLine::parse(last);
    if (end && end->text("step") == "end") summary.end = recordEndIn(*end);
    std::error_code missing;
    summary.hasBackup = std::filesystem::is_regular_file(summary.heading.backup, missing);
    return summary;
}

std::string cleanupName(const std::string& recordPath) { return withoutExtension(nameOf(recordPath)); }

Result<std::vector<CleanupSummary>> cleanupsOf(const std::string& library) {
    std::error_code error;
    const std::filesystem::path real = std::filesystem::canonical(library, error);
    if (error) return systemError(error.value(), "find", library);
    std::vector<CleanupSummary> cleanups;
    std::filesystem::directory_iterator entry(real.parent_path(), error);
    for (; !error && entry != std::filesystem::directory_iterator(); entry.increment(error)) {
        const std::string path = entry->path().string();
        if (!path.ends_with(".jsonl")) continue;
        auto summary = cleanupOfRecord(path);
        // The folder may have been moved since, so the name alone counts.
        if (summary && nameOf(summary->heading.library) == real.filename().string())
            cleanups.push_back(std::move(*summary));
    }
    if (error) return systemError(error.value(), "read", folderOf(real.string()));
    std::sort(cleanups.begin(), cleanups.end(), [](const CleanupSummary& a, const CleanupSummary& b) {
        return std::pair(a.heading.date, a.path) > std::pair(b.heading.date, b.path);
    });
    markRestored(cleanups);
    return cleanups;
}

} // namespace songsweep
