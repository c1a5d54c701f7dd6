// SPDX-License-Identifier: MIT
#include "RecordedDeletion.h"

#include "SampleLibrary.h"
#include "libraryfile/CleanupHistory.h"
#include "libraryfile/RecordedCleanup.h"

#include <filesystem>

namespace songsweep::test {

namespace fs = std::filesystem;

namespace {

constexpr int copies = 3;

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

std::string RecordedDeletionTest::deleteTracks() {
    EXPECT_EQ(runDeletion().exitCode, 0);
    for (const int id : m_gone)
        EXPECT_TRUE(fs::exists(path(inTrash(id)))) << id;
    return newestCleanup();
}

std::string RecordedDeletionTest::deleteNothing() {
    const std::string cleanup = deleteAndBeKilled("KILL_BEHIND_WRITE", R"({"step":"planned")");
    EXPECT_EQ(library(), m_whole);
    return cleanup;
}

std::string RecordedDeletionTest::deleteTracksAndNoFile() {
    return deleteAndBeKilled("KILL_BEHIND_WRITE", R"({"step":"trashing")");
}

std::string RecordedDeletionTest::deleteTracksUpToFile(int id) {
    return deleteAndBeKilled("KILL_BEHIND_MOVE", path(fileName(id)));
}

std::string RecordedDeletionTest::deleteAndBeKilled(const char* setting, const std::string& value) {
    const QProcessEnvironment environment = m_environment;
    m_environment.insert(QStringLiteral("LD_PRELOAD"), QStringLiteral(KILLING_CALLS));
    m_environment.insert(QLatin1String(setting), QString::fromStdString(value));
    // A sanitizer wants to be the first library.
    m_environment.insert(QStringLiteral("ASAN_OPTIONS"), QStringLiteral("verify_asan_link_order=0"));
    const RunResult result = runDeletion();
    m_environment = environment;
    EXPECT_NE(result.exitCode, 0);
    EXPECT_EQ(result.output, "") << "it was killed before it could tell";
    return newestCleanup();
}

RunResult RecordedDeletionTest::runDeletion() {
    return run({"delete", "--library", m_library, "--rule", "highest-bitrate", "--files", "--yes"});
}

std::string RecordedDeletionTest::newestCleanup() const { return cleanupName(recordPathFor(newestBackup())); }

std::string RecordedDeletionTest::newestBackup() const {
    std::string newest;
    for (const auto& entry : fs::directory_iterator(m_folder.path()))
        if (entry.path().filename().string().starts_with("Library (before deletions of ") &&
            entry.path().extension() == ".xml")
            newest = std::max(newest, entry.path().string());
    return newest;
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
