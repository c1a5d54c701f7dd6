// SPDX-License-Identifier: MIT
#pragma once

#include "platform/Trash.h"
#include "platform/linux/RecordRoom.h"

#include <sys/types.h>

#include <unordered_map>

namespace songsweep {

/// Foresees by the rules that GIO's Trash goes by.
///
/// A file costs one call of statx; a folder some ten calls, and a look through the list of mounts where it is
/// not on the home folder's device.
class LinuxTrashCheck final : public TrashCheck {
  public:
    void leaveRoom(const std::string& folder, std::uint64_t bytes) override;
    Result<void> add(const std::string& path) override;

  private:
    /// What is the same for all files of one device in one folder.
    struct Place {
        Result<void> usable;
        bool isSticky = false;
        uid_t owner = 0;
        RecordRoom* room = nullptr;
    };

    const Place& placeOf(const std::string& folder, dev_t device);
    Place newPlace(const std::string& folder, dev_t device);
    RecordRoom& roomOf(const std::string& folder);

    std::unordered_map<std::string, Place> m_places;
    std::unordered_map<dev_t, RecordRoom> m_rooms; ///< by the device of the Trash
};

} // namespace songsweep
