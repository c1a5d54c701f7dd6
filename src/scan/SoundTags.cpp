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
#include <charconv>
#include <string>
#include <string_view>

namespace songsweep {

namespace {

/// The values of a tag by their names, as texts.
class Values {
  public:
    explicit Values(const TagLib::PropertyMap& map)
        : m_map(map) {}

    /// Of several, all, parted by semicolons.
    std::string text(const char* key) const {
        const auto found = m_map.find(key);
        if (found == m_map.end()) return {};
        return cleanText(found->second.toString("; ").to8Bit(true));
    }

    std::int32_t number(const char* key) const { return numberOf(text(key)); }

    /// 0 of what is no number that a tag has in earnest.
    static std::int32_t numberOf(std::string_view text) {
        std::int32_t value = 0;
        const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
        return error == std::errc() && value > 0 ? value : 0;
    }

    /// "3/12", or the count by itself under one of two other names.
    void place(const char* key, const char* count, const char* otherCount, std::int32_t& place,
               std::int32_t& placeCount) const {
        const std::string both = text(key);
        place = numberOf(both);
        if (const std::size_t slash = both.find('/'); slash != std::string::npos)
            placeCount = numberOf(std::string_view(both).substr(slash + 1));
        if (placeCount == 0) placeCount = number(count);
        if (placeCount == 0) placeCount = number(otherCount);
    }

  private:
    const TagLib::PropertyMap& m_map;
};

void addRating(SoundFacts& facts, std::string_view text) {
    if (facts.rating == 0) facts.rating = ratingOfText(text);
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
    const Values values(map);
    facts.name = values.text("TITLE");
    facts.artist = values.text("ARTIST");
    facts.albumArtist = values.text("ALBUMARTIST");
    facts.album = values.text("ALBUM");
    facts.genre = values.text("GENRE");
    facts.composer = values.text("COMPOSER");
    facts.comment = values.text("COMMENT");
    facts.year = values.number("DATE");
    facts.beatsPerMinute = values.number("BPM");
    facts.compilation = values.number("COMPILATION") == 1;
    values.place("TRACKNUMBER", "TRACKTOTAL", "TOTALTRACKS", facts.trackNumber, facts.trackCount);
    values.place("DISCNUMBER", "DISCTOTAL", "TOTALDISCS", facts.discNumber, facts.discCount);
    addRating(facts, values.text("FMPS_RATING"));
    addRating(facts, values.text("RATING"));
    facts.playCount = values.number("FMPS_PLAYCOUNT");
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
            addRating(facts, attributes.front().toString().to8Bit(true));
    }
}

void addOwn(SoundFacts& facts, const TagLib::MP4::Tag* tag) {
    if (tag == nullptr) return;
    for (const auto& [key, item] : tag->itemMap()) {
        if (key == "covr") facts.artworkCount += sizeOf(item.toCoverArtList().size());
        if (endsWith(key, ":fmps_rating")) addRating(facts, item.toStringList().toString().to8Bit(true));
    }
}

void addOwn(SoundFacts& facts, TagLib::Ogg::XiphComment* tag) {
    if (tag != nullptr) facts.artworkCount += sizeOf(tag->pictureList().size());
}

} // namespace songsweep
