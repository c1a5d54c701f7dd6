// SPDX-License-Identifier: MIT
#include "Fakes.h"
#include "scripting/NativeAppleScript.h"
#include "scripting/mac/NSAppleScriptRunner.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace songsweep {
namespace {

using test::FakeDescriptor;
using test::fakeMac;
using ::testing::ElementsAre;

template <class Number>
std::string bytesOf(Number number) {
    return {reinterpret_cast<const char*>(&number), sizeof number};
}

class MacScript : public ::testing::Test {
  protected:
    void SetUp() override { fakeMac() = {}; }

    Descriptor resultOf(const FakeDescriptor& result) {
        fakeMac().scriptResult = result;
        const Result<Descriptor> answer = m_scripts.executeAndReturnError("get it");
        EXPECT_TRUE(answer);
        return answer ? answer.value() : Descriptor::text("failed");
    }

    NSAppleScriptRunner m_scripts{"iTunes"};
};

TEST_F(MacScript, IsHandedOverAsItIs) {
    const std::string text = "tell application \"iTunes\" \nplay \"Macintosh HD:caf\u00e9\" \nend tell";
    EXPECT_TRUE(m_scripts.executeAndReturnError(text));
    EXPECT_THAT(fakeMac().calls, ElementsAre("script " + text));
}

TEST_F(MacScript, IsAddressedToThePlayerThatIsThere) {
    NSAppleScriptRunner music("Music");
    EXPECT_TRUE(music.executeAndReturnError("tell application \"iTunes\" to play playlist \"iTunes\""));
    EXPECT_THAT(fakeMac().calls,
                ElementsAre("script tell application \"Music\" to play playlist \"iTunes\""));
}

TEST_F(MacScript, GoesToMusicWhereITunesIsNotInstalled) {
    fakeMac().applications = {"com.apple.Music"};
    EXPECT_TRUE(nativeAppleScript()->executeAndReturnError("tell application \"iTunes\" to stop"));
    fakeMac().applications = {"com.apple.iTunes", "com.apple.Music"};
    EXPECT_TRUE(nativeAppleScript()->executeAndReturnError("tell application \"iTunes\" to stop"));
    fakeMac().applications = {};
    EXPECT_TRUE(nativeAppleScript()->executeAndReturnError("tell application \"iTunes\" to stop"));
    EXPECT_THAT(fakeMac().calls, ElementsAre("script tell application \"Music\" to stop",
                                             "script tell application \"iTunes\" to stop",
                                             "script tell application \"iTunes\" to stop"));
}

TEST_F(MacScript, GivesTextsAndNumbers) {
    EXPECT_EQ(resultOf({"utxt", "caf\u00e9", {}}), Descriptor::text("caf\u00e9"));
    EXPECT_EQ(resultOf({"long", bytesOf<std::int32_t>(-7), {}}), Descriptor::integer(-7));
    EXPECT_EQ(resultOf({"comp", bytesOf<std::int64_t>(5'000'000'000), {}}),
              Descriptor::integer(5'000'000'000));
    EXPECT_EQ(resultOf({"doub", bytesOf(1.5), {}}), Descriptor(Descriptor::Value(1.5)));
}

TEST_F(MacScript, GivesTruthValues) {
    EXPECT_EQ(resultOf({"true", "", {}}), Descriptor(Descriptor::Value(true)));
    EXPECT_EQ(resultOf({"fals", "", {}}), Descriptor(Descriptor::Value(false)));
    EXPECT_EQ(resultOf({"bool", std::string(1, '\1'), {}}), Descriptor(Descriptor::Value(true)));
}

TEST_F(MacScript, GivesDatesByTheirLongDateTime) {
    EXPECT_EQ(resultOf({"ldt ", bytesOf<std::int64_t>(3'000'000'000), {}}),
              Descriptor(Descriptor::Value(Descriptor::Date{3'000'000'000})));
}

TEST_F(MacScript, GivesFilesByTheirPath) {
    EXPECT_EQ(resultOf({"furl", "file:///Music/a%20b.mp3", {}}),
              Descriptor(Descriptor::Value(Descriptor::Alias{"/Music/a b.mp3"})));
}

TEST_F(MacScript, GivesListsInOrder) {
    const FakeDescriptor list{
        "list", "", {{"utxt", "one", {}}, {"list", "", {}}, {"long", bytesOf<std::int32_t>(3), {}}}};
    EXPECT_EQ(resultOf(list),
              Descriptor::list({Descriptor::text("one"), Descriptor::list({}), Descriptor::integer(3)}));
}

TEST_F(MacScript, TellsTheMissingValueFromOtherConstants) {
    EXPECT_EQ(resultOf({"type", "msng", {}}), Descriptor());
    EXPECT_EQ(resultOf({"null", "", {}}), Descriptor());
}

TEST_F(MacScript, SaysWhyItFailed) {
    fakeMac().succeeds = false;
    fakeMac().scriptError = "iTunes got an error: Application isn't running.";
    EXPECT_EQ(m_scripts.executeAndReturnError("get version").error().message,
              "iTunes got an error: Application isn't running.");
    fakeMac().scriptError.clear();
    EXPECT_FALSE(m_scripts.executeAndReturnError("get version").error().message.empty());
}

TEST_F(MacScript, IsRefusedWhereItIsNoText) {
    EXPECT_EQ(m_scripts.executeAndReturnError("\xff\xfe").error().code, Error::Code::invalid);
    EXPECT_TRUE(fakeMac().calls.empty());
}

} // namespace
} // namespace songsweep
