// SPDX-License-Identifier: MIT
#pragma once

#include "ProgramRun.h"
#include "SampleLibrary.h"

#include <filesystem>
#include <map>
#include <string>
#include <utility>
#include <vector>

namespace songsweep::test {

/// Two groups: "A" with bit rates 128, 320 and 192, "B" with 128 twice.
class TwoGroups : public ProgramTest {
  protected:
    TwoGroups() {
        for (int id = 1; id <= 5; ++id)
            m_folder.write("music/" + std::to_string(id) + ".mp3", "music");
        m_library = m_folder.write("Library.xml", libraryText(tracks({1, 2, 3, 4, 5})));
    }

    std::vector<SampleTrack> tracks(const std::vector<int>& ids) const {
        const std::map<int, std::pair<const char*, int>> all = {
            {1, {"A", 128}}, {2, {"A", 320}}, {3, {"A", 192}}, {4, {"B", 128}}, {5, {"B", 128}}};
        std::vector<SampleTrack> chosen;
        chosen.reserve(ids.size());
        for (const int id : ids)
            chosen.push_back({.id = id,
                              .name = all.at(id).first,
                              .artist = "X",
                              .milliseconds = 1000,
                              .bitRate = all.at(id).second,
                              .path = path("music/" + std::to_string(id) + ".mp3")});
        return chosen;
    }
    RunResult command(const std::string& name, std::vector<std::string> options) {
        options.insert(options.begin(), {name, "--library", m_library});
        return run(options);
    }
    /// Every file below the test's folder with its contents.
    std::map<std::string, std::string> tree() const {
        std::map<std::string, std::string> files;
        for (const auto& entry : std::filesystem::recursive_directory_iterator(m_folder.path()))
            files[entry.path().string()] =
                entry.is_regular_file()
                    ? m_folder.read(std::filesystem::relative(entry.path(), m_folder.path()).string())
                    : "";
        return files;
    }
    bool hasFile(int id) const {
        return std::filesystem::exists(path("music/" + std::to_string(id) + ".mp3"));
    }

    std::string m_library;
};

} // namespace songsweep::test
