// SPDX-License-Identifier: MIT
#pragma once

#include <QTemporaryDir>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <string_view>
#include <system_error>

namespace songsweep::test {

/// A folder of its own for one test; it goes away with everything in it.
class TemporaryFolder {
  public:
    TemporaryFolder() = default;
    /// In a folder other than that for temporary files, which need not be on a disk.
    explicit TemporaryFolder(const std::string& parent)
        : m_folder(QString::fromStdString(parent + "/XXXXXX")) {}
    TemporaryFolder(const TemporaryFolder&) = delete;
    TemporaryFolder& operator=(const TemporaryFolder&) = delete;
    /// Qt would leave names that are no valid text.
    ~TemporaryFolder() {
        std::error_code ignored;
        std::filesystem::remove_all(path(), ignored);
    }

    std::string path() const { return m_folder.path().toStdString(); }

    /// Writes a file, with the folders on the way to it, and gives its path.
    std::string write(std::string_view name, std::string_view contents) const {
        const std::filesystem::path file = std::filesystem::path(path()) / name;
        std::filesystem::create_directories(file.parent_path());
        std::ofstream(file, std::ios::binary) << contents;
        return file.string();
    }

    /// The whole contents of a file by its name in the folder; empty where there is none.
    std::string read(std::string_view name) const {
        std::ifstream file(std::filesystem::path(path()) / name, std::ios::binary);
        return {std::istreambuf_iterator<char>(file), {}};
    }

  private:
    QTemporaryDir m_folder;
};

} // namespace songsweep::test
