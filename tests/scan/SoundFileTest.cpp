// SPDX-License-Identifier: MIT
#include "scan/SoundFile.h"

#include "sample-library/SoundSample.h"
#include "support/TemporaryFolder.h"

#include <gtest/gtest.h>
#include <sys/stat.h>
#include <taglib/asffile.h>
#include <taglib/id3v2tag.h>
#include <taglib/mp4file.h>
#include <taglib/mpegfile.h>
#include <taglib/popularimeterframe.h>
#include <unistd.h>

#include <string>

namespace songsweep::test {

namespace {

using sample::SoundKind;
using sample::SoundSample;

struct KindWords {
    SoundKind kind;
    const char* words;
    bool hasPictures;
};

const std::vector<KindWords> allKinds = {
    {SoundKind::aac, "AAC audio file", true},
    {SoundKind::aiff, "AIFF audio file", false},
    {SoundKind::alac, "Apple Lossless audio file", true},
    {SoundKind::ape, "APE audio file", false},
    {SoundKind::flac, "FLAC audio file", true},
    {SoundKind::mp3, "MPEG audio file", true},
    {SoundKind::musepack, "Musepack audio file", true},
    {SoundKind::oggFlac, "Ogg FLAC audio file", true},
    {SoundKind::opus, "Opus audio file", true},
    {SoundKind::speex, "Speex audio file", true},
    {SoundKind::vorbis, "Ogg Vorbis audio file", true},
    {SoundKind::wav, "WAV audio file", true},
    {SoundKind::wavPack, "WavPack audio file", false},
    {SoundKind::wma, "Windows Media audio file", true},
};

class SoundFileTest : public ::testing::Test {
  protected:
    std::string write(const std::string& name, const SoundSample& sample) {
        const std::string path = m_folder.path() + "/" + name;
        EXPECT_TRUE(sample::writeSound(path, sample)) << name;
        return path;
    }
    SoundFacts read(const std::string& name, const SoundSample& sample) {
        const Result<SoundFacts> facts = readSoundFile(write(name, sample), name);
        EXPECT_TRUE(facts) << name << ": " << (facts ? "" : facts.error().message);
        return facts ? facts.value() : SoundFacts();
    }
    static std::string nameOf(SoundKind kind) { return "a." + std::string(sample::endingOf(kind)); }

    TemporaryFolder m_folder;
};

TEST_F(SoundFileTest, ReadsTheTextsOfEveryFormat) {
    for (const KindWords& each : allKinds) {
        SCOPED_TRACE(each.words);
        const SoundFacts facts = read(nameOf(each.kind), {.kind = each.kind,
                                                          .tags = {{"TITLE", "Ágætis byrjun"},
                                                                   {"ARTIST", "Sigur Rós"},
                                                                   {"ALBUM", "a & b < c"},
                                                                   {"GENRE", "Rock"},
                                                                   {"COMMENT", "x"},
                                                                   {"DATE", "1999"},
                                                                   {"TRACKNUMBER", "9"}}});
        EXPECT_EQ(facts.name, "Ágætis byrjun");
        EXPECT_EQ(facts.artist, "Sigur Rós");
        EXPECT_EQ(facts.album, "a & b < c");
        EXPECT_EQ(facts.genre, "Rock");
        EXPECT_EQ(facts.comment, "x");
        EXPECT_EQ(facts.year, 1999);
        EXPECT_EQ(facts.trackNumber, 9);
        EXPECT_EQ(facts.kind, each.words);
    }
}

TEST_F(SoundFileTest, ReadsTheSoundOfEveryFormat) {
    for (const KindWords& each : allKinds) {
        SCOPED_TRACE(each.words);
        const SoundFacts facts = read(nameOf(each.kind), {.kind = each.kind, .seconds = 200});
        EXPECT_NEAR(facts.duration, 200'000, 4000);
        EXPECT_GT(facts.sampleRate, 0);
        EXPECT_NE(facts.soundHash, 0U);
    }
}

TEST_F(SoundFileTest, CountsPictures) {
    for (const KindWords& each : allKinds) {
        if (!each.hasPictures) continue;
        SCOPED_TRACE(each.words);
        EXPECT_EQ(read(nameOf(each.kind), {.kind = each.kind, .pictures = 2}).artworkCount, 2);
        EXPECT_EQ(read(nameOf(each.kind), {.kind = each.kind}).artworkCount, 0);
    }
}

TEST_F(SoundFileTest, ReadsNumbersAndTheirCounts) {
    for (const SoundKind kind : {SoundKind::mp3, SoundKind::aac, SoundKind::flac, SoundKind::vorbis}) {
        SCOPED_TRACE(sample::endingOf(kind));
        const SoundFacts facts = read(nameOf(kind), {.kind = kind,
                                                     .tags = {{"TRACKNUMBER", "3/12"},
                                                              {"DISCNUMBER", "1/2"},
                                                              {"BPM", "98"},
                                                              {"COMPILATION", "1"},
                                                              {"ALBUMARTIST", "Various"},
                                                              {"COMPOSER", "Bach"}}});
        EXPECT_EQ(facts.trackNumber, 3);
        EXPECT_EQ(facts.trackCount, 12);
        EXPECT_EQ(facts.discNumber, 1);
        EXPECT_EQ(facts.discCount, 2);
        EXPECT_EQ(facts.beatsPerMinute, 98);
        EXPECT_TRUE(facts.compilation);
        EXPECT_EQ(facts.albumArtist, "Various");
        EXPECT_EQ(facts.composer, "Bach");
    }
}

TEST_F(SoundFileTest, ReadsTheBitRateOfTheHeaders) {
    EXPECT_NEAR(read("a.mp3", {.kilobits = 256}).bitRate, 256, 3);
    EXPECT_NEAR(read("a.m4a", {.kind = SoundKind::aac, .kilobits = 256}).bitRate, 256, 1);
}

TEST_F(SoundFileTest, ReadsRatingsOfTags) {
    EXPECT_EQ(read("a.flac", {.kind = SoundKind::flac, .tags = {{"RATING", "80"}}}).rating, 80);
    EXPECT_EQ(read("a.ogg", {.kind = SoundKind::vorbis, .tags = {{"FMPS_RATING", "0.6"}}}).rating, 60);
    EXPECT_EQ(read("a.mp3", {.tags = {{"FMPS_RATING", "0.4"}}}).rating, 40);
    EXPECT_EQ(read("a.flac", {.kind = SoundKind::flac, .tags = {{"FMPS_PLAYCOUNT", "7"}}}).playCount, 7);
}

TEST_F(SoundFileTest, ReadsThePopularityOfAnMp3) {
    const std::string path = write("a.mp3", {});
    TagLib::MPEG::File file(path.c_str());
    auto* const frame = new TagLib::ID3v2::PopularimeterFrame; // the tag's from then on
    frame->setRating(196);
    frame->setCounter(42);
    file.ID3v2Tag(true)->addFrame(frame);
    ASSERT_TRUE(file.save());
    const Result<SoundFacts> facts = readSoundFile(path, "a.mp3");
    ASSERT_TRUE(facts);
    EXPECT_EQ(facts.value().rating, 80);
    EXPECT_EQ(facts.value().playCount, 42);
}

TEST_F(SoundFileTest, ReadsTheFreeFormRatingOfAnMp4) {
    const std::string path = write("a.m4a", {.kind = SoundKind::aac});
    TagLib::MP4::File file(path.c_str());
    file.tag()->setItem("----:com.apple.iTunes:FMPS_Rating", TagLib::StringList("0.2"));
    ASSERT_TRUE(file.save());
    const Result<SoundFacts> facts = readSoundFile(path, "a.m4a");
    ASSERT_TRUE(facts);
    EXPECT_EQ(facts.value().rating, 20);
}

TEST_F(SoundFileTest, ReadsWhatAWmaKeepsUnderNamesOfItsOwn) {
    const std::string path = write("a.wma", {.kind = SoundKind::wma});
    TagLib::ASF::File file(path.c_str());
    file.tag()->setAttribute("WM/IsCompilation", TagLib::String("1"));
    file.tag()->setAttribute("FMPS/Rating", TagLib::String("0.4"));
    ASSERT_TRUE(file.save());
    const Result<SoundFacts> facts = readSoundFile(path, "a.wma");
    ASSERT_TRUE(facts);
    EXPECT_TRUE(facts.value().compilation);
    EXPECT_EQ(facts.value().rating, 40);
}

TEST_F(SoundFileTest, NamesAFileWithoutTagsAfterItself) {
    const std::string path = write("a.mp3", {});
    const Result<SoundFacts> facts = readSoundFile(path, "x/04 Sigur Rós - Ný batterí.mp3");
    ASSERT_TRUE(facts);
    EXPECT_EQ(facts.value().artist, "Sigur Rós");
    EXPECT_EQ(facts.value().name, "Ný batterí");
}

TEST_F(SoundFileTest, LeavesTheArtistOfTheTagsAlone) {
    const std::string path = write("a.mp3", {.tags = {{"ARTIST", "Björk"}}});
    const Result<SoundFacts> facts = readSoundFile(path, "Sigur Rós - Ný batterí.mp3");
    ASSERT_TRUE(facts);
    EXPECT_EQ(facts.value().artist, "Björk");
    EXPECT_EQ(facts.value().name, "Sigur Rós - Ný batterí");
}

TEST_F(SoundFileTest, KeepsTextsThatALibraryCanHold) {
    const SoundFacts facts = read("a.mp3", {.tags = {{"TITLE", "a\x01\x02"
                                                               "b"}}});
    EXPECT_EQ(facts.name, "ab");
    const Result<SoundFacts> unnamed = readSoundFile(write("b.mp3", {}), "caf\xE9.mp3");
    ASSERT_TRUE(unnamed);
    EXPECT_EQ(unnamed.value().name, "caf\xEF\xBF\xBD");
}

TEST_F(SoundFileTest, HashesTheSoundAndNotTheTags) {
    const std::string path = write("a.mp3", {});
    const Result<SoundFacts> before = readSoundFile(path, "a.mp3");
    const SoundFacts other = read("b.mp3", {.seconds = 90});
    ASSERT_TRUE(before);
    EXPECT_NE(before.value().soundHash, other.soundHash);
    EXPECT_EQ(read("c.mp3", {}).soundHash, before.value().soundHash);
}

TEST_F(SoundFileTest, SaysWhyAFileCannotBeRead) {
    const Result<SoundFacts> missing = readSoundFile(m_folder.path() + "/none.mp3", "none.mp3");
    ASSERT_FALSE(missing);
    EXPECT_EQ(missing.error().code, Error::Code::notFound);
    const Result<SoundFacts> empty = readSoundFile(m_folder.write("empty.mp3", ""), "empty.mp3");
    ASSERT_FALSE(empty);
    EXPECT_EQ(empty.error().code, Error::Code::invalid);
    const Result<SoundFacts> text = readSoundFile(m_folder.write("text.flac", "no sound"), "text.flac");
    ASSERT_FALSE(text);
    EXPECT_NE(text.error().message.find("no sound was found"), std::string::npos);
}

TEST_F(SoundFileTest, DoesNotWaitForAPipe) {
    const std::string path = m_folder.path() + "/pipe.mp3";
    ASSERT_EQ(::mkfifo(path.c_str(), 0600), 0);
    EXPECT_FALSE(readSoundFile(path, "pipe.mp3"));
}

} // namespace

} // namespace songsweep::test
