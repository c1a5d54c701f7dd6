// SPDX-License-Identifier: MIT
#include "delete/RefusedFiles.h"

#include "libraryfile/CleanupForesight.h"
#include "platform/Files.h"
#include "platform/Trash.h"

namespace songsweep {

RefusedFiles::RefusedFiles(const Files& files, Trash& trash)
    : m_files(files)
    , m_check(trash.newCheck()) {}

RefusedFiles::~RefusedFiles() = default;

void RefusedFiles::leaveRoom(const CleanupRoom& room) {
    if (room.bytes > 0) m_check->leaveRoom(room.folder, room.bytes);
}

const std::string& RefusedFiles::reasonFor(std::string_view location) {
    std::string name = m_files.localPath(std::string(location));
    const auto [asked, isNew] = m_reasons.try_emplace(std::move(name));
    if (isNew)
        if (const Result<void> possible = m_check->add(asked->first); !possible)
            asked->second = possible.error().message;
    return asked->second;
}

} // namespace songsweep
