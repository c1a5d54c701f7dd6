// SPDX-License-Identifier: MIT
#include "scan/SoundTags.h"

#include "platform/Ascii.h"
#include "scan/CleanText.h"
#include "scan/Rating.h"

#include <taglib/apetag.h>
#include <taglib/asftag.h>
#include <taglib/audioproperties.h>
#include <taglib/id3v2tag.h>
#include <taglib/mp4tag.h>
#include <taglib/popularimeterframe.h>
#include <taglib/tstringlist.h>
#include <taglib/xiphcomment.h>

#include <algorithm>
#include <array>
#include <charconv>
#include <string>
#include <string_view>
#include <utility>

namespace songsweep {

namespace {

/// The values of a tag that a track has, in the order of their names below.
enum class Value : std::uint8_t {
    title,
    artist,
    albumArtist,
    album,
    genre,
    composer,
    comment,
    date,
    beats,
    compilation,
    track,
    trackTotal,
    totalTracks,
    disc,
    discTotal,
    totalDiscs,
    fmpsRating,
    rating,
    playCount
};
constexpr std::array<std::string_view, 19> valueNames = {
    "TITLE",     "ARTIST",     "ALBUMARTIST", "ALBUM",       "GENRE",         "COMPOSER",    "COMMENT",
    "DATE",      "BPM",        "COMPILATION", "TRACKNUMBER", "TRACKTOTAL",    "TOTALTRACKS", "DISCNUMBER",
    "DISCTOTAL", "TOTALDISCS", "FMPS_RATING", "RATING",      "FMPS_PLAYCOUNT"};

/// These values, as texts: picked in one pass, since TagLib makes new texts of each name that it is asked
/// for.
class Values {
  public:
    explicit Values(const TagLib::PropertyMap& map) {
        for (const auto& [key, list] : map) {
            const std::string name = key.to8Bit();
            const auto found = std::find(valueNames.begin(), valueNames.end(), name);
            if (found == valueNames.end()) continue;
            // Of several, all, parted by semicolons.
            const TagLib::String whole = list.size() == 1 ? list.front() : list.toString("; ");
            m_texts[static_cast<std::size_t>(found - valueNames.begin())] = cleanText(whole.to8Bit(true));
        }
    }

    const std::string& text(Value value) const { return m_texts[static_cast<std::size_t>(value)]; }
    std::string take(Value value) { return std::move(m_texts[static_cast<std::size_t>(value)]); }
    std::int32_t number(Value value) const { return numberOf(text(value)); }

    /// 0 of what is no number that a tag has in earnest.
    static std::int32_t numberOf(std::string_view text) {
        std::int32_t value = 0;
        const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
        return error == std::errc() && value > 0 ? value : 0;
    }

    /// "3/12", or the count by itself under one of two other names.
    void place(Value both, Value count, Value otherCount, std::int32_t& place,
               std::int32_t& placeCount) const {
        const std::string_view whole = text(both);
        place = numberOf(whole);
        if (const std::size_t slash = whole.find('/'); slash != std::string_view::npos)
            placeCount = numberOf(whole.substr(slash + 1));
        if (placeCount == 0) placeCount = number(count);
        if (placeCount == 0) placeCount = number(otherCount);
    }

  private:
    std::array<std::string, valueNames.size()> m_texts;
};

void addRating(SoundFacts& facts, std::string_view text) {
    if (facts.rating == 0) facts.rating = ratingOfText(text);
}

/// FMPS knows but one scale.
void addPart(SoundFacts& facts, std::string_view text) {
    if (facts.rating == 0) facts.rating = ratingOfPart(text);
}

std::int32_t sizeOf(unsigned int count) { return static_cast<std::int32_t>(count); }

/// Whether a key is of that name, whatever stands before it: "----:com.apple.iTunes:FMPS_Rating".
bool endsWith(const TagLib::String& key, std::string_view lowerCaseEnd) {
    const std::string text = key.to8Bit(true);
    return text.size() >= lowerCaseEnd.size() &&
           std::equal(lowerCaseEnd.begin(), lowerCaseEnd.end(),
                      text.end() - static_cast<std::ptrdiff_t>(lowerCaseEnd.size()),
                      [](char a, char b) { return a == asciiLower(b); });
}

} // namespace

void addProperties(SoundFacts& facts, const TagLib::AudioProperties& properties) {
    facts.duration = std::max(properties.lengthInMilliseconds(), 0);
    facts.bitRate = std::max(properties.bitrate(), 0);
    facts.sampleRate = std::max(properties.sampleRate(), 0);
}

void addValues(SoundFacts& facts, const TagLib::PropertyMap& map) {
    Values values(map);
    facts.name = values.take(Value::title);
    facts.artist = values.take(Value::artist);
    facts.albumArtist = values.take(Value::albumArtist);
    facts.album = values.take(Value::album);
    facts.genre = values.take(Value::genre);
    facts.composer = values.take(Value::composer);
    facts.comment = values.take(Value::comment);
    facts.year = values.number(Value::date);
    facts.beatsPerMinute = values.number(Value::beats);
    facts.compilation = values.number(Value::compilation) == 1;
    values.place(Value::track, Value::trackTotal, Value::totalTracks, facts.trackNumber, facts.trackCount);
    values.place(Value::disc, Value::discTotal, Value::totalDiscs, facts.discNumber, facts.discCount);
    addPart(facts, values.text(Value::fmpsRating));
    addRating(facts, values.text(Value::rating));
    facts.playCount = values.number(Value::playCount);
}

void addOwn(SoundFacts& facts, const TagLib::ID3v2::Tag* tag) {
    if (tag == nullptr) return;
    facts.artworkCount += sizeOf(tag->frameList("APIC").size());
    const TagLib::ID3v2::FrameList& frames = tag->frameList("POPM");
    for (const TagLib::ID3v2::Frame* const frame : frames) {
        const auto* const popularity = dynamic_cast<const TagLib::ID3v2::PopularimeterFrame*>(frame);
        if (popularity == nullptr) continue;
        if (facts.rating == 0) facts.rating = ratingOfPopularity(popularity->rating());
        // Read with its sign, a count beyond every listener's years is below 0.
        facts.playCount = std::max(facts.playCount, static_cast<std::int32_t>(popularity->counter()));
    }
}

void addOwn(SoundFacts& facts, const TagLib::APE::Tag* tag) {
    if (tag == nullptr) return;
    for (const auto& item : tag->itemListMap())
        if (item.first.upper().startsWith("COVER ART (")) ++facts.artworkCount;
}

void addOwn(SoundFacts& facts, const TagLib::ASF::Tag* tag) {
    if (tag == nullptr) return;
    for (const auto& [key, attributes] : tag->attributeListMap()) {
        if (key == "WM/Picture") facts.artworkCount += sizeOf(attributes.size());
        if (key == "WM/IsCompilation" && !attributes.isEmpty())
            facts.compilation |= Values::numberOf(attributes.front().toString().to8Bit(true)) == 1;
        if (key == "FMPS/Rating" && !attributes.isEmpty())
            addPart(facts, attributes.front().toString().to8Bit(true));
    }
}

void addOwn(SoundFacts& facts, const TagLib::MP4::Tag* tag) {
    if (tag == nullptr) return;
    for (const auto& [key, item] : tag->itemMap()) {
        if (key == "covr") facts.artworkCount += sizeOf(item.toCoverArtList().size());
        if (endsWith(key, ":fmps_rating")) addPart(facts, item.toStringList().toString().to8Bit(true));
    }
}

void addOwn(SoundFacts& facts, TagLib::Ogg::XiphComment* tag) {
    if (tag != nullptr) facts.artworkCount += sizeOf(tag->pictureList().size());
}

} // namespace songsweep
