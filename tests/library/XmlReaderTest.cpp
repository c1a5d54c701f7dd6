// SPDX-License-Identifier: MIT
#include "library/XmlReader.h"

#include "library/ReaderFixture.h"

#include <gmock/gmock.h>

#include <filesystem>

namespace songsweep {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class XmlReaderTest : public test::ReaderFixture {
  protected:
    std::vector<std::string> nodesOf(const std::string& document) {
        useLibraryText(document);
        std::vector<std::string> nodes;
        const auto reader = XmlReader::open(path("library.xml"));
        XmlNode node;
        while (reader->read(node) && !reader->error())
            nodes.push_back(shown(node));
        m_lastError = reader->error();
        return nodes;
    }
    static std::string shown(const XmlNode& node) {
        switch (node.type) {
        case NodeType::element:
            return "<" + std::string(node.name);
        case NodeType::endElement:
            return ">" + std::string(node.name);
        case NodeType::text:
            return std::string(node.value);
        default:
            return "#" + std::to_string(static_cast<int>(node.type));
        }
    }

    std::optional<ReadError> m_lastError;
};

TEST_F(XmlReaderTest, GivesElementsAndTextsWithoutBlankOnes) {
    EXPECT_THAT(nodesOf("<a>\n <b>one</b>\n <c/>\n</a>"), ElementsAre("<a", "<b", "one", ">b", "<c", ">a"));
    EXPECT_FALSE(m_lastError.has_value());
}

TEST_F(XmlReaderTest, GivesCharactersWrittenAsEntitiesInOneText) {
    EXPECT_THAT(nodesOf("<a>R&amp;B &#38; &lt;Soul&gt; &#x20AC;</a>"),
                ElementsAre("<a", "R&B & <Soul> €", ">a"));
}

TEST_F(XmlReaderTest, GivesALongTextWithManyEntitiesInOnePiece) {
    std::string written;
    std::string text;
    for (int i = 0; i < 3000; ++i) {
        written += "abc&#38;";
        text += "abc&";
    }
    EXPECT_THAT(nodesOf("<a>" + written + "</a>"), ElementsAre("<a", text, ">a"));
}

TEST_F(XmlReaderTest, GivesCdataAsText) {
    EXPECT_THAT(nodesOf("<a><![CDATA[x < y]]></a>"), ElementsAre("<a", "x < y", ">a"));
}

TEST_F(XmlReaderTest, SplitsATextAtEntitiesOfTheDocumentsOwn) {
    EXPECT_THAT(nodesOf("<!DOCTYPE a [<!ENTITY e 'E'>]><a>x &e; y</a>"),
                ElementsAre("#10", "<a", "x ", "#5", " y", ">a"));
}

TEST_F(XmlReaderTest, ReadsOtherEncodings) {
    EXPECT_THAT(nodesOf("<?xml version='1.0' encoding='ISO-8859-1'?><a>\xe9</a>"),
                ElementsAre("<a", "é", ">a"));
}

TEST_F(XmlReaderTest, AFileThatIsNotThereDoesNotOpen) {
    EXPECT_EQ(XmlReader::open(path("nothing.xml")), nullptr);
}

TEST_F(XmlReaderTest, KeepsGivingNodesOfTypeNoneAfterAnError) {
    useLibrary("cut-off.xml");
    const auto reader = XmlReader::open(path("library.xml"));
    XmlNode node;
    while (!reader->error())
        ASSERT_TRUE(reader->read(node));
    for (int i = 0; i < 3; ++i) {
        node = {NodeType::text, "stale", "stale"};
        EXPECT_TRUE(reader->read(node));
        EXPECT_EQ(node.type, NodeType::none);
        EXPECT_EQ(node.value, "");
    }
    EXPECT_EQ(reader->error()->line, 9);
    EXPECT_NE(reader->error()->reason, "");
}

TEST_F(XmlReaderTest, TellsTheFirstError) {
    nodesOf("<a>\n<b></c>\n</d>");
    ASSERT_TRUE(m_lastError.has_value());
    EXPECT_EQ(m_lastError->line, 2);
    EXPECT_EQ(m_lastError->reason, "Opening and ending tag mismatch: b line 2 and c");
}

TEST_F(XmlReaderTest, WhatIsNoXmlIsAnError) {
    for (const char* document : {"", "no xml\n", "\x89PNG\r\n", "bplist00"}) {
        EXPECT_THAT(nodesOf(document), IsEmpty());
        EXPECT_TRUE(m_lastError.has_value()) << document;
    }
}

TEST_F(XmlReaderTest, AFolderIsAnErrorAndPrintsNothing) {
    testing::internal::CaptureStderr();
    const auto reader = XmlReader::open(m_folder.path().toStdString());
    XmlNode node;
    if (reader) {
        EXPECT_TRUE(reader->read(node));
        EXPECT_TRUE(reader->error().has_value());
    }
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "");
}

TEST_F(XmlReaderTest, AnEntityBombIsAnErrorAndNeverExpanded) {
    useLibrary("entity-bomb.xml");
    const auto reader = XmlReader::open(path("library.xml"));
    XmlNode node;
    std::size_t bytes = 0;
    while (reader->read(node) && !reader->error())
        bytes += node.value.size();
    EXPECT_LT(bytes, 1000U);
    ASSERT_TRUE(reader->error().has_value());
    EXPECT_EQ(reader->error()->reason, "Detected an entity reference loop");
}

TEST_F(XmlReaderTest, WhatExceedsTheParsersLimitsIsAnError) {
    std::string deep;
    for (int i = 0; i < 1000; ++i)
        deep += "<a>";
    nodesOf(deep);
    EXPECT_TRUE(m_lastError.has_value());
    nodesOf("<a>" + std::string(11'000'000, 'x') + "</a>");
    EXPECT_TRUE(m_lastError.has_value());
}

class ReadErrorTest : public test::ReaderFixture {
  protected:
    /// Reads until so many rests after the read error were taken.
    void runAndCancelAfter(int rests) {
        SWXMLParser parser(m_list, {.playlist = "Library"}, 1, 0, false, 5, 10, m_services);
        m_sleeper.onSleep = [&parser, left = rests]() mutable {
            if (--left == 0) parser.cancel();
        };
        run(parser);
    }
};

TEST_F(ReadErrorTest, TheReaderStepsOnUntilItIsCancelled) {
    useLibrary("cut-off.xml");
    runAndCancelAfter(1000);
    EXPECT_THAT(events(), ElementsAre("xmlModifiedDate", "addCancel"));
    EXPECT_EQ(m_sleeper.slept, std::chrono::milliseconds(10) * 1000);
    EXPECT_THAT(m_list->records, IsEmpty());
}

TEST_F(ReadErrorTest, TheFirstErrorComesWithAnEvent) {
    useLibrary("cut-off.xml");
    runAndCancelAfter(3);
    ASSERT_EQ(m_readErrors.size(), 1U);
    EXPECT_EQ(m_readErrors.front().line, 9);
    EXPECT_NE(m_readErrors.front().reason, "");
}

TEST_F(ReadErrorTest, AnEntityBombCountsAsUnreadable) {
    useLibrary("entity-bomb.xml");
    runAndCancelAfter(1);
    EXPECT_EQ(events().back(), "addCancel");
    ASSERT_EQ(m_readErrors.size(), 1U);
    EXPECT_EQ(m_readErrors.front().line, 19);
}

TEST_F(ReadErrorTest, AFolderCountsAsUnreadable) {
    std::filesystem::create_directory(path("library.xml"));
    runAndCancelAfter(1);
    EXPECT_EQ(m_readErrors.size(), 1U);
}

TEST_F(ReadErrorTest, ThereIsNoneOfAWholeFile) {
    useLibrary("no-playlists.xml");
    run({}, 1);
    EXPECT_TRUE(m_readErrors.empty());
}

} // namespace
} // namespace songsweep
