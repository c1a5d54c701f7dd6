// SPDX-License-Identifier: MIT
#include "ProgramRun.h"
#include "SampleLibrary.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace songsweep {
namespace {

using test::libraryText;
using test::RunResult;
using test::SampleTrack;
using ::testing::AllOf;
using ::testing::HasSubstr;

class LibraryWarnings : public test::ProgramTest {
  protected:
    std::string library(const std::vector<std::string>& paths) const {
        std::vector<SampleTrack> tracks;
        for (const std::string& path : paths)
            tracks.push_back({.id = static_cast<int>(tracks.size()) + 1,
                              .name = "A",
                              .artist = "B",
                              .milliseconds = 1000,
                              .path = path});
        return m_folder.write("Library.xml", libraryText(tracks));
    }
    RunResult find(const std::string& library, std::vector<std::string> options = {}) {
        options.insert(options.begin(), {"find", "--library", library});
        RunResult result = run(options);
        EXPECT_EQ(result.exitCode, 0);
        return result;
    }
};

TEST_F(LibraryWarnings, TellOfALibraryAllOfWhoseFilesAreMissing) {
    // Files of these names are beside no folder of another test, where they would be found.
    const std::string file = library({"/Users/ann/nowhere-1.mp3", "/Users/ann/nowhere-2.mp3"});
    const auto warned = AllOf(HasSubstr("none of the library's files is here"), HasSubstr("--map FROM=TO"),
                              HasSubstr("/Users/ann/nowhere-1.mp3"));
    EXPECT_THAT(find(file).errors, warned);
    EXPECT_THAT(find(file, {"--ignore-missing"}).errors, warned) << "which finds no duplicates";
}

TEST_F(LibraryWarnings, SayNothingWhereOneFileIsHere) {
    m_folder.write("here.mp3", "x");
    EXPECT_EQ(find(library({"/Users/ann/a.mp3", path("here.mp3"), "/Users/ann/a.mp3"})).errors, "");
    EXPECT_EQ(find(library({"/Users/ann/a.mp3", "/Users/ann/b.mp3", path("here.mp3")}), {"--ignore-missing"})
                  .errors,
              "");
    EXPECT_EQ(find(library({})).errors, "");
}

TEST_F(LibraryWarnings, CountNoStreamAsAMissingFile) {
    std::string text = libraryText({{.id = 1,
                                     .name = "A",
                                     .artist = "B",
                                     .milliseconds = 1000,
                                     .path = "/home/ann/a.mp3",
                                     .type = "URL"}});
    text.replace(text.find("file:"), 5, "http:");
    for (const char* version : {"12.0", "9.2.1"}) {
        const std::string said =
            find(m_folder.write("Library.xml", text), {"--itunes-version", version}).errors;
        EXPECT_THAT(said, ::testing::Not(HasSubstr("none of the library's files"))) << version;
    }
}

TEST_F(LibraryWarnings, TellOfAMapThatNeverApplies) {
    m_folder.write("music/a.mp3", "x");
    const std::string file = library({"/C:/Music/a.mp3", "/C:/Music/a.mp3"});
    EXPECT_EQ(find(file, {"--map", "C:\\Music=" + path("music")}).errors, "");
    EXPECT_THAT(find(file, {"--map", "C:/Music=" + path("music"), "--map", "C:/Musik=/x"}).errors,
                AllOf(HasSubstr("--map C:/Musik=/x changes nothing"), HasSubstr("/C:/Music/a.mp3"),
                      ::testing::Not(HasSubstr("none of the library's files"))));
}

TEST_F(LibraryWarnings, CountAMapThatChangesNothingAsApplied) {
    m_folder.write("a.mp3", "x");
    EXPECT_EQ(find(library({path("a.mp3")}), {"--map", m_folder.path() + "=" + m_folder.path()}).errors, "");
}

} // namespace
} // namespace songsweep
