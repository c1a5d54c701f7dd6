// SPDX-License-Identifier: MIT
#include "package-texts/Changelog.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace songsweep {
namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::Not;

const std::string text = R"(# Changelog

## 1.1 (2026-11-22)

- Before any title.

### Searching

- Allow `--similar` & *small*
  differences.
- Second.

## 1.0

The first version.

- Finds.
)";

TEST(Changelog, ReadsVersionsPartsAndItems) {
    const std::vector<Release> releases = readChangelog(text);
    ASSERT_EQ(releases.size(), 2U);
    EXPECT_EQ(releases[0].version, "1.1");
    EXPECT_EQ(releases[0].date, "2026-11-22");
    ASSERT_EQ(releases[0].parts.size(), 2U);
    EXPECT_THAT(releases[0].parts[0].items, ElementsAre("Before any title."));
    EXPECT_EQ(releases[0].parts[1].title, "Searching");
    EXPECT_THAT(releases[0].parts[1].items,
                ElementsAre("Allow `--similar` & *small* differences.", "Second."));
    EXPECT_EQ(releases[1].version, "1.0");
    EXPECT_EQ(releases[1].date, "");
}

TEST(Changelog, MakesReleasesOfDatedVersionsAlone) {
    const std::string releases = appStreamReleases(readChangelog(text));
    EXPECT_THAT(releases, HasSubstr("<release version=\"1.1\" date=\"2026-11-22\">"));
    EXPECT_THAT(releases, HasSubstr("<p>Searching</p>"));
    EXPECT_THAT(releases,
                HasSubstr("<li>Allow <code>--similar</code> &amp; <em>small</em> differences.</li>"));
    EXPECT_THAT(releases, Not(HasSubstr("1.0")));
}

TEST(Changelog, KeepsStarsInCode) {
    const std::string releases = appStreamReleases(readChangelog("## 1.2 (2027-01-02)\n- `*.xml` <now>\n"));
    EXPECT_THAT(releases, HasSubstr("<li><code>*.xml</code> &lt;now&gt;</li>"));
}

TEST(Changelog, MakesAnEntryOfADebianPackage) {
    EXPECT_EQ(
        debianChangelog(readChangelog("## 1.2 (2027-01-02)\n- One.\n- Two\n  lines.\n")),
        "songsweep (1.2) stable; urgency=medium\n"
        "\n"
        "  * One.\n"
        "  * Two lines.\n"
        "\n"
        " -- The Songsweep developers <developers@songsweep.example>  Sat, 02 Jan 2027 00:00:00 +0000\n");
}

TEST(Changelog, BreaksLongLinesOfADebianPackage) {
    std::string item = "- word";
    for (int words = 0; words < 40; ++words)
        item += " word";
    const std::string entry = debianChangelog(readChangelog("## 1.2 (2027-01-02)\n" + item + "\n"));
    std::istringstream lines(entry);
    std::string longest;
    for (std::string line; std::getline(lines, line);)
        if (line.size() > longest.size() && !line.starts_with(" -- ")) longest = line;
    EXPECT_EQ(longest.size(), 78U);
    EXPECT_THAT(entry, HasSubstr("\n    word word"));
}

} // namespace
} // namespace songsweep
