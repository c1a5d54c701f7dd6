// SPDX-License-Identifier: MIT
#include "window/DeletionFixture.h"

#include "libraryfile/LibraryFixture.h"

#include <QByteArray>

#include <sys/stat.h>

namespace songsweep::test {

namespace fs = std::filesystem;

namespace {

std::string valueOf(const std::string& cell) {
    const std::size_t colon = cell.find(": ");
    return colon == std::string::npos ? std::string() : cell.substr(colon + 2);
}

std::set<std::string> filesBelow(const fs::path& folder) {
    std::set<std::string> files;
    if (!fs::exists(folder)) return files;
    for (const auto& entry : fs::recursive_directory_iterator(folder))
        if (entry.is_regular_file()) files.insert(entry.path());
    return files;
}

/// The value of the line "Path=" in a record of the Trash.
std::string originalPath(const std::string& record) {
    const std::size_t start = record.find("\nPath=") + 6;
    const std::string encoded = record.substr(start, record.find('\n', start) - start);
    return QByteArray::fromPercentEncoding(QByteArray::fromStdString(encoded)).toStdString();
}

} // namespace

void DeletionFixture::begin() {
    m_before = library();
    m_tracks = ParsedLibrary::read(path("library.xml")).tracks();
    m_files = filesOf(m_tracks);
    ASSERT_NO_FATAL_FAILURE(start());
    ASSERT_NO_FATAL_FAILURE(search());
}

void DeletionFixture::keepNothing() {
    m_input.press("alt+p");
    m_input.press("alt+a");
}

void DeletionFixture::deleteMarked() {
    const int count = countMarked();
    ASSERT_NO_FATAL_FAILURE(askToDelete());
    keepNothing();
    m_input.press("alt+d");
    ASSERT_NO_FATAL_FAILURE(waitForOutcomes(static_cast<std::size_t>(count)));
    // The main window may be active for a moment before the sheet is, too.
    ASSERT_TRUE(comes("the end of the sheet",
                      [this] { return countMarked() == 0 && !m_screen.shows("Deleting..."); }));
    ASSERT_TRUE(becomesActive(mainWindow));
}

void DeletionFixture::searchAgain() {
    m_input.press("ctrl+f");
    ASSERT_TRUE(becomesActive("Search for duplicates"));
    m_input.press("Return");
    ASSERT_TRUE(comes("the waiting search", [this] { return logHas("Xml enter delay"); }));
}

void DeletionFixture::waitForOutcomes(std::size_t count) {
    ASSERT_TRUE(comes("the last outcome", [&, this] { return deletedTracks().size() == count; }));
}

std::multiset<DeletionFixture::ShownTrack> DeletionFixture::shownMarks() const {
    std::multiset<ShownTrack> marked;
    for (const auto& row : m_screen.rows())
        if (row[Column::checkbox] == "Marked")
            marked.insert(
                {valueOf(row[Column::name]), valueOf(row[Column::artist]), valueOf(row[Column::location])});
    return marked;
}

std::vector<DeletionFixture::Track> DeletionFixture::deletedTracks() const {
    constexpr std::size_t idLength = 16;
    std::map<std::string, Track> byId;
    for (const Track& track : m_tracks)
        byId[track.persistentId] = track;
    std::vector<Track> deleted;
    for (const std::string& line : log()) {
        const std::size_t end = line.find(") deleted");
        if (line.starts_with("Track ") && end != std::string::npos)
            deleted.push_back(byId.at(line.substr(end - idLength, idLength)));
    }
    return deleted;
}

std::multiset<DeletionFixture::ShownTrack> DeletionFixture::asShown(const std::vector<Track>& tracks) {
    std::multiset<ShownTrack> shown;
    for (const Track& track : tracks)
        shown.insert({track.name, track.artist, track.path});
    return shown;
}

std::string DeletionFixture::libraryWithout(const std::vector<Track>& deleted) const {
    std::set<int> ids;
    for (const Track& track : deleted)
        ids.insert(track.id);
    return withoutTracks(m_before, ids);
}

std::set<std::string> DeletionFixture::filesOfNobodyElse(const std::vector<Track>& deleted) const {
    std::map<int, FileIdentity> staying = m_files;
    for (const Track& track : deleted)
        staying.erase(track.id);
    std::set<FileIdentity> used;
    for (const auto& [id, file] : staying)
        used.insert(file);
    std::set<std::string> files;
    for (const Track& track : deleted) {
        const auto file = m_files.find(track.id);
        if (file != m_files.end() && !used.contains(file->second)) files.insert(track.path);
    }
    return files;
}

std::set<std::string> DeletionFixture::musicFiles() const { return filesBelow(path("Music")); }

std::set<std::string> DeletionFixture::trashedFiles() const {
    std::set<std::string> originals;
    for (const fs::path record : filesBelow(path("home/data/Trash/info"))) {
        EXPECT_TRUE(fs::exists(path("home/data/Trash/files") / record.stem())) << record;
        originals.insert(originalPath(contentOf(record)));
    }
    return originals;
}

int DeletionFixture::countBackups() const {
    int count = 0;
    for (const auto& entry : fs::directory_iterator(m_folder.path()))
        if (entry.is_regular_file() && entry.path().filename() != "library.xml")
            count += contentOf(entry.path()) == m_before ? 1 : 0;
    return count;
}

std::map<int, DeletionFixture::FileIdentity> DeletionFixture::filesOf(const std::vector<Track>& tracks) {
    std::map<int, FileIdentity> files;
    for (const Track& track : tracks) {
        struct stat status {};
        if (!track.path.empty() && ::stat(track.path.c_str(), &status) == 0)
            files[track.id] = {status.st_dev, status.st_ino};
    }
    return files;
}

} // namespace songsweep::test
