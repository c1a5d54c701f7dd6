// SPDX-License-Identifier: MIT
#include "delete/MarkedFiles.h"

#include "delete/DeleteConfirmationFacts.h"
#include "delete/DeleteTexts.h"
#include "delete/Obstacles.h"
#include "platform/LocalName.h"

namespace songsweep {

namespace {

/// Why the Trash takes the file under none of its tracks' names; null where it goes.
const std::string* refusalOf(const MarkedFile& file, const DeletePlan& plan) {
    const std::string* refusal = nullptr;
    for (const TrackRecord* const track : file.tracks) {
        const PlannedFile& planned = plan.files.at(track);
        if (!planned.obstacle && planned.refusal.empty()) return nullptr;
        if (!planned.refusal.empty()) refusal = &planned.refusal;
    }
    return refusal;
}

} // namespace

FileStamp stampOf(const FileAttributes& file) {
    return {file.device, file.inode, file.size, file.modificationNanoseconds};
}

std::optional<PlannedFile> MarkedFiles::add(const SurveyedRows::Track& track, bool stays) {
    const std::string path = track.location.string();
    const auto attributes = isPath(path) ? m_files.attributes(path) : std::nullopt;
    if (!attributes) return std::nullopt;
    PlannedFile planned = {.path = canonicalPath(m_files.localPath(path)),
                           .obstacle = fileObstacle(path, attributes->kind),
                           .stamp = stampOf(*attributes)};
    const auto [name, isNew] = m_byKey[keyOf(*attributes)].try_emplace(planned.path);
    MarkedFile& file = name->second;
    if (isNew) m_bySight.emplace(sightOf(*attributes), &file);
    file.tracks.push_back(track.record);
    file.attributes = *attributes;
    file.canGo = file.canGo || (!planned.obstacle && !stays);
    return planned;
}

std::vector<const MarkedFile*> MarkedFiles::filesAt(const std::string& path) const {
    std::vector<const MarkedFile*> found;
    const auto attributes = isPath(path) ? m_files.attributes(path) : std::nullopt;
    if (!attributes) return found;
    const auto names = m_byKey.find(keyOf(*attributes));
    if (names == m_byKey.end()) return found;
    if (attributes->linkCount > 1) {
        for (const auto& [name, file] : names->second)
            found.push_back(&file);
        return found;
    }
    const auto [first, last] = m_bySight.equal_range(sightOf(*attributes));
    for (auto sight = first; sight != last; ++sight)
        found.push_back(sight->second);
    // Its size and time may have changed since.
    const auto file = names->second.find(canonicalPath(m_files.localPath(path)));
    if (file != names->second.end()) found.push_back(&file->second);
    return found;
}

void MarkedFiles::count(const DeletePlan& plan, DeleteConfirmationFacts& facts) const {
    for (const auto& [key, names] : m_byKey) {
        bool isCounted = false;
        for (const auto& [name, file] : names) {
            if (!file.canGo) continue;
            if (const std::string* const refusal = refusalOf(file, plan)) {
                ++facts.refusedFiles;
                facts.refusal = *refusal;
                continue;
            }
            const bool isShared = plan.shared.contains(file.tracks.front());
            (isShared ? facts.sharedFiles : facts.filesToTrash) += 1;
            // The other names of a file take no room of their own.
            if (file.attributes.linkCount > 1 && std::exchange(isCounted, true)) continue;
            (isShared ? facts.sharedBytes : facts.bytesToTrash) +=
                static_cast<std::int64_t>(file.attributes.size);
        }
    }
}

} // namespace songsweep
