// SPDX-License-Identifier: MIT
#include "libraryfile/XmlText.h"

#include <gtest/gtest.h>

namespace songsweep {
namespace {

TEST(XmlText, EndsLinesByALineFeed) { EXPECT_EQ(decodeXmlText("a\r\nb\rc\nd", {}), "a\nb\nc\nd"); }

TEST(XmlText, KeepsACarriageReturnThatIsReferredTo) {
    EXPECT_EQ(decodeXmlText("a&#13;b&#xD;&#10;c", {}), "a\rb\r\nc");
}

TEST(XmlText, KeepsACarriageReturnThatAnEntityRefersTo) {
    const auto replacement = entityReplacement("x&#13;&#10;y\r\nz");
    ASSERT_TRUE(replacement);
    EXPECT_EQ(*replacement, "x\r\ny\nz");
    EXPECT_EQ(decodeXmlText("&e;", {{"e", *replacement}}), "x\r\ny\nz");
}

TEST(XmlText, TakesMarkupOutAndSectionsAsTheyStand) {
    EXPECT_EQ(decodeXmlText("a<!-- b -->c<?d e?>f<![CDATA[<&g\r\n]]>h", {}), "acf<&g\nh");
}

TEST(XmlText, MarkupOrAReferenceWithoutAnEndIsNoText) {
    for (const char* const raw : {"a<![CDATA[b", "a<![CDATA[b]]", "a<!-- b", "a<?b", "a&amp", "a&;", "a&#x;"})
        EXPECT_EQ(decodeXmlText(raw, {}), std::nullopt) << raw;
}

} // namespace
} // namespace songsweep
