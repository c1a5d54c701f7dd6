// SPDX-License-Identifier: MIT
#include "libraryfile/TemporaryName.h"

#include "libraryfile/Leftovers.h"
#include "libraryfile/LibraryFixture.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <limits>

namespace songsweep {
namespace {

using test::contentOf;
using test::Folder;
using testing::ElementsAre;
using testing::StartsWith;

constexpr std::uint64_t most = std::numeric_limits<std::uint64_t>::max();

TEST(TemporaryName, SaysWhatItWasMadeOf) {
    const TemporaryName::Exchange exchange{{1, 2, 3, -4}, {most, most, most, -1}};
    const std::string name = TemporaryName::forExchange("library.xml", exchange);
    EXPECT_EQ(TemporaryName::exchangeOf("library.xml", name), exchange);
    EXPECT_LE(name.size(), 255U);
    EXPECT_TRUE(name.starts_with('.'));
    EXPECT_FALSE(TemporaryName::exchangeOf("other.xml", name));
    EXPECT_FALSE(TemporaryName::exchangeOf("library.xml", TemporaryName::forWriting("library.xml", 7)));
}

TEST(TemporaryName, AnyOtherNameSaysNothing) {
    const std::string name = TemporaryName::forExchange("a", {});
    for (std::size_t length = 0; length + 4 < name.size(); ++length) {
        EXPECT_FALSE(TemporaryName::exchangeOf("a", name.substr(0, length)));
        EXPECT_FALSE(TemporaryName::exchangeOf("a", name.substr(0, length) + ".tmp")) << length;
    }
}

/// A folder as a program leaves it that was killed at an exchange.
class Leftovers : public testing::Test {
  protected:
    FileStamp stampOf(const std::string& name) const {
        return LibraryFile::stampOf(m_folder.pathOf(name)).value();
    }
    /// Gives a file the name of one that changes places.
    std::string announce(const std::string& name, const TemporaryName::Exchange& exchange) const {
        const std::string hidden = TemporaryName::forExchange("library.xml", exchange);
        std::filesystem::rename(m_folder.pathOf(name), m_folder.pathOf(hidden));
        return hidden;
    }

    Folder m_folder;
    std::string m_path = m_folder.write("library.xml", "the library");
};

TEST_F(Leftovers, AFileThatDidNotChangePlacesGoes) {
    m_folder.write("new", "new");
    announce("new", {stampOf("new"), stampOf("library.xml")});
    ASSERT_TRUE(removeLeftovers(m_path));
    EXPECT_THAT(m_folder.names(), ElementsAre("library.xml"));
    EXPECT_EQ(contentOf(m_path), "the library");
}

TEST_F(Leftovers, TheVersionThatWasToComeOutGoes) {
    m_folder.write("old", "old");
    announce("old", {stampOf("library.xml"), stampOf("old")});
    ASSERT_TRUE(removeLeftovers(m_path));
    EXPECT_THAT(m_folder.names(), ElementsAre("library.xml"));
    EXPECT_EQ(contentOf(m_path), "the library");
}

TEST_F(Leftovers, AVersionThatCameOutUnexpectedlyGoesBack) {
    m_folder.write("edited", "edited by somebody");
    announce("edited", {stampOf("library.xml"), {1, 2, 3, 4}});
    ASSERT_TRUE(removeLeftovers(m_path));
    EXPECT_THAT(m_folder.names(), ElementsAre("library.xml"));
    EXPECT_EQ(contentOf(m_path), "edited by somebody");
}

TEST_F(Leftovers, AVersionThatNobodyKnowsIsKeptToBeSeen) {
    m_folder.write("edited", "edited by somebody");
    announce("edited", {{5, 6, 7, 8}, {1, 2, 3, 4}});
    ASSERT_TRUE(removeLeftovers(m_path));
    ASSERT_THAT(m_folder.names(), ElementsAre(StartsWith("library (another version, found "), "library.xml"));
    EXPECT_EQ(contentOf(m_folder.pathOf(m_folder.names()[0])), "edited by somebody");
    EXPECT_EQ(contentOf(m_path), "the library");
}

} // namespace
} // namespace songsweep
