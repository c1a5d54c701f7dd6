// SPDX-License-Identifier: MIT
#include "RecordedDeletion.h"

#include "SampleLibrary.h"
#include "libraryfile/CleanupHistory.h"

#include <array>
#include <cstdio>
#include <numeric>

namespace songsweep::test {

namespace fs = std::filesystem;

namespace {

constexpr int copies = 3;

std::string persistentIdOf(int id) {
    std::array<char, 17> text{};
    std::snprintf(text.data(), text.size(), "%016X", static_cast<unsigned>(id));
    return text.data();
}

} // namespace

RecordedDeletionTest::RecordedDeletionTest(int songs)
    : m_trackCount(songs * copies + 2) {
    std::vector<SampleTrack> tracks;
    for (int id = 1; id <= m_trackCount; ++id) {
        const bool isOther = id > songs * copies;
        const int copy = (id - 1) % copies;
        const int song = (id - 1) / copies;
        if (!isOther && copy != 1) m_gone.push_back(id);
        tracks.push_back({.id = id,
                          .name = isOther ? "B" : "A" + (song == 0 ? std::string() : std::to_string(song)),
                          .artist = "X",
                          .milliseconds = 1000,
                          .bitRate = !isOther && copy == 1 ? 320 : 128,
                          .path = path(fileName(id))});
    }
    m_whole = libraryText(tracks);
    m_library = path("Library.xml");
    makeAnew();
}

void RecordedDeletionTest::makeAnew() {
    for (const auto& entry : fs::directory_iterator(m_folder.path()))
        fs::remove_all(entry.path());
    fs::create_directories(path("home/data"));
    m_folder.write("Library.xml", m_whole);
    for (int id = 1; id <= m_trackCount; ++id)
        m_folder.write(fileName(id), "music " + std::to_string(id));
}

std::vector<RecordedTrack> RecordedDeletionTest::tracksToGo() const {
    std::vector<RecordedTrack> tracks;
    for (const int id : m_gone)
        tracks.push_back({.persistentId = persistentIdOf(id),
                          .trackId = id,
                          .name = "A",
                          .artist = "X",
                          .path = path(fileName(id)),
                          .kept = "",
                          .file = LibraryFile::stampOf(path(fileName(id))).value()});
    return tracks;
}

std::string RecordedDeletionTest::deleteTracks() {
    const std::vector<RecordedTrack> tracks = tracksToGo();
    RecordHeading heading;
    heading.version = LibraryFile::stampOf(m_library).value();
    EXPECT_EQ(
        run({"delete", "--library", m_library, "--rule", "highest-bitrate", "--files", "--yes"}).exitCode, 0);
    for (const int id : m_gone)
        EXPECT_TRUE(fs::exists(path(inTrash(id)))) << id;
    heading.program = "a test";
    heading.library = m_library;
    heading.backup = newestBackup();
    heading.tracks = tracks.size();
    heading.withFiles = true;
    writeRecord(heading, tracks);
    return cleanupName(recordPathFor(heading.backup));
}

std::string RecordedDeletionTest::newestBackup() const {
    std::string newest;
    for (const auto& entry : fs::directory_iterator(m_folder.path()))
        if (entry.path().filename().string().starts_with("Library (before deletions of ") &&
            entry.path().extension() == ".xml")
            newest = std::max(newest, entry.path().string());
    return newest;
}

void RecordedDeletionTest::writeRecord(const RecordHeading& heading,
                                       const std::vector<RecordedTrack>& tracks) const {
    auto created = CleanupRecord::create(heading);
    ASSERT_TRUE(created) << created.error().message;
    CleanupRecord& record = created.value();
    for (const RecordedTrack& track : tracks)
        record.plan(track);
    ASSERT_TRUE(record.planned() && record.writing(tracks.size()));
    record.written();
    std::vector<std::size_t> all(tracks.size());
    std::iota(all.begin(), all.end(), std::size_t{0});
    ASSERT_TRUE(record.trashing(all));
    if (m_isKilled) return;
    for (std::size_t i = 0; i < tracks.size(); ++i) {
        record.trashed(i, {path("home/data/Trash/files"), fs::path(tracks[i].path).filename()});
        record.outcome(i, {RecordedOutcome::Track::deleted, RecordedOutcome::File::trashed, ""});
    }
    ASSERT_TRUE(record.end(RecordEnd::How::complete, ""));
}

std::vector<std::string> RecordedDeletionTest::restoreCommand(std::vector<std::string> options) const {
    options.insert(options.begin(), {"restore", "--library", m_library});
    return options;
}

RunResult RecordedDeletionTest::restore(std::vector<std::string> options) {
    return run(restoreCommand(std::move(options)));
}

void RecordedDeletionTest::expectAllBack() const {
    EXPECT_EQ(library(), m_whole);
    for (int id = 1; id <= m_trackCount; ++id)
        EXPECT_EQ(m_folder.read(fileName(id)), "music " + std::to_string(id));
    EXPECT_TRUE(fs::is_empty(path("home/data/Trash/files")));
    EXPECT_TRUE(fs::is_empty(path("home/data/Trash/info")));
}

std::map<std::string, std::string> RecordedDeletionTest::tree() const {
    std::map<std::string, std::string> files;
    for (const auto& entry : fs::recursive_directory_iterator(m_folder.path()))
        files[entry.path().string()] =
            entry.is_regular_file() ? m_folder.read(fs::relative(entry.path(), m_folder.path()).string())
                                    : "";
    return files;
}

} // namespace songsweep::test
