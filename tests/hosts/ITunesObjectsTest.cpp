// SPDX-License-Identifier: MIT
#include "hosts/ITunesObjects.h"

#include "hosts/RecordingDesktop.h"
#include "libraryfile/LibraryFixture.h"
#include "platform/Files.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace songsweep {
namespace {

using interpreter::Candidates;
using interpreter::TermCode;
using testing::HasSubstr;

constexpr const char* digits = "00A1B2C3D4E5F607";

class ITunesObjectsTest : public testing::Test {
  protected:
    /// What the index finds for `tracks whose persistent ID is "…"`.
    Candidates withPersistentId(const std::string& id) {
        const interpreter::PropertyTest test{static_cast<TermCode>(ITunesProperty::persistentId),
                                             interpreter::Comparison::equal, id};
        return PlaylistObject(m_services, 0)
            .candidates(static_cast<TermCode>(ITunesClass::track), test)
            .value()
            .value();
    }

    /// A track of the library, by its place in it.
    TrackObject track(LibraryDocument::TrackPosition position) {
        return {m_services, position, TrackObject::Place(), "track " + std::to_string(position + 1)};
    }

    static constexpr auto trackClass = static_cast<TermCode>(ITunesClass::track);
    static constexpr auto artworkClass = static_cast<TermCode>(ITunesClass::artwork);
    static constexpr auto name = static_cast<TermCode>(ITunesProperty::name);

    test::Folder m_folder;
    EmbeddedLibrary m_library{
        m_folder.write("library.xml", test::libraryXml({{1, digits, ""}, {2, "B2", ""}}, {})),
        LibraryDocument::Options()};
    Files m_files;
    test::RecordingDesktop m_desktop;
    ITunesServices m_services{m_library, m_files, m_desktop, "12.0"};
};

TEST_F(ITunesObjectsTest, AnIdOfSixteenDigitsIsFoundForCertainInAnyCase) {
    for (const std::string id : {"00A1B2C3D4E5F607", "00a1b2c3d4e5f607"}) {
        const Candidates found = withPersistentId(id);
        EXPECT_EQ(found.objects.size(), 1U) << id;
        EXPECT_EQ(found.certainty, Candidates::Certainty::exact) << id;
    }
}

TEST_F(ITunesObjectsTest, AnyOtherIdIsToBeTestedAgain) {
    const Candidates found = withPersistentId("b2");
    EXPECT_EQ(found.objects.size(), 1U);
    EXPECT_EQ(found.certainty, Candidates::Certainty::tentative);
}

TEST_F(ITunesObjectsTest, APlaylistHasTracksAndNothingElse) {
    PlaylistObject playlist(m_services, 0);
    EXPECT_EQ(playlist.count(trackClass).value(), 2U);
    EXPECT_FALSE(playlist.count(artworkClass));
    EXPECT_TRUE(playlist.element(trackClass, 1));
    EXPECT_FALSE(playlist.element(artworkClass, 1));
}

TEST_F(ITunesObjectsTest, ATrackHasArtworksAndNothingElse) {
    TrackObject first = track(0);
    EXPECT_TRUE(first.count(artworkClass));
    EXPECT_FALSE(first.count(trackClass));
    EXPECT_EQ(first.element(artworkClass, 1).value()->specifier(), "artwork 1 of track 1");
    EXPECT_FALSE(first.element(trackClass, 1));
}

TEST_F(ITunesObjectsTest, APropertyThatATrackLacksIsNamed) {
    const auto version = track(0).property(static_cast<TermCode>(ITunesProperty::version));
    ASSERT_FALSE(version);
    EXPECT_EQ(version.error().code, Error::Code::notFound);
    EXPECT_EQ(version.error().message, "track 1 has no “version”");
}

TEST_F(ITunesObjectsTest, ADeletedTrackAnswersNothing) {
    TrackObject first = track(0);
    ASSERT_TRUE(first.property(name));
    ASSERT_TRUE(first.remove());
    for (const auto property : {ITunesProperty::name, ITunesProperty::rating, ITunesProperty::databaseId}) {
        const auto value = first.property(static_cast<TermCode>(property));
        ASSERT_FALSE(value);
        EXPECT_EQ(value.error().message, "the track has been deleted");
    }
    EXPECT_FALSE(first.setProperty(name, std::string("x")));
    EXPECT_FALSE(first.count(artworkClass));
    EXPECT_TRUE(track(1).property(name));
}

TEST_F(ITunesObjectsTest, ATrackWhoseEntryIsNotWellFormedAnswersWhy) {
    EmbeddedLibrary library(
        m_folder.write("other.xml",
                       test::libraryXml({{1, "A1", "<key>Name</key><string>a & b</string>"}}, {})),
        LibraryDocument::Options());
    ITunesServices services{library, m_files, m_desktop, "12.0"};
    TrackObject broken(services, 0, TrackObject::Place(), "track 1");
    const auto value = broken.property(name);
    ASSERT_FALSE(value);
    EXPECT_THAT(value.error().message, HasSubstr("is not well formed"));
    EXPECT_FALSE(broken.count(artworkClass));
}

} // namespace
} // namespace songsweep
