// SPDX-License-Identifier: MIT
#include "libraryfile/PlainReader.h"

#include "library/XmlReader.h"
#include "libraryfile/LibraryDocument.h"
#include "libraryfile/LibraryFixture.h"
#include "support/TestData.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <random>

namespace songsweep {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using Nodes = std::vector<std::string>;

std::string shown(const XmlNode& node) {
    switch (node.type) {
    case NodeType::element:
        return "<" + std::string(node.name);
    case NodeType::endElement:
        return ">" + std::string(node.name);
    case NodeType::text:
        return "\"" + std::string(node.value);
    default:
        return {};
    }
}

/// All nodes that a walk looks at, and the read error at their end.
Nodes nodesOf(NodeReader& reader) {
    Nodes nodes;
    XmlNode node;
    while (reader.read(node) && !reader.error())
        if (std::string text = shown(node); !text.empty()) nodes.push_back(std::move(text));
    if (reader.error()) nodes.push_back("error: " + reader.error()->reason);
    return nodes;
}

class PlainReaderTest : public testing::Test {
  protected:
    std::unique_ptr<const LibraryFile> file() const {
        return std::make_unique<const LibraryFile>(std::move(LibraryFile::open(m_path)).value());
    }
    /// Whether a document is plain to its end.
    bool isPlain(const std::string& document) {
        m_path = m_folder.write("library.xml", document);
        const auto opened = file();
        TagScanner scanner(*opened);
        PlainNodes nodes(*opened);
        Tag tag;
        do {
            if (!scanner.next(tag) || !nodes.take(tag)) return false;
        } while (tag.kind != Tag::Kind::endOfDocument);
        return true;
    }
    /// The nodes of a document by both readers, the same in both.
    Nodes plainNodesOf(const std::string& document) {
        EXPECT_TRUE(isPlain(document)) << document;
        PlainReader plain(file());
        Nodes nodes = nodesOf(plain);
        EXPECT_EQ(nodes, nodesOf(*XmlReader::open(m_path))) << document;
        return nodes;
    }

    test::Folder m_folder;
    std::string m_path;
};

const std::string head = "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
                         "<!DOCTYPE plist PUBLIC \"-//Apple Computer//DTD PLIST 1.0//EN\" "
                         "\"http://www.apple.com/DTDs/PropertyList-1.0.dtd\">\n";
const std::string root = "<plist version=\"1.0\">";

std::string document(const std::string& inside) { return head + root + inside + "</plist>\n"; }

TEST_F(PlainReaderTest, GivesElementsAndTextsWithoutBlankOnes) {
    EXPECT_THAT(plainNodesOf(document("\n<dict>\n\t<key>A</key><string> b </string> <true/>\n"
                                      "<key> </key><string></string><string/></dict>\n")),
                ElementsAre("<plist", "<dict", "<key", "\"A", ">key", "<string", "\" b ", ">string", "<true",
                            "<key", ">key", "<string", ">string", "<string", ">dict", ">plist"));
}

/// All whole properties, "-" for each node between.
Nodes propertiesOf(NodeReader& reader) {
    Nodes found;
    XmlNode node;
    XmlProperty property;
    for (;;) {
        if (reader.readProperty(property))
            found.push_back(std::to_string(static_cast<int>(property.key)) + "=" +
                            std::string(property.value));
        else if (reader.read(node) && !reader.error())
            found.emplace_back("-");
        else
            break;
    }
    if (reader.error()) found.push_back("error: " + reader.error()->reason);
    return found;
}

std::string shown(LibraryKey key, const std::string& value) {
    return std::to_string(static_cast<int>(key)) + "=" + value;
}

TEST_F(PlainReaderTest, GivesWholeProperties) {
    m_path = m_folder.write("library.xml",
                            document("<dict><key>Name</key><string>R&#38;B </string><key>Size</key>\n"
                                     "<integer>7</integer><key>Year</key><integer> &#13;</integer>\n"
                                     "<key>Master</key><true/></dict>"));
    PlainReader plain(file());
    EXPECT_THAT(propertiesOf(plain),
                ElementsAre("-", "-", shown(LibraryKey::name, "R&B "), "-", "-", "-", "-", "-", "-",
                            shown(LibraryKey::other, ""), shown(LibraryKey::master, ""), "-", "-"));
}

TEST_F(PlainReaderTest, APropertyThatIsNotPlainIsAChangeWhileItWasRead) {
    for (const char* property : {"<key>Name</key><string>a\rb</string>", "<key>a]]></key><true/>",
                                 "<key>Name</key><string>&x;</string>"}) {
        m_path = m_folder.write("library.xml", document("<dict>" + std::string(property) + "</dict>"));
        PlainReader plain(file());
        EXPECT_THAT(propertiesOf(plain),
                    ElementsAre("-", "-", "error: The file was changed while it was read"));
        XmlNode node;
        XmlProperty next;
        EXPECT_TRUE(plain.read(node));
        EXPECT_EQ(node.type, NodeType::none);
        EXPECT_FALSE(plain.readProperty(next));
    }
}

TEST_F(PlainReaderTest, GivesCharactersWrittenAsReferencesInOneText) {
    EXPECT_THAT(
        plainNodesOf(document("<string>&#38; R&amp;B &lt;&gt;&quot;&apos;&#x20AC; é &#10;</string>"
                              "<string> &#32;&#9; </string>")),
        ElementsAre("<plist", "<string", "\"& R&B <>\"'€ é \n", ">string", "<string", ">string", ">plist"));
}

TEST_F(PlainReaderTest, KnowsAllElementsOfAPropertyList) {
    EXPECT_THAT(plainNodesOf(document("<array><integer>1</integer><real>1.5</real><date>d</date>"
                                      "<data>AA==</data><true/><false/><dict/></array>")),
                testing::SizeIs(19));
}

TEST_F(PlainReaderTest, TheHeadMayBeMissing) {
    plainNodesOf(root + "<dict/></plist>");
    plainNodesOf("\n" + root + "<dict/></plist> \n\t");
    plainNodesOf("<?xml version=\"1.0\" encoding=\"UTF-8\"?>" + root + "<dict/></plist>");
}

TEST_F(PlainReaderTest, GivesLongTextsInOnePiece) {
    for (const std::size_t length : {299U, 300U, 301U, 4000U, 300'000U, 900'000U}) {
        const std::string text(length, 'x');
        plainNodesOf(document("<string>" + text + "</string>"));
        plainNodesOf(document("<string>" + text + "&#38;" + text.substr(0, 5000) + " é</string>"));
        plainNodesOf(document("<string>" + std::string(length, ' ') + "x</string>"));
        plainNodesOf(
            document(std::string(length, '\n') + "<string>x" + std::string(length, ' ') + "</string>"));
    }
}

TEST_F(PlainReaderTest, LeavesWhatIsNotPlainToTheParser) {
    for (const char* inside : {"<!-- c -->",
                               "<?p i?>",
                               "<string><![CDATA[x]]></string>",
                               "<string>a<!-- c -->b</string>",
                               "text",
                               "&#32;",
                               "<name>x</name>",
                               "<string a=\"b\">x</string>",
                               "<string >x</string>",
                               "<string>x</string >",
                               "<true />",
                               "<string>a\rb</string>",
                               "\r\n",
                               "<string>]]></string>",
                               "<string>&other;</string>",
                               "<string>&ampx;</string>",
                               "<string>& </string>",
                               "<string>&#xD800;</string>",
                               "<string>\xC3</string>",
                               "<string>\xEF\xBF\xBE</string>",
                               "<string>\xED\xA0\x80</string>",
                               "<string>\x01</string>",
                               "<string>a<true/></string>",
                               "<string><true/></string>",
                               "<true>",
                               "</dict>"})
        EXPECT_FALSE(isPlain(document(inside))) << inside;
    EXPECT_FALSE(isPlain(document(std::string("<string>\0</string>", 18))));
    EXPECT_FALSE(isPlain(document("<string>" + std::string((1 << 20) + 1, 'x') + "</string>")));
    std::string deep;
    for (int level = 0; level < 100; ++level)
        deep = "<array>" + deep + "</array>";
    EXPECT_FALSE(isPlain(document(deep)));
}

TEST_F(PlainReaderTest, LeavesAHeadOfAnotherKindToTheParser) {
    for (const std::string& start :
         {"\xEF\xBB\xBF" + root, "<?xml version=\"1.0\" encoding=\"ISO-8859-1\"?>" + root,
          "<?xml version=\"1.1\" encoding=\"UTF-8\"?>" + root, "<!DOCTYPE plist [<!ENTITY a \"b\">]>" + root,
          "<!DOCTYPE plist PUBLIC \"a\" \"b\" [<!ENTITY a \"b\">]>" + root,
          "<!DOCTYPE plist SYSTEM \"b\">" + root, "<!DOCTYPE plist PUBLIC \"<\" \"b\">" + root,
          "<!-- c -->" + root, "x" + root, std::string("<plist>"), std::string("<plist version='1.0'>"),
          std::string("<plist version=\"1.0\" >"), std::string("<dict>")}) {
        const std::string end = start == "<dict>" ? "</dict>" : "</plist>";
        EXPECT_FALSE(isPlain(start + "<true/>" + end)) << start;
    }
    EXPECT_FALSE(isPlain(document("") + "<!-- c -->"));
    EXPECT_FALSE(isPlain(document("") + "&#32;"));
    EXPECT_FALSE(isPlain(""));
}

/// What is put into libraries at random: much that is plain, and all that is not.
const std::vector<std::string> pieces{"&amp;",
                                      "&#38;",
                                      "&#13;",
                                      "&#32;",
                                      "&#x9;",
                                      "&#0;",
                                      "&other;",
                                      "&",
                                      ";",
                                      " ",
                                      "\n\t",
                                      "\r\n",
                                      "x",
                                      "é",
                                      "\xC3",
                                      "\xEF\xBF\xBF",
                                      "\x7F",
                                      "\x01",
                                      "]]>",
                                      "]",
                                      "<",
                                      ">",
                                      "/",
                                      "\"",
                                      "<!-- c -->",
                                      "<![CDATA[c]]>",
                                      "<?p i?>",
                                      "<dict/>",
                                      "<dict>",
                                      "</dict>",
                                      "<string/>",
                                      "<string> </string>",
                                      "<string>a &lt;</string>",
                                      "<key>Name</key>",
                                      "<key></key>",
                                      "<true/>",
                                      "<true></true>",
                                      "<array><dict></dict></array>",
                                      "<data>\n\tAAAA\n</data>",
                                      "<name>",
                                      "</key>",
                                      std::string(400, ' '),
                                      std::string(700, 'y')};

/// A library with one to four changes, mostly where a tag begins or ends.
std::string changedAtRandom(std::string text, std::mt19937& random) {
    for (unsigned changes = 1 + random() % 4; changes > 0; --changes) {
        std::size_t place = random() % text.size();
        if (random() % 4 != 0) place = std::min(text.find_first_of("<>", place), text.size() - 1);
        if (place < text.size() && text[place] == '>') ++place;
        const std::string& piece = pieces[random() % pieces.size()];
        if (random() % 6 == 0)
            text.erase(place, 1 + random() % 8);
        else
            text.insert(place, piece);
    }
    return text;
}

TEST_F(PlainReaderTest, GivesWhatTheParserGivesForAnythingThatItVouchesFor) {
    const std::vector<std::string> libraries{test::manyTracks(3), test::manyTracks(1), document("<dict/>"),
                                             head + root + "<string>a &amp; b</string></plist>"};
    std::mt19937 random(14);
    int plain = 0;
    for (int turn = 0; turn < 6000; ++turn) {
        const std::string changed = changedAtRandom(libraries[random() % libraries.size()], random);
        if (!isPlain(changed)) continue;
        plainNodesOf(changed);
        ++plain;
    }
    EXPECT_GT(plain, 300);
}

TEST_F(PlainReaderTest, GivesWhatTheParserGivesForAllTestLibraries) {
    int plain = 0;
    for (const auto& entry : std::filesystem::directory_iterator(test::testData("library"))) {
        const std::string text = test::contentOf(entry.path());
        if (!isPlain(text)) continue;
        plainNodesOf(text);
        ++plain;
    }
    EXPECT_GE(plain, 3);
    EXPECT_TRUE(isPlain(test::manyTracks(300)));
    plainNodesOf(test::manyTracks(300));
}

TEST_F(PlainReaderTest, AFileThatIsNotPlainAfterAllIsAReadError) {
    m_path = m_folder.write("library.xml", document("<dict><!-- c --></dict>"));
    PlainReader reader(file());
    EXPECT_THAT(nodesOf(reader),
                ElementsAre("<plist", "<dict", "error: The file was changed while it was read"));
    XmlNode node{NodeType::text, {}, "x"};
    EXPECT_TRUE(reader.read(node)) << "there is no end behind an error";
    EXPECT_EQ(node.type, NodeType::none);
}

TEST_F(PlainReaderTest, ADocumentReadsItsOwnFileAsItWasIndexed) {
    m_path = m_folder.write("library.xml", test::manyTracks(2));
    const auto library = std::move(LibraryDocument::open(m_path)).value();
    const auto nodes = library->plainNodes(m_path);
    ASSERT_NE(nodes, nullptr);
    EXPECT_EQ(nodesOf(*nodes), nodesOf(*XmlReader::open(m_path)));
    const std::string other = m_folder.write("other.xml", test::manyTracks(2));
    EXPECT_EQ(library->plainNodes(other), nullptr) << "another file";
    EXPECT_EQ(library->plainNodes(m_folder.pathOf("nothing.xml")), nullptr);
    m_folder.write("library.xml", test::manyTracks(3));
    EXPECT_EQ(library->plainNodes(m_path), nullptr) << "another version of it";
}

TEST_F(PlainReaderTest, ADocumentThatIsNotPlainHasNoNodes) {
    std::string text = test::manyTracks(2);
    text.insert(text.rfind("</plist>"), "<!-- c -->");
    m_path = m_folder.write("library.xml", text);
    EXPECT_EQ(std::move(LibraryDocument::open(m_path)).value()->plainNodes(m_path), nullptr);
}

} // namespace
} // namespace songsweep
