// SPDX-License-Identifier: MIT
#pragma once

#include "platform/Trash.h"

#include <filesystem>
#include <string>
#include <vector>

namespace songsweep::test {

/// A check that foresees nothing.
struct NoTrashCheck final : TrashCheck {
    Result<void> add(const std::string&) override { return {}; }
};

/// A Trash that only notes what it is asked for, and refuses where told to.
class RecordingTrash : public Trash {
  public:
    explicit RecordingTrash(std::vector<std::string>& calls)
        : m_calls(calls) {}

    Result<TrashedFile> moveToTrash(const std::string& path) override {
        if (!refusal.empty()) return Error{Error::Code::noPermission, refusal};
        m_calls.push_back("trash " + path);
        if (moves) std::filesystem::remove(path);
        return TrashedFile{"/Trash/files", path.substr(path.rfind('/') + 1)};
    }
    Result<RestoredFile> restoreFromTrash(const TrashedFile&, const std::string& path) override {
        if (!refusal.empty()) return Error{Error::Code::noPermission, refusal};
        m_calls.push_back("restore " + path);
        return RestoredFile{};
    }
    std::optional<TrashedFile> findInTrash(const std::string&,
                                           std::chrono::system_clock::time_point) override {
        return std::nullopt;
    }
    std::unique_ptr<TrashCheck> newCheck() override { return std::make_unique<NoTrashCheck>(); }

    std::string refusal;
    bool moves = false; ///< files are not where they were afterwards

  private:
    std::vector<std::string>& m_calls;
};

} // namespace songsweep::test
