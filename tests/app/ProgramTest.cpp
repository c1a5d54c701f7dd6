// SPDX-License-Identifier: MIT
// Which iTunes the program talks to: the system's, where there is one, or its own over a chosen library file.
#include "app/Program.h"

#include "scripting/AppleScript.h"
#include "support/EventLoop.h"
#include "support/RecordingAppleScript.h"
#include "support/RecordingLog.h"
#include "support/TemporaryFolder.h"
#include "support/TestData.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <string>

namespace songsweep::test {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

constexpr const char* versionText = "tell application \"iTunes\" \nget version \nend tell \n";

class ProgramTest : public ::testing::Test {
  protected:
    ProgramTest() {
        auto scripts = std::make_unique<RecordingAppleScript>();
        scripts->setAnswer([](std::string_view) { return Descriptor::text("12.9.5"); });
        system = scripts.get();
        m_systemScripts = std::move(scripts);
    }

    Program& start(const std::string& libraryFile, std::unique_ptr<AppleScript> systemScripts) {
        ProgramOptions options;
        options.library = libraryFile;
        m_program.emplace(options, log, std::move(systemScripts));
        return *m_program;
    }
    Program& startOnMac(const std::string& libraryFile = {}) {
        return start(libraryFile, std::move(m_systemScripts));
    }

    static std::string version(Program& program) {
        const auto answer = program.controllerServices().scripts.executeAndReturnError(versionText);
        return answer ? answer.value().stringValue().value_or("none") : answer.error().message;
    }
    static bool usesEmbedded(Program& program) { return program.controllerServices().embeddedLibrary(); }

    std::string fiveTracks() const {
        std::ifstream file(library, std::ios::binary);
        return {std::istreambuf_iterator<char>(file), {}};
    }

    const std::string library = testData("library/five-tracks.xml");
    RecordingLog log;
    RecordingAppleScript* system = nullptr;

  private:
    std::unique_ptr<AppleScript> m_systemScripts;
    std::optional<Program> m_program;
};

TEST_F(ProgramTest, WithoutALibraryTheSystemsITunesAnswers) {
    Program& program = startOnMac();
    EXPECT_EQ(version(program), "12.9.5");
    EXPECT_THAT(system->texts(), ElementsAre(versionText));
    EXPECT_FALSE(usesEmbedded(program));
}

TEST_F(ProgramTest, ANamedLibraryIsTheEmbeddedITunes) {
    Program& program = startOnMac(library);
    EXPECT_EQ(version(program), "12.0");
    EXPECT_THAT(system->texts(), IsEmpty());
    EXPECT_TRUE(usesEmbedded(program));
}

TEST_F(ProgramTest, AnOpenedLibraryIsTheEmbeddedITunesFromThenOn) {
    Program& program = startOnMac();
    ASSERT_EQ(version(program), "12.9.5");
    ASSERT_EQ(program.openLibrary(library).problem, "");
    EXPECT_EQ(version(program), "12.0");
    EXPECT_THAT(system->texts(), ElementsAre(versionText));
    EXPECT_TRUE(usesEmbedded(program));
}

TEST_F(ProgramTest, WhereTheSystemHasNoITunesTheEmbeddedOneAnswers) {
    Program& program = start(library, nullptr);
    EXPECT_TRUE(usesEmbedded(program));
    EXPECT_EQ(version(program), "12.0");
}

TEST_F(ProgramTest, AnUnreadableFileIsNoReasonWhyTheSystemsITunesIsUnreachable) {
    Program& program = startOnMac();
    (void)program.scripting().readLibrary();
    EXPECT_EQ(program.unreachableReason(), "");
    const OpenedLibrary opened = program.openLibrary("/nowhere/Library.xml");
    EXPECT_TRUE(opened.turned);
    EXPECT_EQ(opened.problem, "");
    EXPECT_FALSE(program.controllerServices().libraryContents());
    EXPECT_EQ(program.unreachableReason(), "cannot open /nowhere/Library.xml: No such file or directory");
}

/// A list of one library, beside the present one.
class GivenRecentFiles final : public RecentFiles {
  public:
    std::vector<std::string> libraries() const override { return {"/m/Other.xml", noted, "/m/Other.xml"}; }
    void note(const std::string& path) override { noted = path; }
    std::string noted;
};

TEST_F(ProgramTest, ALibraryThatWasReadIsNotedAndTheOthersAreOffered) {
    const auto recent = std::make_shared<GivenRecentFiles>();
    Program program({.library = library, .map = {}, .version = "1.0", .recentFiles = recent}, log, nullptr);
    const ControllerServices services = program.controllerServices();
    const auto contents = services.libraryContents();
    ASSERT_TRUE(contents);
    EXPECT_EQ(contents.value().tracks, 5);
    EXPECT_GT(contents.value().savedSeconds, 0);
    EXPECT_EQ(recent->noted, library);
    const std::vector<std::string> others = services.otherLibraries();
    EXPECT_EQ(std::count(others.begin(), others.end(), "/m/Other.xml"), 1);
    EXPECT_EQ(std::count(others.begin(), others.end(), library), 0);
}

TEST_F(ProgramTest, TellsOnceOnTheMainThreadThatTheLibraryCannotBeWritten) {
    const TemporaryFolder folder;
    const std::string file = folder.write("Library.xml", fiveTracks());
    Program& program = start(file, nullptr);
    std::vector<std::string> reasons;
    program.setWriteFailedHandler([&](const std::string& reason) { reasons.push_back(reason); });
    ASSERT_TRUE(program.scripting().run("tell application \"iTunes\" to delete track 1 of playlist 1"));
    ASSERT_TRUE(std::filesystem::remove(file));
    EXPECT_FALSE(program.writeLibrary());
    EXPECT_TRUE(program.writeLibrary()); // The deletion is forgotten, so that nobody writes it later.
    EXPECT_THAT(reasons, IsEmpty());
    handleWaitingEvents();
    EXPECT_THAT(reasons, ElementsAre("cannot find " + file + ": No such file or directory"));

    folder.write("Library.xml", fiveTracks());
    EXPECT_TRUE(program.writeLibrary());
    handleWaitingEvents();
    EXPECT_EQ(reasons.size(), 1U);
}

TEST_F(ProgramTest, AFailedWriteHurtsNobodyWhoDoesNotAsk) {
    const TemporaryFolder folder;
    const std::string file = folder.write("Library.xml", fiveTracks());
    Program& program = start(file, nullptr);
    ASSERT_TRUE(program.scripting().run("tell application \"iTunes\" to delete track 1 of playlist 1"));
    ASSERT_TRUE(std::filesystem::remove(file));
    EXPECT_FALSE(program.writeLibrary());
    handleWaitingEvents();
}

} // namespace
} // namespace songsweep::test
