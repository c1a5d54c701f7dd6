// SPDX-License-Identifier: MIT
#pragma once

#include "platform/Desktop.h"
#include "platform/Trash.h"
#include "support/RecordingTrash.h"

#include <filesystem>
#include <functional>
#include <string>

namespace songsweep::test {

/// A Trash that is a folder, or refuses.
class FolderTrash final : public Trash {
  public:
    explicit FolderTrash(std::string folder)
        : m_folder(std::move(folder)) {
        std::filesystem::create_directory(m_folder);
    }

    Result<TrashedFile> moveToTrash(const std::string& path) override {
        if (beforeMove) beforeMove();
        if (refuses) return Error{Error::Code::noSpace, "the Trash is full"};
        const TrashedFile file = {m_folder, std::to_string(++trashed)};
        std::filesystem::rename(path, file.path());
        return file;
    }
    Result<RestoredFile> restoreFromTrash(const TrashedFile& file, const std::string& path) override {
        if (!std::filesystem::exists(file.path()))
            return Error{Error::Code::notFound, "it is not in the Trash"};
        std::filesystem::rename(file.path(), path);
        return RestoredFile{};
    }
    std::optional<TrashedFile> findInTrash(const std::string&,
                                           std::chrono::system_clock::time_point) override {
        return std::nullopt;
    }
    std::unique_ptr<TrashCheck> newCheck() override { return std::make_unique<NoTrashCheck>(); }

    bool refuses = false;
    std::function<void()> beforeMove;
    int trashed = 0;

  private:
    std::string m_folder;
};

/// A desktop that has nothing but a Trash.
class TrashOnlyDesktop final : public Desktop {
  public:
    explicit TrashOnlyDesktop(Trash& trash)
        : m_trash(trash) {}

    Trash& trash() override { return m_trash; }
    Result<void> openUrl(const std::string&) override { return {}; }
    Result<void> showInFileManager(const std::string&) override { return {}; }
    Result<void> play(const std::string&) override { return {}; }
    Result<void> stopPlaying() override { return {}; }
    Result<void> setOutputMuted(bool isMuted) override {
        muted = isMuted;
        return {};
    }

    bool muted = false;

  private:
    Trash& m_trash;
};

} // namespace songsweep::test
