// SPDX-License-Identifier: MIT
#include "libraryfile/Property.h"

#include <gtest/gtest.h>

#include <string>

namespace songsweep {
namespace {

constexpr std::string_view behind = "\n</dict></plist>"; // long enough to tell the end of a tag by

/// Where a property at the beginning ends; 0 where there is none.
std::size_t endIn(const std::string& text, Property& property) {
    const std::string bytes = text + std::string(behind);
    const char* const end = readProperty(bytes.data(), bytes.data() + bytes.size(), property);
    if (end == nullptr) return 0;
    EXPECT_GE(property.endTag, bytes.data());
    return static_cast<std::size_t>(end - bytes.data());
}

std::size_t endIn(const std::string& text) {
    Property property;
    return endIn(text, property);
}

TEST(Property, IsAKeyAndTheElementBehindIt) {
    const std::string text = "\n\t <key>Total Time</key><integer>187429</integer>";
    const std::string bytes = text + std::string(behind);
    Property property;
    EXPECT_EQ(readProperty(bytes.data(), bytes.data() + bytes.size(), property), bytes.data() + text.size());
    EXPECT_EQ(property.key, "Total Time");
    EXPECT_EQ(property.meaning, LibraryKey::totalTime);
    EXPECT_EQ(property.value, "187429");
    EXPECT_EQ(property.element, Element::integer);
    EXPECT_FALSE(property.isEmptyTag);
    EXPECT_EQ(std::string_view(property.endTag).substr(0, 10), "</integer>");
}

TEST(Property, MayHaveAnEmptyTag) {
    const std::string text = "<key>Master</key><true/>";
    const std::string bytes = text + std::string(behind);
    Property property;
    property.value = "of the last one";
    EXPECT_EQ(readProperty(bytes.data(), bytes.data() + bytes.size(), property), bytes.data() + text.size());
    EXPECT_EQ(property.element, Element::isTrue);
    EXPECT_TRUE(property.isEmptyTag);
    EXPECT_EQ(property.value, "");
}

TEST(Property, KnowsEveryElementThatHoldsAText) {
    for (const char* name : {"string", "integer", "real", "date", "data", "true", "false"}) {
        const std::string text = std::string("<key>k</key><") + name + "> a &#38; b </" + name + ">";
        Property property;
        EXPECT_EQ(endIn(text, property), text.size()) << name;
        EXPECT_EQ(nameOf(property.element), name);
    }
}

TEST(Property, EverythingElseIsNone) {
    for (const char* text : {"",
                             "x<key>k</key><true/>",
                             "<!-- c --><key>k</key><true/>",
                             "\r<key>k</key><true/>",
                             "<key >k</key><true/>",
                             "<key>k</key ><true/>",
                             "<key>k</key> <true/>",
                             "<key>k</key><true />",
                             "<key>k</key><string >x</string>",
                             "<key>k</key><string>x</string >",
                             "<key>k</key><string>x</integer>",
                             "<key>k</key><string>x<true/></string>",
                             "<key>k</key><dict></dict>",
                             "<key>k</key><array/>",
                             "<key>k</key><key>k</key>",
                             "<key>k</key><strong>x</strong>",
                             "<key>&#107;</key><true/>",
                             "<key>a<b></key><true/>",
                             "<key/><true/>",
                             "<key></key><true/>",
                             "<key> k</key><true/>",
                             "<key>k</key><integers>7</integers>",
                             "<key>k</key><integers/>",
                             "<string>k</string><true/>",
                             "<key>k</key></dict>",
                             "<key>k</key><plist/>"})
        EXPECT_EQ(endIn(text), 0U) << text;
}

TEST(Property, IsNoneWhereItsEndIsTooNearToTell) {
    const std::string text = "<key>k</key><string>x</string>";
    const std::string bytes = text + std::string(behind);
    for (std::size_t size = 0; size < text.size(); ++size) {
        const std::string cut = bytes.substr(0, size); // of its own, so that a look behind it is seen
        Property property;
        EXPECT_EQ(readProperty(cut.data(), cut.data() + cut.size(), property), nullptr) << size;
    }
}

} // namespace
} // namespace songsweep
