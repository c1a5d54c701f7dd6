// SPDX-License-Identifier: MIT
#include "ProgramRun.h"
#include "SampleLibrary.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace songsweep {
namespace {

using test::RunResult;
using ::testing::HasSubstr;

class Usage : public test::ProgramTest {
  protected:
    /// Whatever does not make a command says so and does nothing.
    void expectRefusal(const std::vector<std::string>& arguments) {
        const RunResult result = run(arguments);
        EXPECT_EQ(result.exitCode, 2) << ::testing::PrintToString(arguments);
        EXPECT_EQ(result.output, "") << ::testing::PrintToString(arguments);
        EXPECT_NE(result.errors, "") << ::testing::PrintToString(arguments);
    }
    std::string library() const { return m_folder.write("Library.xml", test::libraryText({})); }
};

TEST_F(Usage, TellsTheVersion) {
    const RunResult result = run({"--version"});
    EXPECT_EQ(result.exitCode, 0);
    EXPECT_EQ(result.output, "Songsweep " SONGSWEEP_VERSION "\n");
}

TEST_F(Usage, TellsEveryCommandAndOption) {
    const RunResult result = run({"--help"});
    EXPECT_EQ(result.exitCode, 0);
    for (const char* word : {"find", "mark", "delete", "script"})
        EXPECT_THAT(result.output, HasSubstr(word));
    const std::string help = run({"find", "--help"}).output;
    for (const char* word : {"--library", "--same", "--playlist", "--ignore-missing", "--format", "--output",
                             "--log", "--map", "--itunes-version"})
        EXPECT_THAT(help, HasSubstr(word));
}

TEST_F(Usage, RefusesWhatItDoesNotKnow) {
    expectRefusal({"seek"});
    expectRefusal({"find", "--library", library(), "--colour", "red"});
    expectRefusal({"find", "--library", library(), "extra"});
    expectRefusal({"find", "--library", library(), "--format", "yaml"});
    expectRefusal({"find", "--library", library(), "--same", "name,genre"});
    expectRefusal({"find", "--library", library(), "--same", "none,name"});
    expectRefusal({"mark", "--library", library(), "--rule", "loudest"});
}

TEST_F(Usage, RefusesCommandsThatLackSomething) {
    expectRefusal({"find"});
    expectRefusal({"find", "--library"});
    expectRefusal({"mark", "--library", library()});
    expectRefusal({"mark", "--library", library(), "--rule", "kind"});
    expectRefusal({"mark", "--library", library(), "--rule", "folder"});
    expectRefusal({"script"});
}

TEST_F(Usage, RefusesAMapWithoutTwoSides) {
    expectRefusal({"find", "--library", library(), "--map", "/C:/Music"});
    expectRefusal({"find", "--library", library(), "--map", "=/music"});
}

TEST_F(Usage, RefusesToWriteOverTheLibrary) {
    const std::string file = library();
    const std::string text = m_folder.read("Library.xml");
    std::filesystem::create_hard_link(file, path("hard.xml"));
    std::filesystem::create_symlink("Library.xml", path("soft.xml"));
    for (const std::string& target :
         {file, std::string("./Library.xml"), path("hard.xml"), path("soft.xml")}) {
        for (const char* option : {"--output", "--log"}) {
            expectRefusal({"find", "--library", file, option, target});
            expectRefusal({"mark", "--library", file, "--rule", "longest", option, target});
            expectRefusal({"delete", "--library", file, "--rule", "longest", "--dry-run", option, target});
        }
        expectRefusal({"script", "--library", file, "--log", target, "-"});
        expectRefusal({"--library", file, "--log", target});
    }
    EXPECT_EQ(m_folder.read("Library.xml"), text);
}

TEST_F(Usage, RefusesToWriteOverALibraryThatIsNotNamed) {
    std::filesystem::create_directories(path("home/Music"));
    const std::string file = m_folder.write("home/Music/Library.xml", "a library");
    expectRefusal({"script", "--log", file, "-"});
    expectRefusal({"--log", file});
    EXPECT_EQ(m_folder.read("home/Music/Library.xml"), "a library");
}

TEST_F(Usage, MakesNoLogInThePlaceOfAMissingLibrary) {
    expectRefusal({"find", "--library", path("missing.xml"), "--log", "./missing.xml"});
    EXPECT_FALSE(std::filesystem::exists(path("missing.xml")));
}

TEST_F(Usage, RefusesADeletionThatIsNeitherTriedNorConfirmed) {
    expectRefusal({"delete", "--library", library(), "--rule", "longest"});
    expectRefusal({"delete", "--library", library(), "--rule", "longest", "--dry-run", "--yes"});
}

} // namespace
} // namespace songsweep
