// SPDX-License-Identifier: MIT
#include "hosts/HeldFiles.h"

#include <filesystem>
#include <system_error>
#include <utility>

namespace songsweep {

namespace {

bool isLinkToNothing(const std::string& path) {
    std::error_code error;
    return std::filesystem::is_symlink(path, error) && !std::filesystem::exists(path, error);
}

} // namespace

Result<TrashedFile> HeldFile::moveTo(Trash& trash) const {
    const auto present = LibraryFile::stampOf(path);
    const bool isTheOne = present && present.value() == stamp;
    if (!isTheOne && !isLinkToNothing(path))
        return Error{Error::Code::busy, "it is not the file any more that it was"};
    return trash.moveToTrash(path);
}

void HeldFiles::hold(HeldFile file, std::size_t track) {
    const auto [place, isNew] = m_places.emplace(file.path, m_files.size());
    if (isNew) m_files.push_back(std::move(file));
    m_files[place->second].tracks.push_back(track);
}

std::vector<HeldFile> HeldFiles::take(const std::function<bool(const HeldFile&)>& goes) {
    std::vector<HeldFile> taken;
    m_places.clear();
    for (HeldFile& file : std::exchange(m_files, {})) {
        if (goes(file)) {
            taken.push_back(std::move(file));
        } else {
            m_places.emplace(file.path, m_files.size());
            m_files.push_back(std::move(file));
        }
    }
    return taken;
}

std::vector<HeldFile> HeldFiles::takeAll() {
    m_places.clear();
    return std::exchange(m_files, {});
}

} // namespace songsweep
