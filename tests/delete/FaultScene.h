// SPDX-License-Identifier: MIT
#pragma once

#include "libraryfile/LibraryFixture.h"
#include "libraryfile/SystemCalls.h"
#include "platform/FileUrl.h"

#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <filesystem>
#include <set>
#include <string>
#include <vector>

namespace songsweep::test {

/// A library with a file for each track, and a Trash beside it. The tracks of even number are to go.
class FaultScene {
  public:
    explicit FaultScene(int trackCount)
        : m_trackCount(trackCount) {
        std::vector<FixtureTrack> tracks;
        std::vector<int> all;
        for (int id = 1; id <= trackCount; ++id) {
            tracks.push_back({id, persistentIdOf(id),
                              "<key>Location</key><string>" +
                                  fileUrl(m_folder.write(nameOf(id), soundOf(id))) + "</string>"});
            all.push_back(id);
            if (id % 2 == 0) m_marked.insert(id);
        }
        m_whole = libraryXml(tracks, {{"Library", "<key>Master</key><true/>", all}, {"Party", "", all}});
        m_folder.write("library.xml", m_whole);
        std::filesystem::create_directory(trashPath());
    }

    /// Nothing hidden is left.
    void expectNoRubbish() const {
        for (const std::string& name : m_folder.names())
            EXPECT_FALSE(name.starts_with(".")) << name;
    }

  protected:
    static std::string nameOf(int id) { return std::to_string(id) + ".mp3"; }
    static std::string soundOf(int id) { return "sound " + std::to_string(id); }
    std::string pathOf(int id) const { return m_folder.pathOf(nameOf(id)); }
    std::string libraryPath() const { return m_folder.pathOf("library.xml"); }
    std::string trashPath() const { return m_folder.pathOf("Trash"); }
    std::string text() const { return contentOf(libraryPath()); }
    bool isMarked(int id) const { return m_marked.contains(id); }
    bool hasTrack(int id) const {
        return text().find("<key>" + std::to_string(id) + "</key>") != std::string::npos;
    }

    /// What the files in the Trash hold.
    std::multiset<std::string> trashed() const {
        std::multiset<std::string> sounds;
        for (const auto& file : std::filesystem::directory_iterator(trashPath()))
            sounds.insert(contentOf(file.path()));
        return sounds;
    }

    int m_trackCount;
    Folder m_folder;
    std::string m_whole; ///< the library with all tracks
    std::set<int> m_marked;
};

/// Runs scene after scene: in each the next system call fails with that errno. `check` gets the scene and
/// what it told. The number of calls that failed.
template <class Scene, class Check>
int failEachCall(int errorNumber, const Check& check) {
    for (int call = 1;; ++call) {
        Scene scene;
        const auto told = scene.run([&] { SystemCalls::failAt(call, errorNumber); });
        SystemCalls::stop();
        const std::string failed = SystemCalls::failed();
        if (failed.empty() || testing::Test::HasFailure()) return call - 1;
        SCOPED_TRACE(failed + ", call " + std::to_string(call));
        check(scene, told);
    }
}

/// The same with a kill before the next system call, in a process of its own.
template <class Scene, class Check>
int killAtEachCall(const Check& check) {
    for (int call = 1;; ++call) {
        Scene scene;
        const pid_t child = ::fork();
        if (child == 0) {
            const auto told = scene.run([&] { SystemCalls::killAt(call); });
            ::_exit(Scene::isDone(told) ? 0 : 1);
        }
        int status = -1;
        EXPECT_EQ(::waitpid(child, &status, 0), child);
        if (!WIFSIGNALED(status)) {
            EXPECT_EQ(WEXITSTATUS(status), 0);
            return call - 1;
        }
        if (testing::Test::HasFailure()) return call - 1;
        SCOPED_TRACE("call " + std::to_string(call));
        check(scene);
    }
}

} // namespace songsweep::test
