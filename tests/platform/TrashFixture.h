// SPDX-License-Identifier: MIT
#pragma once

#include "UserFolders.h"
#include "platform/linux/LinuxTrash.h"
#include "support/TemporaryFolder.h"

#include <QStringList>

#include <gtest/gtest.h>

#include <filesystem>
#include <string>
#include <vector>

namespace songsweep::test {

/// A file in the Trash, read by the freedesktop rules as a file manager would.
struct Trashed {
    std::filesystem::path file;
    std::filesystem::path record;
    std::string original; ///< the path to restore it to, decoded
    std::string date;
};

std::vector<Trashed> listTrash(const std::filesystem::path& trash);

std::string contentsOf(const std::filesystem::path& path);

/// Another file system below a test's folder for as long as this lives.
class Mount {
  public:
    Mount(const std::string& place, const QStringList& arguments);
    Mount(const Mount&) = delete;
    Mount& operator=(const Mount&) = delete;
    ~Mount();
    /// False where this user may not mount.
    explicit operator bool() const { return m_mounted; }

  private:
    std::string m_place;
    bool m_mounted = false;
};

/// Makes a file system of small blocks with many inodes in the file; false where there is no tool for it.
bool makeFileSystem(const std::string& image);

/// The user's Trash, empty before and after each test.
class TrashFixture : public ::testing::Test {
  protected:
    void TearDown() override { std::filesystem::remove_all(m_place); }

    std::vector<Trashed> list() const { return listTrash(m_place); }

    std::filesystem::path m_place = std::filesystem::path(userData()) / "Trash";
    TemporaryFolder m_folder;
    LinuxTrash m_trash;
};

} // namespace songsweep::test
