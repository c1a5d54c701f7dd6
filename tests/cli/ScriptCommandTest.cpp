// SPDX-License-Identifier: MIT
#include "ProgramRun.h"
#include "SampleLibrary.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace songsweep {
namespace {

using test::libraryText;
using test::RunResult;
using ::testing::HasSubstr;

class ScriptCommand : public test::ProgramTest {
  protected:
    std::string library() const {
        m_folder.write("a.mp3", "x");
        return m_folder.write(
            "Library.xml", libraryText({{.id = 1, .name = "A \"b\" \\", .artist = "C", .path = path("a.mp3")},
                                        {.id = 2, .name = "D", .artist = "E", .path = path("gone.mp3")}}));
    }
    RunResult script(const std::string& text) { return run({"script", "--library", library(), "-"}, text); }
};

TEST_F(ScriptCommand, PrintsResultsInSourceNotation) {
    EXPECT_EQ(script("1 + 2").output, "3\n");
    EXPECT_EQ(script("{1, \"a\", {}, true, missing value}").output, "{1, \"a\", {}, true, missing value}\n");
    EXPECT_EQ(script("tell application \"iTunes\" to get name of track 1 of playlist 1").output,
              "\"A \\\"b\\\" \\\\\"\n");
}

TEST_F(ScriptCommand, RunsAFile) {
    const std::string file = m_folder.write("count", "tell application \"iTunes\" \nget count of tracks of "
                                                     "playlist 1 \nend tell");
    const RunResult result = run({"script", "--library", library(), file});
    EXPECT_EQ(result.output, "2\n");
    EXPECT_EQ(result.exitCode, 0);
}

TEST_F(ScriptCommand, TellsTheVersionOfTheEmbeddedITunes) {
    const std::string text = "tell application \"iTunes\" to get version";
    EXPECT_EQ(script(text).output, "\"12.0\"\n");
    EXPECT_EQ(run({"script", "--library", library(), "--itunes-version", "9.2.1", "-"}, text).output,
              "\"9.2.1\"\n");
}

TEST_F(ScriptCommand, PrintsNothingWithoutAResult) {
    const RunResult result = script("");
    EXPECT_EQ(result.output, "");
    EXPECT_EQ(result.exitCode, 0);
}

TEST_F(ScriptCommand, TellsPositionAndReasonOfAnError) {
    const RunResult result = script("set a to 1\nset b to (2 +");
    EXPECT_EQ(result.exitCode, 1);
    EXPECT_EQ(result.output, "");
    EXPECT_THAT(result.errors, HasSubstr("line 2"));
}

TEST_F(ScriptCommand, EndsAnEndlessLoop) {
    const RunResult result = script("repeat while true\nend repeat");
    EXPECT_EQ(result.exitCode, 1);
    EXPECT_NE(result.errors, "");
}

TEST_F(ScriptCommand, WritesTheLibraryBeforeItEnds) {
    const RunResult result = script("tell application \"iTunes\" to delete (tracks whose persistent ID is "
                                    "\"0000000000000002\")");
    EXPECT_EQ(result.exitCode, 0) << result.errors;
    EXPECT_EQ(m_folder.read("Library.xml"),
              libraryText({{.id = 1, .name = "A \"b\" \\", .artist = "C", .path = path("a.mp3")}}));
}

TEST_F(ScriptCommand, WritesWhatATextSets) {
    const RunResult result = script("tell application \"Music\" \nset name of track 2 to \"D & F\" \n"
                                    "{name, artist} of every track \nend tell");
    EXPECT_EQ(result.output, "{{\"A \\\"b\\\" \\\\\", \"D & F\"}, {\"C\", \"E\"}}\n");
    EXPECT_EQ(result.exitCode, 0) << result.errors;
    EXPECT_EQ(m_folder.read("Library.xml"),
              libraryText({{.id = 1, .name = "A \"b\" \\", .artist = "C", .path = path("a.mp3")},
                           {.id = 2, .name = "D & F", .artist = "E", .path = path("gone.mp3")}}));
}

TEST_F(ScriptCommand, TellsOfAWriteThatFailedBesideATextThatFailed) {
    std::string text = libraryText({{.id = 1, .name = "A", .artist = "B"}});
    text.insert(text.find("<string>A") + 7, " a=\"1\" a=\"2\"");
    const std::string file = m_folder.write("Library.xml", text);
    const std::string set = "tell application \"iTunes\" to set rating of track 1 to 80";
    for (const std::string end : {"", "\nerror \"boo\""}) {
        const RunResult result = run({"script", "--library", file, "-"}, set + end);
        EXPECT_EQ(result.exitCode, 1);
        EXPECT_THAT(result.errors, HasSubstr("ttribute"));
        EXPECT_EQ(result.errors.find("boo") != std::string::npos, !end.empty());
        EXPECT_EQ(m_folder.read("Library.xml"), text);
    }
}

TEST_F(ScriptCommand, RefusesALibraryThatIsCutOff) {
    const std::string cut =
        m_folder.write("cut.xml", libraryText({{.id = 1, .name = "A", .artist = "B"}}).substr(0, 250));
    const RunResult result = run({"script", "--library", cut, "-"},
                                 "tell application \"iTunes\" to get count of tracks of playlist 1");
    EXPECT_EQ(result.exitCode, 1);
    EXPECT_EQ(result.output, "");
    EXPECT_THAT(result.errors, HasSubstr("line"));
}

TEST_F(ScriptCommand, RefusesAFolder) {
    const RunResult result = run({"script", m_folder.path()});
    EXPECT_EQ(result.exitCode, 1);
    EXPECT_EQ(result.errors, "songsweep: cannot read " + m_folder.path() + ": Is a directory\n");
}

TEST_F(ScriptCommand, ReadsNoEndlessFile) {
    for (const char* option : {"/dev/zero", "-"}) {
        const RunResult result = runInShell("\"$0\" script \"$1\" < /dev/zero", {option});
        EXPECT_EQ(result.exitCode, 1);
        EXPECT_THAT(result.errors, HasSubstr("it is too long for a script"));
    }
}

TEST_F(ScriptCommand, TellsThatItsResultCannotBeWritten) {
    const RunResult result = runInShell("\"$0\" \"$@\" > /dev/full", {"script", m_folder.write("one", "1")});
    EXPECT_EQ(result.exitCode, 1);
    EXPECT_THAT(result.errors, HasSubstr("No space left on device"));
}

TEST_F(ScriptCommand, RunsTextsInUtf16) {
    const std::string text("\xFF\xFE\"\0\xF6\0\"\0", 8);
    EXPECT_EQ(run({"script", m_folder.write("wide", text)}).output, "\"\u00f6\"\n");
    EXPECT_EQ(run({"script", "-"}, text).output, "\"\u00f6\"\n");
}

TEST_F(ScriptCommand, ShowsTheLogWhereAskedTo) {
    const std::string text =
        "tell application \"iTunes\" to delete (tracks whose persistent ID is \"0000000000000002\")";
    EXPECT_EQ(script(text).errors, "");
    const RunResult result =
        run({"script", "--library", library(), "--verbose", "--log", path("log"), "-"}, text);
    EXPECT_THAT(result.errors, HasSubstr("Library written : 1 tracks deleted\n"));
    EXPECT_THAT(m_folder.read("log"), HasSubstr("Library written : 1 tracks deleted\n"));
}

TEST_F(ScriptCommand, SaysThatItsFileIsMissing) {
    const RunResult result = run({"script", path("missing")});
    EXPECT_EQ(result.exitCode, 1);
    EXPECT_THAT(result.errors, HasSubstr(path("missing")));
    EXPECT_THAT(result.errors, HasSubstr("No such file"));
}

} // namespace
} // namespace songsweep
