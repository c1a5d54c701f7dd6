// SPDX-License-Identifier: MIT
#include "ProgramRun.h"
#include "SampleLibrary.h"

#include <QtGlobal>

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <libxml/xmlversion.h>

namespace songsweep {
namespace {

using test::RunResult;
using ::testing::AllOf;
using ::testing::EndsWith;
using ::testing::HasSubstr;
using ::testing::StartsWith;

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
    EXPECT_THAT(result.output, StartsWith("Songsweep " SONGSWEEP_VERSION SONGSWEEP_VERSION_NOTE "\n"));
}

TEST_F(Usage, TellsTheLibrariesThatItRunsWith) {
    const std::string output = run({"--version"}).output;
    EXPECT_THAT(output, HasSubstr(std::string("\nQt ") + qVersion() + ", libxml2 " LIBXML_DOTTED_VERSION));
    for (const char* library : {", expat ", ", ICU ", ", GLib ", ", TagLib "})
        EXPECT_THAT(output, HasSubstr(library));
    EXPECT_THAT(output, EndsWith("\n"));
}

TEST_F(Usage, TellsEveryCommandAndOption) {
    const RunResult result = run({"--help"});
    EXPECT_EQ(result.exitCode, 0);
    for (const char* word : {"find", "mark", "delete", "restore", "script", "scan"})
        EXPECT_THAT(result.output, HasSubstr(word));
    const std::string help = run({"find", "--help"}).output;
    for (const char* word : {"--library", "--same", "--playlist", "--ignore-missing", "--format", "--output",
                             "--log", "--map", "--itunes-version"})
        EXPECT_THAT(help, HasSubstr(word));
}

TEST_F(Usage, TellsThatItsHelpCannotBeWritten) {
    for (const char* word : {"--help", "--version"}) {
        const RunResult result = runInShell("\"$0\" \"$@\" > /dev/full", {word});
        EXPECT_EQ(result.exitCode, 1);
        EXPECT_THAT(result.errors, HasSubstr("cannot write the result"));
    }
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

TEST_F(Usage, CountsOptionsOfTheLibraryBeforeTheCommand) {
    const std::string text = "tell application \"iTunes\" to get {version, count of tracks of playlist 1}";
    EXPECT_EQ(run({"--library", library(), "--itunes-version", "9.1", "script", "-"}, text).output,
              "{\"9.1\", 0}\n");
    EXPECT_EQ(run({"--library", library(), "find"}).output, "0 songs in 0 groups\n");
    EXPECT_EQ(run({"--library", library(), "--log", path("log"), "find"}).exitCode, 0);
    EXPECT_TRUE(std::filesystem::exists(path("log")));
    m_folder.write("here/a.mp3", "x");
    const std::string mapped = m_folder.write(
        "mapped.xml", test::libraryText({{.id = 1, .name = "A", .artist = "B", .path = "/C:/Music/a.mp3"},
                                         {.id = 2, .name = "A", .artist = "B", .path = "/C:/Music/a.mp3"}}));
    EXPECT_THAT(
        run({"--map", "C:\\Music=" + path("here"), "find", "--library", mapped, "--same", "none"}).output,
        AllOf(HasSubstr("2 songs in 1 group"), ::testing::Not(HasSubstr("missing"))));
}

TEST_F(Usage, RefusesAnOptionBeforeTheCommandAndAfterIt) {
    expectRefusal({"--library", library(), "find", "--library", library()});
    expectRefusal({"--itunes-version", "9", "script", "--itunes-version", "10", "-"});
    expectRefusal({"--log", path("a"), "script", "--log", path("b"), "-"});
}

TEST_F(Usage, TakesAFileAloneForTheLibraryOfTheWindow) {
    const RunResult result = run({library(), "--log", library()});
    EXPECT_EQ(result.exitCode, 2);
    EXPECT_THAT(result.errors, HasSubstr("--log names the library itself"));
}

TEST_F(Usage, TakesAMisspelledCommandForNoFile) {
    EXPECT_THAT(run({"fnid"}).errors, HasSubstr("'fnid' is neither a command nor a file"));
    expectRefusal({path("missing.xml")});
    expectRefusal({library(), "--library", library()});
    expectRefusal({library(), "find"});
    expectRefusal({library(), "find", "--library", library()});
}

TEST_F(Usage, RefusesAVersionThatIsNone) {
    for (const char* version : {"abc", "12.0b", "", "12.", ".5", "-1", "1 2"})
        expectRefusal({"find", "--library", library(), "--itunes-version", version});
    EXPECT_EQ(run({"find", "--library", library(), "--itunes-version", "9.2.1"}).exitCode, 0);
}

TEST_F(Usage, RefusesOneFileForTheLogAndTheResult) {
    expectRefusal({"find", "--library", library(), "--log", path("x"), "--output", "./x"});
}

TEST_F(Usage, NamesTheCommandsWhereThereIsNoDisplay) {
    for (const char* variable : {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM"})
        m_environment.remove(QString::fromUtf8(variable));
    const RunResult result = run({"--library", library()});
    EXPECT_EQ(result.exitCode, 1);
    EXPECT_EQ(result.errors,
              "songsweep: no display can be reached for the window; songsweep find, mark, delete, "
              "restore and script do without one\n");
}

TEST_F(Usage, TellsWhereItLookedForALibrary) {
    const RunResult result =
        run({"script", "-"}, "tell application \"iTunes\" to get count of tracks of playlist 1");
    EXPECT_EQ(result.exitCode, 1);
    EXPECT_THAT(result.errors, HasSubstr("no library was found on this machine; name one with --library"));
    EXPECT_THAT(result.errors,
                HasSubstr("/Library/Preferences/com.apple.iApps.plist, " + path("home/Music/iTunes")));
}

TEST_F(Usage, GoesThroughALinkAsTheSystemDoes) {
    std::filesystem::create_directories(path("far/folder"));
    std::filesystem::create_directory_symlink(path("far/folder"), path("link"));
    const std::string text =
        test::libraryText({{.id = 1, .name = "A", .artist = "B"}, {.id = 2, .name = "C", .artist = "D"}});
    m_folder.write("far/x.xml", text);
    const RunResult result = run({"find", "--library", "link/../x.xml", "--same", "none"});
    EXPECT_EQ(result.exitCode, 0) << result.errors;
    EXPECT_THAT(result.output, HasSubstr("2 songs in 1 group"));
    expectRefusal({"find", "--library", path("far/x.xml"), "--output", "link/../x.xml"});
    EXPECT_EQ(m_folder.read("far/x.xml"), text);
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
