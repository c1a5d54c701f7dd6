// SPDX-License-Identifier: MIT
#pragma once

#include "hosts/EmbeddedScripting.h"
#include "hosts/RecordingDesktop.h"
#include "libraryfile/LibraryFixture.h"
#include "platform/Files.h"
#include "support/RecordingLog.h"

#include <QUrl>

#include <gtest/gtest.h>

#include <filesystem>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace songsweep::test {

/// Times that no test reaches: what is written is written by a call.
inline constexpr WriteSchedule::Times never{std::chrono::hours(1), std::chrono::hours(1)};

/// The embedded iTunes and Finder over a library in a folder of their own, and what a test asks them.
class EmbeddedScriptingFixture : public testing::Test {
  protected:
    EmbeddedScripting& open(std::string_view text, WriteSchedule::Times times = never) {
        EmbeddedScripting::Options options;
        options.writes = times;
        options.log = &m_log;
        m_path = m_folder.write("library.xml", text);
        m_scripts = std::make_unique<EmbeddedScripting>(m_path, m_desktop, m_files, options);
        return *m_scripts;
    }

    Descriptor run(const std::string& source) {
        const auto result = m_scripts->executeAndReturnError(source);
        EXPECT_TRUE(result) << source << "\n" << result.error().message;
        return result ? result.value() : Descriptor();
    }

    std::string text(const std::string& source) { return run(source).stringValue().value_or("(none)"); }

    std::vector<std::string> texts(const Descriptor& list) {
        std::vector<std::string> all;
        for (int i = 1; i <= list.numberOfItems(); ++i)
            all.push_back(list.descriptorAtIndex(i)->stringValue().value_or("(none)"));
        return all;
    }

    std::string failure(const std::string& source) {
        const auto result = m_scripts->executeAndReturnError(source);
        return result ? "(no failure)" : result.error().message;
    }

    Result<void> beginCleanup() {
        return m_scripts->withCleanup(
            [this](LibraryCleanup& cleanup) { return cleanup.begin({"a test"}, plan()); });
    }
    /// Of the tracks of `manyTracks`, and of files in the folder.
    CleanupPlan plan() const {
        CleanupPlan plan;
        for (int n = 0; n < 4; ++n) {
            RecordedTrack& track = plan.tracks.emplace_back();
            track.persistentId = persistentIdOf(n);
            track.file = stampOf(n);
        }
        return plan;
    }
    Result<void> finishCleanup() {
        return m_scripts->withCleanup([](LibraryCleanup& cleanup) { return cleanup.finish(); });
    }
    Result<void> endCleanup(RecordEnd::How how = RecordEnd::How::complete) {
        return m_scripts->withCleanup([&](LibraryCleanup& cleanup) { return cleanup.end({}, how, {}); });
    }
    std::string backup() {
        return m_scripts->withCleanup([](LibraryCleanup& cleanup) { return cleanup.backup(); });
    }
    RecordedCleanup record() {
        const auto record = RecordedCleanup::read(
            m_scripts->withCleanup([](LibraryCleanup& cleanup) { return cleanup.record(); }));
        EXPECT_TRUE(record);
        return record ? record.value() : RecordedCleanup();
    }
    bool beginTrack(std::size_t number) {
        return m_scripts->withCleanup([&](LibraryCleanup& cleanup) { return cleanup.beginTrack(number); });
    }
    bool hasTrack(std::size_t number) {
        return m_scripts->withCleanup([&](LibraryCleanup& cleanup) { return cleanup.hasTrack(number); });
    }
    std::optional<Result<TrashedFile>> fateOfFile(std::size_t track) {
        return m_scripts->withCleanup([&](LibraryCleanup& cleanup) { return cleanup.fateOfFile(track); });
    }

    /// Another program's new version takes the library's place.
    void replaceLibrary(std::string_view text) const {
        std::filesystem::rename(m_folder.write("new.xml", text), m_path);
    }

    /// "0.mp3" is the file of track 0.
    FileStamp stampOf(int track) const {
        const auto stamp = LibraryFile::stampOf(m_folder.pathOf(std::to_string(track) + ".mp3"));
        return stamp ? stamp.value() : FileStamp();
    }

    /// A file in the folder and its location as a library has it.
    std::string locationOf(const std::string& name) {
        m_folder.write(name, "sound");
        const QByteArray path = QUrl::toPercentEncoding(QString::fromStdString(m_folder.pathOf(name)), "/");
        return "<key>Location</key><string>file://localhost" + path.toStdString() + "</string>";
    }

    Folder m_folder;
    std::string m_path;
    RecordingDesktop m_desktop;
    RecordingLog m_log;
    Files m_files;
    std::unique_ptr<EmbeddedScripting> m_scripts;
};

} // namespace songsweep::test
