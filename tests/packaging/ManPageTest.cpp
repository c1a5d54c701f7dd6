// SPDX-License-Identifier: MIT
#include "package-texts/ManPage.h"

#include "cli/CommandLine.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <regex>

namespace songsweep {
namespace {

using ::testing::HasSubstr;
using ::testing::Not;

const std::string pattern = ".Dd @DATE@\n.Os Songsweep @VERSION@\n@OPTIONS@\n.Sh COMMANDS\n@COMMANDS@\n";

class ManPage : public ::testing::Test {
  protected:
    /// A text with its hyphens as the page has them.
    static std::string asWritten(const std::string& text) {
        return std::regex_replace(text, std::regex("-"), "\\-");
    }
    static std::string commandsOf(const std::string& page) { return page.substr(page.find(".Sh COMMANDS")); }

    const cli::CommandDescription m_program = cli::describeCommandLine();
    const std::string m_page = manPage(pattern, m_program, {"1.1", "2026-11-22"});
};

TEST_F(ManPage, TellsEveryCommandAndEveryOption) {
    for (const cli::CommandDescription& command : m_program.commands) {
        EXPECT_THAT(m_page, HasSubstr(".It Cm " + command.name));
        for (const cli::OptionDescription& option : command.options)
            EXPECT_THAT(m_page, HasSubstr(asWritten(option.text))) << command.name << option.name;
    }
    EXPECT_EQ(m_program.commands.size(), 7U);
}

TEST_F(ManPage, TellsAnOptionOnce) {
    const std::string heading = ".It Fl \\-same Ar FIELDS\n";
    const std::size_t first = m_page.find(heading);
    ASSERT_NE(first, std::string::npos);
    EXPECT_EQ(m_page.find(heading, first + 1), std::string::npos);
    EXPECT_THAT(m_page.substr(m_page.find(".It Cm mark")), HasSubstr(".Fl \\-same ,\n"));
}

TEST_F(ManPage, TellsOptionsOfAllBeforeTheCommands) {
    EXPECT_THAT(commandsOf(m_page), Not(HasSubstr(".It Fl \\-map")));
    EXPECT_THAT(m_page, HasSubstr(".It Fl \\-map Ar FROM=TO\n"));
}

TEST_F(ManPage, NamesWordsAndWhatStandsWhereNoneIsGiven) {
    EXPECT_THAT(m_page, HasSubstr("One of\n.Cm highest\\-bitrate ,\n.Cm lowest\\-bitrate ,\n"));
    EXPECT_THAT(
        m_page,
        HasSubstr(".It Fl \\-within Ar SECONDS\nBy how many seconds similar times may differ, 0 to 10.\n"
                  "Default:\n.Cm 2 .\n"));
}

TEST_F(ManPage, HasItsDateAndVersion) {
    EXPECT_THAT(m_page, HasSubstr(".Dd November 22, 2026\n.Os Songsweep 1.1\n"));
    EXPECT_THAT(m_page, Not(HasSubstr("@")));
}

TEST_F(ManPage, SpellsBackslashesAndHyphensForRoff) {
    const cli::CommandDescription program{
        "songsweep", "", {{"--a-b", "", "", "Not C:\\Music", "", false}}, {}};
    EXPECT_THAT(manPage("@OPTIONS@\n", program, {"1", "2027-01-02"}),
                HasSubstr(".It Fl \\-a\\-b\nNot C:\\eMusic.\n"));
}

} // namespace
} // namespace songsweep
