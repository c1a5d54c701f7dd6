// SPDX-License-Identifier: MIT
#pragma once

#include <filesystem>
#include <string>

#ifdef __linux__
#include <sys/mount.h>
#endif

namespace songsweep::test {

/// A folder that is seen at a second place as well, while the object lives.
class BindMount {
  public:
    BindMount([[maybe_unused]] const std::string& folder, std::string place)
        : m_place(std::move(place)) {
        std::filesystem::create_directory(m_place);
#ifdef __linux__
        m_mounted = ::mount(folder.c_str(), m_place.c_str(), nullptr, MS_BIND, nullptr) == 0;
#endif
    }
    BindMount(const BindMount&) = delete;
    BindMount& operator=(const BindMount&) = delete;
    ~BindMount() {
#ifdef __linux__
        if (m_mounted) ::umount2(m_place.c_str(), MNT_DETACH);
#endif
    }

    /// False where this user, or this system, cannot do so.
    bool isMounted() const { return m_mounted; }

  private:
    std::string m_place;
    bool m_mounted = false;
};

} // namespace songsweep::test
