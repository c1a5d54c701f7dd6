// SPDX-License-Identifier: MIT
#include "Check.h"

#include <unistd.h>

#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>

namespace songsweep::fuzz {

namespace fs = std::filesystem;

namespace {

/// Made when it is first asked for.
class ScratchFolder {
  public:
    ScratchFolder() {
        const char* const folder = std::getenv("TMPDIR");
        m_path = std::string(folder != nullptr ? folder : "/dev/shm") + "/songsweep-fuzz-" +
                 std::to_string(::getpid());
        fs::create_directories(m_path);
    }
    ~ScratchFolder() {
        std::error_code error;
        fs::remove_all(m_path, error);
    }
    const std::string& path() const { return m_path; }

  private:
    std::string m_path;
};

} // namespace

void check(bool holds, std::string_view what) {
    if (holds) return;
    std::fprintf(stderr, "%.*s\n", static_cast<int>(what.size()), what.data());
    std::abort();
}

std::string_view textOf(const std::uint8_t* data, std::size_t size) {
    return {reinterpret_cast<const char*>(data), size};
}

const std::string& scratchFolder() {
    static const ScratchFolder folder;
    return folder.path();
}

std::string scratchFile(const std::string& name, std::string_view contents) {
    std::string path = scratchFolder() + "/" + name;
    std::ofstream(path, std::ios::binary) << contents;
    return path;
}

std::string contentOf(const std::string& path) {
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

void clearScratchFolder() {
    for (const auto& entry : fs::directory_iterator(scratchFolder()))
        fs::remove_all(entry.path());
}

} // namespace songsweep::fuzz
