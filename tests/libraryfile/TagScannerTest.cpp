// SPDX-License-Identifier: MIT
#include "libraryfile/TagScanner.h"

#include "libraryfile/LibraryFixture.h"

#include <gtest/gtest.h>

namespace songsweep {
namespace {

using test::Folder;

/// All tags of a text in one line, or the error.
std::string scanned(std::string_view text) {
    const Folder folder;
    const auto file = LibraryFile::open(folder.write("a.xml", text));
    TagScanner scanner(file.value());
    std::string all;
    Tag tag;
    while (scanner.next(tag)) {
        if (tag.kind == Tag::Kind::endOfDocument) return all;
        all += tag.text;
        all += text.substr(tag.begin, tag.end - tag.begin);
    }
    return scanner.error().message;
}

TEST(TagScanner, FindsEveryTagAndTheTextBetween) {
    const std::string text =
        "<plist version=\"1.0\"><dict><key>A</key><string>b</string><true/></dict></plist>";
    EXPECT_EQ(scanned(text), text);
    EXPECT_EQ(scanned("<a><b x='1>2'/>  <c\n>t</c ></a>"), "<a><b x='1>2'/>  <c\n>t</c ></a>");
}

TEST(TagScanner, KeepsCommentsAndSectionsInTheText) {
    const std::string text = "<a>x<!-- <b> -->y<![CDATA[<c>]]>z<?p <d>?></a>";
    EXPECT_EQ(scanned(text), text);
}

TEST(TagScanner, SkipsByteOrderMarkDeclarationAndDocumentType) {
    EXPECT_EQ(scanned("\xEF\xBB\xBF<?xml version=\"1.0\"?>\n<!DOCTYPE a PUBLIC \"x>y\" \"z\" [ <!-- > ] --> "
                      "<!ELEMENT a ANY> <!ENTITY e \"]>\"> ]>\n<a/>\n<!-- end -->\n"),
              "\n<a/>");
}

TEST(TagScanner, RefusesTagsThatDoNotMatch) {
    EXPECT_EQ(scanned("<a>\n<b>\n</a>"), "line 3: </a> stands where </b> is due");
    EXPECT_EQ(scanned("<dict>\n\n</array>"), "line 3: </array> stands where </dict> is due");
    EXPECT_EQ(scanned("<a></a></a>"), "line 1: </a> closes nothing");
}

TEST(TagScanner, RefusesWhatEndsTooEarly) {
    EXPECT_EQ(scanned("<dict>\n<key>A</key>\n"), "line 3: the file ends inside <dict>");
    EXPECT_EQ(scanned("<dict>\n<ke"), "line 2: the file ends inside a tag");
    EXPECT_EQ(scanned("<dict><"), "line 1: the file ends inside a tag");
    EXPECT_EQ(scanned("<dict><!-- never"), "line 1: the file ends inside a comment");
    EXPECT_EQ(scanned("<dict><![CDATA[ never"), "line 1: the file ends inside a CDATA section");
    EXPECT_EQ(scanned("<!DOCTYPE plist [ <!ENTITY"), "line 1: the file ends inside the document type");
    EXPECT_EQ(scanned("<?xml version"), "line 1: the file ends inside a processing instruction");
}

TEST(TagScanner, RefusesEveryCutOfADocument) {
    const std::string text = "<?xml version=\"1.0\"?><!DOCTYPE a><a><b>c</b><d/><!-- e --></a>";
    for (std::size_t length = 0; length < text.size(); ++length)
        EXPECT_NE(scanned(text.substr(0, length)).find("line 1: "), std::string::npos) << length;
}

TEST(TagScanner, RefusesMoreThanOneDocument) {
    EXPECT_EQ(scanned("<a/>\n<b/>"), "line 2: there is more after the end of the document");
    EXPECT_EQ(scanned("<a/>\nrest"), "line 2: there is more after the end of the document");
    EXPECT_EQ(scanned("text\n<a/>"), "line 2: there is text before the document");
}

TEST(TagScanner, RefusesOtherEncodings) {
    EXPECT_EQ(scanned(std::string_view("\xFF\xFE<\0a\0", 6)),
              "line 1: the encoding UTF-16 is not supported, only UTF-8");
    EXPECT_EQ(scanned("<?xml version=\"1.0\" encoding=\"ISO-8859-1\"?><a/>"),
              "line 1: the encoding ISO-8859-1 is not supported, only UTF-8");
    EXPECT_EQ(scanned("<?xml version='1.0' encoding='utf-8'?><a/>"), "<a/>");
}

TEST(TagScanner, RefusesWhatIsNoDocument) {
    EXPECT_EQ(scanned(""), "line 1: the file is no XML document");
    EXPECT_EQ(scanned("just a text"), "line 1: the file is no XML document");
    EXPECT_EQ(scanned("bplist00 and more"), "line 1: the file is a binary property list, not an XML one");
}

TEST(TagScanner, BoundsTheNesting) {
    std::string deep;
    for (int i = 0; i < 300; ++i)
        deep += "<dict>";
    EXPECT_EQ(scanned(deep), "line 1: elements are nested too deep");
}

TEST(TagScanner, ReadsWhatIsLongerThanItsWindow) {
    const std::string longText(FileWindow::usualSize * 3, 'x');
    EXPECT_EQ(scanned("<a>" + longText + "<b/></a>"), "<a>" + longText + "<b/></a>");
    EXPECT_EQ(scanned("<a><!--" + longText + "--></a>"), "<a><!--" + longText + "--></a>");
    EXPECT_EQ(scanned("<a><b x=\"" + longText + "\"/></a>"), "<a><b x=\"" + longText + "\"/></a>");
}

TEST(TagScanner, FindsTagsWhereverTheWindowEnds) {
    const std::string piece = "<key>Name</key><string>ab</string>";
    for (std::size_t shift = 0; shift < piece.size(); ++shift) {
        std::string text = "<a>" + std::string(FileWindow::usualSize - 3 - shift, ' ');
        text += piece + piece + "</a>";
        EXPECT_EQ(scanned(text), text) << shift;
    }
}

TEST(TagScanner, RefusesEntitiesThatHoldMarkup) {
    EXPECT_EQ(scanned("<!DOCTYPE a [\n<!ENTITY e \"<b/>\">\n]><a/>"),
              "line 2: the entity e holds markup, which is not supported");
}

} // namespace
} // namespace songsweep
