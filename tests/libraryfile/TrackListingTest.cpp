// SPDX-License-Identifier: MIT
#include "libraryfile/TrackListing.h"

#include "libraryfile/LibraryFixture.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <random>

namespace songsweep {
namespace {

using test::itemsOf;
using test::tracksOf;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

TrackListing listingOf(const std::vector<std::uint32_t>& tracks) {
    TrackListing listing;
    for (std::uint32_t item = 0; item < tracks.size(); ++item)
        listing.append(tracks[item], item);
    return listing;
}

TEST(TrackListing, HasTheTracksInTheirOrder) {
    TrackListing listing = listingOf({7, 5, 7});
    EXPECT_THAT(tracksOf(listing), ElementsAre(7, 5, 7));
    EXPECT_THAT(itemsOf(listing), ElementsAre(0, 1, 2));
    EXPECT_EQ(listing.placeOfItem(2), 2U);
    EXPECT_THAT(listing.placesOfTrack(7), ElementsAre(0, 2));
}

TEST(TrackListing, ClosesUpWhereAnItemIsStruckOut) {
    TrackListing listing = listingOf({7, 5, 7});
    listing.strikeItem(0);
    listing.strikeItem(0);
    EXPECT_THAT(tracksOf(listing), ElementsAre(5, 7));
    EXPECT_THAT(itemsOf(listing), ElementsAre(1, 2));
    EXPECT_EQ(listing.placeOfItem(0), std::nullopt);
    EXPECT_EQ(listing.placeOfItem(2), 1U);
    EXPECT_THAT(listing.placesOfTrack(7), ElementsAre(1));
}

TEST(TrackListing, LosesEveryItemOfATrackThatIsStruckOut) {
    TrackListing listing = listingOf({7, 5, 7});
    listing.strikeTrack(7);
    EXPECT_THAT(tracksOf(listing), ElementsAre(5));
    EXPECT_THAT(listing.placesOfTrack(7), IsEmpty());
    listing.append(7, 3);
    EXPECT_THAT(listing.placesOfTrack(7), ElementsAre(1));
}

TEST(TrackListing, KnowsNothingOfWhatItNeverHad) {
    TrackListing listing = listingOf({7});
    listing.strikeItem(9);
    listing.strikeTrack(9);
    EXPECT_EQ(listing.placeOfItem(9), std::nullopt);
    EXPECT_THAT(listing.placesOfTrack(9), IsEmpty());
    EXPECT_EQ(listing.size(), 1U);
}

/// The same as a plain list, which closes up after each strike.
class PlainListing {
  public:
    void append(std::uint32_t track, std::uint32_t item) {
        m_tracks.push_back(track);
        m_items.push_back(item);
    }
    template <class IsStruck>
    void strike(IsStruck isStruck) {
        for (std::size_t place = m_tracks.size(); place-- > 0;) {
            if (!isStruck(m_tracks[place], m_items[place])) continue;
            m_tracks.erase(m_tracks.begin() + static_cast<std::ptrdiff_t>(place));
            m_items.erase(m_items.begin() + static_cast<std::ptrdiff_t>(place));
        }
    }
    void replace(std::uint32_t item, std::uint32_t track) {
        for (std::size_t place = 0; place < m_items.size(); ++place)
            if (m_items[place] == item) m_tracks[place] = track;
    }
    const std::vector<std::uint32_t>& tracks() const { return m_tracks; }
    const std::vector<std::uint32_t>& items() const { return m_items; }

  private:
    std::vector<std::uint32_t> m_tracks;
    std::vector<std::uint32_t> m_items;
};

void expectSame(TrackListing& listing, const PlainListing& plain) {
    ASSERT_EQ(tracksOf(listing), plain.tracks());
    ASSERT_EQ(itemsOf(listing), plain.items());
    for (std::size_t place = 0; place < plain.items().size(); ++place)
        ASSERT_EQ(listing.placeOfItem(plain.items()[place]), place);
    for (std::uint32_t track = 0; track < 8; ++track) {
        std::vector<std::size_t> places;
        for (std::size_t place = 0; place < plain.tracks().size(); ++place)
            if (plain.tracks()[place] == track) places.push_back(place);
        ASSERT_EQ(listing.placesOfTrack(track), places);
    }
}

TEST(TrackListing, IsWhatAPlainListIs) {
    for (unsigned seed = 0; seed < 40; ++seed) {
        std::mt19937 random(seed);
        TrackListing listing;
        PlainListing plain;
        std::uint32_t nextItem = 0;
        for (int step = 0; step < 120; ++step) {
            const std::uint32_t track = random() % 8;
            const std::uint32_t item = random() % (nextItem + 1);
            switch (random() % 8) {
            case 0:
                listing.strikeTrack(track);
                plain.strike([&](std::uint32_t each, std::uint32_t) { return each == track; });
                break;
            case 3:
                listing.replaceTrack(item, track);
                plain.replace(item, track);
                break;
            case 1:
            case 2:
                listing.strikeItem(item);
                plain.strike([&](std::uint32_t, std::uint32_t each) { return each == item; });
                break;
            default:
                listing.append(track, nextItem);
                plain.append(track, nextItem);
                nextItem += 1 + random() % 2;
            }
            if (step % 10 != 9) continue;
            ASSERT_NO_FATAL_FAILURE(expectSame(listing, plain)) << "seed " << seed;
        }
    }
}

} // namespace
} // namespace songsweep
