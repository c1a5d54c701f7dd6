// SPDX-License-Identifier: MIT
#include "libraryfile/EntryEdit.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace songsweep {
namespace {

using Form = ValueChange::Form;
using testing::HasSubstr;

/// An entry after changes, or the reason why there is none.
std::string changed(const std::string& entry, const std::vector<ValueChange>& changes) {
    const auto replacements = replacementsFor(entry, {}, changes);
    return replacements ? withReplacements(entry, replacements.value()) : replacements.error().message;
}

std::string entryWith(const std::string& values) {
    return "\n\t\t<key>1</key>\n\t\t<dict>\n\t\t\t<key>Track ID</key><integer>1</integer>" + values +
           "\n\t\t</dict>";
}

TEST(EntryEditTest, ReplacesAValueAndNothingElse) {
    EXPECT_EQ(changed(entryWith("\n\t\t\t<key>Name</key> <string>a</string><!-- b -->"),
                      {{"Name", Form::text, "c"}}),
              entryWith("\n\t\t\t<key>Name</key> <string>c</string><!-- b -->"));
    EXPECT_EQ(changed(entryWith("<key>rating</key><string>x</string>"), {{"Rating", Form::integer, "80"}}),
              entryWith("<key>rating</key><integer>80</integer>"));
    EXPECT_EQ(changed(entryWith("<key>Name</key><string/>"), {{"Name", Form::text, "c"}}),
              entryWith("<key>Name</key><string>c</string>"));
}

TEST(EntryEditTest, PutsANewValueBehindTheLastInTheLayoutOfTheFile) {
    EXPECT_EQ(changed(entryWith(""), {{"Year", Form::integer, "1999"}}),
              entryWith("\n\t\t\t<key>Year</key><integer>1999</integer>"));
    EXPECT_EQ(
        changed("<dict>\r\n  <key>A</key>\r\n  <string>a</string>\r\n</dict>",
                {{"Disabled", Form::isTrue, ""}}),
        "<dict>\r\n  <key>A</key>\r\n  <string>a</string>\r\n  <key>Disabled</key>\r\n  <true/>\r\n</dict>");
    EXPECT_EQ(changed("<dict><key>A</key><true/></dict>",
                      {{"Year", Form::integer, "1"}, {"Name", Form::text, "n"}}),
              "<dict><key>A</key><true/><key>Year</key><integer>1</integer><key>Name</key><string>n</"
              "string></dict>");
}

TEST(EntryEditTest, TakesOutAKeyWithoutLeavingABlankLine) {
    EXPECT_EQ(
        changed(entryWith("\n\t\t\t<key>Disabled</key><true/>\n\t\t\t<key>Name</key><string>a</string>"),
                {{"Disabled", Form::none, ""}}),
        entryWith("\n\t\t\t<key>Name</key><string>a</string>"));
    EXPECT_EQ(changed(entryWith(""), {{"Disabled", Form::none, ""}}), entryWith(""));
}

TEST(EntryEditTest, WritesTextsAsXml) {
    EXPECT_EQ(
        changed(entryWith("<key>Name</key><string/>"), {{"Name", Form::text, "<A> & \"B\" ]]>\r\n\xC3\xA4"}}),
        entryWith("<key>Name</key><string>&#60;A&#62; &#38; \"B\" ]]&#62;&#13;\n\xC3\xA4</string>"));
}

TEST(EntryEditTest, WhatXmlCannotHoldIsRefused) {
    for (const std::string text : {"a\x01", "\xFF", "\xEF\xBF\xBE", "\xEF\xBF\xBF"})
        EXPECT_THAT(changed(entryWith(""), {{"Name", Form::text, text}}),
                    HasSubstr("“Name” cannot be changed: a library cannot hold one of the characters"));
    EXPECT_THAT(changed(entryWith(""), {{"Name", Form::text, std::string("a\0b", 3)}}),
                HasSubstr("cannot hold"));
}

TEST(EntryEditTest, AKeyWithSeveralValuesIsNotChanged) {
    const std::string entry = entryWith("<key>Name</key><string>a</string><key>name</key><string>b</string>");
    EXPECT_THAT(changed(entry, {{"Name", Form::text, "c"}}), HasSubstr("the track has several of it"));
    EXPECT_THAT(changed(entry, {{"Name", Form::none, ""}}), HasSubstr("the track has several of it"));
}

TEST(EntryEditTest, AnEntryWithoutValuesHasNoPlaceForOne) {
    EXPECT_THAT(changed("<key>1</key><dict/>", {{"Name", Form::text, "c"}}),
                HasSubstr("the track has no values"));
    EXPECT_THAT(changed("<key>1</key><dict></dict>", {{"Name", Form::text, "c"}}),
                HasSubstr("the track has no values"));
}

TEST(EntryEditTest, SeveralChangesAreMadeAtOnce) {
    EXPECT_EQ(changed(entryWith("<key>A</key><string>a</string><key>B</key><string>b</string>"),
                      {{"C", Form::text, "c"}, {"B", Form::none, ""}, {"A", Form::text, "longer"}}),
              entryWith("<key>A</key><string>longer</string><key>C</key><string>c</string>"));
}

} // namespace
} // namespace songsweep
