// SPDX-License-Identifier: MIT
#pragma once

#include "libraryfile/LibraryDocument.h"
#include "sample-library/SoundSample.h"
#include "scan/FolderScan.h"
#include "support/TemporaryFolder.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/stat.h>

#include <cstdint>
#include <filesystem>
#include <memory>
#include <string>
#include <vector>

namespace songsweep::test {

/// A folder of music, and the library that a scan makes of it.
class FolderScanFixture : public ::testing::Test {
  protected:
    FolderScanFixture() { std::filesystem::create_directories(root()); }

    std::string root() const { return m_folder.path() + "/Music"; }
    std::string path(const std::string& name) const { return root() + "/" + name; }

    void write(const std::string& name, const sample::SoundSample& sample = {}) const {
        std::filesystem::create_directories(std::filesystem::path(path(name)).parent_path());
        ASSERT_TRUE(sample::writeSound(path(name), sample));
    }
    void writeTitled(const std::string& name, const std::string& title) const {
        write(name, {.tags = {{"TITLE", title}}});
    }

    FolderLibrary place() const { return FolderLibrary::of(root(), m_folder.path() + "/data").value(); }
    ScanReport scan(const ScanWatch& watch = {}) const {
        const Result<ScanReport> report = scanFolder(place(), watch);
        EXPECT_TRUE(report) << (report ? "" : report.error().message);
        return report ? report.value() : ScanReport();
    }
    std::string libraryBytes() const {
        return m_folder.read(place().library.substr(m_folder.path().size() + 1));
    }

    std::unique_ptr<LibraryDocument> open() const {
        auto document = LibraryDocument::open(place().library);
        EXPECT_TRUE(document) << (document ? "" : document.error().message);
        return std::move(document).value();
    }
    /// A value of every track, in the library's order.
    std::vector<std::string> values(const std::string& key) const {
        std::vector<std::string> texts;
        const auto document = open();
        const TrackListing& tracks = document->listing(0);
        for (std::size_t place = 0; place < tracks.size(); ++place) {
            const Result<const EntryValues*> all = document->values(tracks.track(place));
            const EntryValue* const value = all ? all.value()->find(key) : nullptr;
            texts.push_back(value == nullptr ? "" : value->text);
        }
        return texts;
    }
    std::string value(const std::string& key) const {
        const std::vector<std::string> texts = values(key);
        return texts.size() == 1 ? texts.front() : "not one track";
    }
    /// The names of the tracks of a playlist file's playlist.
    std::vector<std::string> itemsOf(const std::string& playlist) const {
        const auto document = open();
        const std::vector<PlaylistInfo> playlists = document->playlists();
        std::vector<std::string> names;
        for (std::size_t i = 0; i < playlists.size(); ++i) {
            if (playlists[i].name != playlist) continue;
            const TrackListing& items = document->listing(i);
            for (std::size_t place = 0; place < items.size(); ++place)
                names.emplace_back(document->fields(items.track(place)).value()->text(LibraryKey::name));
        }
        return names;
    }
    /// The file as it was written long ago, or at any other time.
    void setTime(const std::string& name, std::int64_t seconds) const {
        const struct timespec times[2] = {{seconds, 0}, {seconds, 0}};
        ASSERT_EQ(::utimensat(AT_FDCWD, path(name).c_str(), times, 0), 0);
    }

    TemporaryFolder m_folder;
};

} // namespace songsweep::test
