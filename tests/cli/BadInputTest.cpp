// SPDX-License-Identifier: MIT
#include "ProgramRun.h"
#include "SampleLibrary.h"
#include "support/TestData.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <linux/capability.h>
#include <sys/prctl.h>

namespace songsweep {
namespace {

using test::libraryText;
using test::RunResult;
using test::testData;
using ::testing::HasSubstr;

class BadInput : public test::ProgramTest {
  protected:
    /// Every failure says what it is on standard error and nothing on standard output.
    void expectFailure(const std::vector<std::string>& options, const std::vector<std::string>& said) {
        std::vector<std::string> arguments = {"find"};
        arguments.insert(arguments.end(), options.begin(), options.end());
        const RunResult result = run(arguments);
        EXPECT_EQ(result.exitCode, 1);
        EXPECT_EQ(result.output, "");
        for (const std::string& text : said)
            EXPECT_THAT(result.errors, HasSubstr(text));
        EXPECT_THAT(result.errors, ::testing::StartsWith("songsweep: "));
    }
    std::string goodLibrary() const { return m_folder.write("Library.xml", libraryText({})); }
};

TEST_F(BadInput, IsALibraryThatIsMissing) {
    const std::string missing = path("missing.xml");
    expectFailure({"--library", missing}, {"songsweep: cannot open " + missing + ": No such file"});
}

TEST_F(BadInput, IsAFolderWithoutMusic) {
    expectFailure({"--library", m_folder.path()},
                  {"songsweep: " + m_folder.path() + ": there is no music in this folder"});
}

TEST_F(BadInput, IsNotXml) {
    expectFailure({"--library", m_folder.write("song.mp3", "ID3\x03 not a library")}, {path("song.mp3")});
    expectFailure({"--library", m_folder.write("empty.xml", "")}, {path("empty.xml")});
}

TEST_F(BadInput, IsALibraryThatIsCutOff) {
    expectFailure({"--library", testData("library/cut-off.xml")},
                  {testData("library/cut-off.xml"), "line 9"});
}

TEST_F(BadInput, IsALibraryCutOffAtAnyPlace) {
    const std::string whole =
        libraryText({{.id = 1, .name = "A", .artist = "B"}, {.id = 2, .name = "C", .artist = "D"}});
    for (std::size_t length = 60; length < whole.size() - 20; length += 97)
        expectFailure({"--library", m_folder.write("cut.xml", whole.substr(0, length))}, {path("cut.xml")});
}

TEST_F(BadInput, IsXmlThatIsNoLibrary) {
    expectFailure({"--library", m_folder.write("page.xml", "<html><body>Hello</body></html>\n")},
                  {path("page.xml")});
    expectFailure({"--library", m_folder.write("list.xml", "<plist version=\"1.0\"><array/></plist>\n")},
                  {path("list.xml")});
}

TEST_F(BadInput, IsAnEntityBomb) {
    expectFailure({"--library", testData("library/entity-bomb.xml")}, {testData("library/entity-bomb.xml")});
}

TEST_F(BadInput, IsAPlaylistThatIsNotThere) {
    const std::string library =
        m_folder.write("Library.xml", libraryText({}, {{.name = "Library", .items = {}, .master = true},
                                                       {.name = "Caf\u00e9", .items = {}}}));
    expectFailure({"--library", library, "--playlist", "Missing"},
                  {"'Missing'", "\n  Library\n", "\n  Caf\u00e9\n"});
}

TEST_F(BadInput, IsALibraryThatMayNotBeRead) {
    const std::string library = goodLibrary();
    std::filesystem::permissions(library, std::filesystem::perms::none);
    // Root reads everything unless it gives up the right to.
    m_beforeStart = [] {
        ::prctl(PR_CAPBSET_DROP, CAP_DAC_OVERRIDE, 0, 0, 0);
        ::prctl(PR_CAPBSET_DROP, CAP_DAC_READ_SEARCH, 0, 0, 0);
    };
    expectFailure({"--library", library}, {library, "ermission"});
}

TEST_F(BadInput, IsAnOutputThatCannotBeWritten) {
    expectFailure({"--library", goodLibrary(), "--output", path("missing/result")},
                  {path("missing/result"), "No such file"});
    expectFailure({"--library", goodLibrary(), "--output", m_folder.path()},
                  {m_folder.path(), "Is a directory"});
    expectFailure({"--library", goodLibrary(), "--output", "/dev/full"}, {"/dev/full", "No space"});
}

TEST_F(BadInput, IsALogThatCannotBeWritten) {
    expectFailure({"--library", goodLibrary(), "--log", path("missing/log")},
                  {path("missing/log"), "No such file"});
}

TEST_F(BadInput, LeavesNoHalfOutputBehind) {
    expectFailure({"--library", path("missing.xml"), "--output", path("result")}, {});
    for (const auto& entry : std::filesystem::directory_iterator(m_folder.path()))
        EXPECT_FALSE(entry.path().filename().string().starts_with("result")) << entry.path();
}

TEST_F(BadInput, ToAFullDiskIsTold) {
    const RunResult result = runInShell("\"$0\" \"$@\" > /dev/full", {"find", "--library", goodLibrary()});
    EXPECT_EQ(result.exitCode, 1);
    EXPECT_THAT(result.errors, HasSubstr("No space left on device"));
}

} // namespace
} // namespace songsweep
