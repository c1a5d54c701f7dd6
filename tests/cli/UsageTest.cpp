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

TEST_F(Usage, tellsTheVersion) {
    const RunResult result = run({"--version"});
    EXPECT_EQ(result.exitCode, 0);
    EXPECT_EQ(result.output, "Songsweep " SONGSWEEP_VERSION "\n");
}

TEST_F(Usage, tellsEveryCommandAndOption) {
    const RunResult result = run({"--help"});
    EXPECT_EQ(result.exitCode, 0);
    for (const char* word : {"find", "mark", "delete", "script"})
        EXPECT_THAT(result.output, HasSubstr(word));
    const std::string help = run({"find", "--help"}).output;
    for (const char* word : {"--library", "--same", "--playlist", "--ignore-missing", "--format", "--output",
                             "--log", "--map", "--itunes-version"})
        EXPECT_THAT(help, HasSubstr(word));
}

TEST_F(Usage, refusesWhatItDoesNotKnow) {
    expectRefusal({"seek"});
    expectRefusal({"find", "--library", library(), "--colour", "red"});
    expectRefusal({"find", "--library", library(), "extra"});
    expectRefusal({"find", "--library", library(), "--format", "yaml"});
    expectRefusal({"find", "--library", library(), "--same", "name,genre"});
    expectRefusal({"find", "--library", library(), "--same", "none,name"});
    expectRefusal({"mark", "--library", library(), "--rule", "loudest"});
}

TEST_F(Usage, refusesCommandsThatLackSomething) {
    expectRefusal({"find"});
    expectRefusal({"find", "--library"});
    expectRefusal({"mark", "--library", library()});
    expectRefusal({"mark", "--library", library(), "--rule", "kind"});
    expectRefusal({"mark", "--library", library(), "--rule", "folder"});
    expectRefusal({"script"});
}

TEST_F(Usage, refusesAMapWithoutTwoSides) {
    expectRefusal({"find", "--library", library(), "--map", "/C:/Music"});
    expectRefusal({"find", "--library", library(), "--map", "=/music"});
}

TEST_F(Usage, refusesADeletionThatIsNeitherTriedNorConfirmed) {
    expectRefusal({"delete", "--library", library(), "--rule", "longest"});
    expectRefusal({"delete", "--library", library(), "--rule", "longest", "--dry-run", "--yes"});
}

} // namespace
} // namespace songsweep
