// SPDX-License-Identifier: MIT
// What a terminal gets: names and paths are other people's texts.
#include "ProgramRun.h"
#include "SampleLibrary.h"
#include "Terminal.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace songsweep {
namespace {

using test::libraryText;
using test::RunResult;
using ::testing::AllOf;
using ::testing::HasSubstr;
using ::testing::Not;

constexpr const char* turned = "ab\u202Ecd";

class TerminalOutput : public test::ProgramTest {
  protected:
    /// XML has no escape character, but all other controls that a terminal obeys.
    std::string library() const {
        return m_folder.write(
            "Library.xml",
            libraryText({{.id = 1, .name = turned, .artist = "\u009B31m", .milliseconds = 1000},
                         {.id = 2, .name = turned, .artist = "\u009B31m", .milliseconds = 1000}}));
    }
    /// What the terminal gets that is standard output.
    std::string shown(const std::vector<std::string>& arguments) {
        const test::Terminal terminal;
        QProcess process;
        prepare(process, arguments);
        process.setStandardOutputFile(QString::fromStdString(terminal.name()));
        process.start();
        EXPECT_EQ(test::resultOf(process).exitCode, 0);
        return terminal.shown();
    }
};

TEST_F(TerminalOutput, ShowsControlCharactersInsteadOfSendingThem) {
    for (const char* format : {"text", "csv", "json"})
        EXPECT_THAT(shown({"find", "--library", library(), "--format", format}),
                    AllOf(HasSubstr("ab<U+202E>cd"), HasSubstr("<U+009B>31m"), Not(HasSubstr("\u202E"))))
            << format;
    EXPECT_THAT(shown({"delete", "--library", library(), "--rule", "longest", "--except-one", "--dry-run"}),
                HasSubstr("ab<U+202E>cd"));
}

TEST_F(TerminalOutput, KeepsTheColumnsUnderEachOther) {
    const std::string table = shown({"find", "--library", library()});
    const std::string title = table.substr(0, table.find("\r\n"));
    const std::string row = table.substr(table.find("ab<U+202E>cd") - 7);
    EXPECT_EQ(title.find("Artist"), row.find("<U+009B>"));
}

TEST_F(TerminalOutput, ShowsWhatAScriptGives) {
    const std::string script = m_folder.write("script", "\"\x1B[31mred\n\" & tab");
    EXPECT_EQ(shown({"script", script}), "\"<U+001B>[31mred\r\n\t\"\r\n");
}

TEST_F(TerminalOutput, IsNotWhatAPipeGets) {
    const RunResult result = run({"find", "--library", library(), "--format", "csv"});
    EXPECT_THAT(result.output, AllOf(HasSubstr(turned), HasSubstr("\u009B31m")));
    EXPECT_THAT(run({"find", "--library", library()}).output, HasSubstr(turned));
    EXPECT_EQ(run({"script", "-"}, "\"\x1B[31mred\"").output, "\"\x1B[31mred\"\n");
}

TEST_F(TerminalOutput, OfErrorsIsSafeToo) {
    const std::string bad = "\x1B[2J\u202E";
    const std::string shownBad = "<U+001B>[2J<U+202E>";
    EXPECT_THAT(run({"find", "--library", path(bad)}).errors,
                AllOf(HasSubstr(shownBad), Not(HasSubstr(bad))));
    EXPECT_THAT(run({"find", "--library", library(), "--playlist", bad}).errors, HasSubstr(shownBad));
    EXPECT_THAT(run({"script", path(bad)}).errors, HasSubstr(shownBad));
    EXPECT_THAT(run({"find", "--format", bad}).errors, AllOf(HasSubstr(shownBad), Not(HasSubstr(bad))));
    EXPECT_THAT(run({bad}).errors, HasSubstr(shownBad));
}

} // namespace
} // namespace songsweep
