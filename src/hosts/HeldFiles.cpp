// SPDX-License-Identifier: MIT
#include "hosts/HeldFiles.h"

#include "libraryfile/LibraryDocument.h"

#include <algorithm>
#include <utility>

namespace songsweep {

namespace {

std::optional<FileStamp> stampOf(const std::string& path) {
    const auto stamp = LibraryFile::stampOf(path);
    return stamp ? std::optional(stamp.value()) : std::nullopt;
}

} // namespace

void HeldFiles::hold(const std::string& path, const std::string& persistentId) {
    const auto [place, isNew] = m_places.emplace(path, m_held.size());
    if (isNew) m_held.push_back({path, stampOf(path), {}});
    if (!persistentId.empty()) m_held[place->second].persistentIds.push_back(persistentId);
}

void HeldFiles::release(LibraryDocument& library, Trash& trash) {
    const auto isNamed = [&](const std::string& id) { return !library.tracksWithPersistentId(id).empty(); };
    std::vector<Held> files = std::exchange(m_held, {});
    m_places.clear();
    for (Held& file : files) {
        const auto& ids = file.persistentIds;
        if (std::none_of(ids.begin(), ids.end(), isNamed)) {
            m_fates.insert_or_assign(file.path, move(file, trash));
        } else {
            m_places.emplace(file.path, m_held.size());
            m_held.push_back(std::move(file));
        }
    }
}

Result<TrashedFile> HeldFiles::move(const Held& file, Trash& trash) {
    if (stampOf(file.path) != file.stamp)
        return Error{Error::Code::busy, "it is not the file any more that it was"};
    return trash.moveToTrash(file.path);
}

void HeldFiles::keep(const std::string& reason) {
    for (const Held& file : m_held)
        m_fates.insert_or_assign(file.path, Error{Error::Code::failed, reason});
    m_held.clear();
    m_places.clear();
}

void HeldFiles::clear() {
    m_held.clear();
    m_places.clear();
    m_fates.clear();
}

Result<void> HeldFiles::firstError() const {
    for (const auto& [path, fate] : m_fates)
        if (!fate) return fate.error();
    return {};
}

std::optional<Result<TrashedFile>> HeldFiles::fateOf(const std::string& path) const {
    const auto fate = m_fates.find(path);
    if (fate == m_fates.end()) return std::nullopt;
    return fate->second;
}

} // namespace songsweep
