// SPDX-License-Identifier: MIT
// The whole road from files to records: folders of damaged files under odd names are scanned, and the library
// that comes of each is read like any other. SONGSWEEP_ROUNDS tries more folders.
#include "library/LibraryWalk.h"
#include "library/LocationUrl.h"
#include "library/PlaylistItems.h"
#include "library/XmlReader.h"
#include "libraryfile/WellFormedness.h"
#include "platform/Utf8.h"
#include "scan/FolderScanFixture.h"
#include "support/RecordingLog.h"

#include <cstdlib>
#include <filesystem>
#include <map>
#include <random>
#include <set>

namespace songsweep::test {

namespace {

namespace fs = std::filesystem;
using sample::SoundKind;

class HostileFolderTest : public FolderScanFixture {
  protected:
    static int rounds() {
        const char* const text = std::getenv("SONGSWEEP_ROUNDS");
        return text == nullptr ? 40 : std::atoi(text);
    }

    std::size_t below(std::size_t bound) { return m_random() % bound; }

    /// Bytes that a name of a file can have, and an XML file, a URL or a line of text has use for.
    std::string name() {
        static const std::string bytes = "a \n\r\t\x01\x7F\"'<>&]%?#\\;\xC3\xA9\xFF\xED\xA0\x80-";
        std::string text;
        for (std::size_t size = 1 + below(12); size > 0; --size)
            text += bytes[below(bytes.size())];
        return text.starts_with('.') ? "x" + text : text;
    }

    std::map<std::string, std::string> tags() {
        std::map<std::string, std::string> all;
        for (const char* const key : {"TITLE", "ARTIST", "ALBUM", "GENRE", "COMMENT", "TRACKNUMBER", "DATE",
                                      "RATING", "FMPS_RATING", "FMPS_PLAYCOUNT", "BPM"})
            if (below(2) == 0) all[key] = below(3) == 0 ? std::to_string(m_random()) : name();
        return all;
    }

    void fill() {
        for (std::size_t files = 1 + below(20); files > 0; --files) {
            const auto kind = static_cast<SoundKind>(below(sample::soundKinds));
            const std::string file = (below(3) == 0 ? name() + "/" : std::string()) + name() + "." +
                                     std::string(sample::endingOf(kind));
            write(file, {.kind = kind, .tags = tags(), .pictures = static_cast<int>(below(2))});
            if (below(2) == 0) damage("Music/" + file);
        }
    }

    void damage(const std::string& file) {
        std::string bytes = m_folder.read(file);
        for (std::size_t i = below(12); i > 0; --i)
            bytes[below(std::min<std::size_t>(bytes.size(), 2048))] = static_cast<char>(m_random());
        if (below(8) == 0) bytes.resize(below(bytes.size()));
        m_folder.write(file, bytes);
    }

    /// The library as a search reads it.
    TrackList read() {
        TrackList list;
        PlaylistItems items;
        RecordingLog log;
        LibraryWalk walk(list, items, std::nullopt, log, [](int) {});
        const auto reader = XmlReader::open(place().library);
        XmlNode node;
        while (reader && !reader->error() && reader->read(node))
            walk.feed(node.type, node.name, node.value);
        walk.finish();
        EXPECT_TRUE(reader && !reader->error());
        return list;
    }

    std::mt19937 m_random{16};
};

TEST_F(HostileFolderTest, BecomesRecordsWhateverItsFilesAre) {
    for (int round = 0; round < rounds(); ++round) {
        fs::remove_all(root());
        fs::create_directories(root());
        fill();
        const ScanReport report = scan();
        EXPECT_TRUE(checkWellFormedness(LibraryFile::open(place().library).value()));
        const TrackList list = read();
        ASSERT_EQ(list.records.size(), report.tracks);
        std::set<std::string> ids;
        for (const TrackRecord* const record : list.records) {
            const auto location = pathOfFileUrl(record->location);
            EXPECT_TRUE(location && fs::exists(*location)) << record->location.string();
            EXPECT_FALSE(std::string_view(record->name).empty());
            EXPECT_TRUE(isUtf8(record->name));
            EXPECT_GE(record->timev, 0);
            EXPECT_GE(record->rating, 0);
            EXPECT_LE(record->rating, 5);
            EXPECT_TRUE(ids.insert(std::string(record->pid)).second) << "an ID twice";
        }
        ASSERT_EQ(scan().changed, 0U);
        if (HasFailure()) FAIL() << "in round " << round;
    }
}

} // namespace

} // namespace songsweep::test
