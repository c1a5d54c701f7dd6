// SPDX-License-Identifier: MIT
#include "scan/Artwork.h"

#include "sample-library/SoundSample.h"
#include "support/TemporaryFolder.h"

#include <gtest/gtest.h>
#include <taglib/apetag.h>
#include <taglib/attachedpictureframe.h>
#include <taglib/id3v2tag.h>
#include <taglib/mpegfile.h>

#include <string>

namespace songsweep::test {
namespace {

using sample::SoundKind;

class ArtworkTest : public ::testing::Test {
  protected:
    std::string write(SoundKind kind, int pictures) {
        const std::string path = m_folder.path() + "/artwork." + std::string(sample::endingOf(kind));
        EXPECT_TRUE(sample::writeSound(path, {.kind = kind, .pictures = pictures}));
        return path;
    }

    TemporaryFolder m_folder;
};

TEST_F(ArtworkTest, IsFoundInEveryFormatThatCarriesPictures) {
    for (const SoundKind kind :
         {SoundKind::aac, SoundKind::alac, SoundKind::flac, SoundKind::mp3, SoundKind::oggFlac,
          SoundKind::opus, SoundKind::speex, SoundKind::vorbis, SoundKind::wav, SoundKind::wma}) {
        SCOPED_TRACE(static_cast<int>(kind));
        const Result<std::string> artwork = artworkOf(write(kind, 2));
        ASSERT_TRUE(artwork);
        EXPECT_TRUE(artwork.value().starts_with("\xFF\xD8\xFF picture ")) << artwork.value().substr(0, 20);
        EXPECT_EQ(artwork.value().size(), 1012U);
        const Result<std::string> none = artworkOf(write(kind, 0));
        ASSERT_TRUE(none);
        EXPECT_EQ(none.value(), "");
    }
}

TEST_F(ArtworkTest, IsTheFrontCoverOfSeveral) {
    using Frame = TagLib::ID3v2::AttachedPictureFrame;
    const std::string path = write(SoundKind::mp3, 0);
    {
        TagLib::MPEG::File file(path.c_str());
        for (const auto& [type, bytes] :
             {std::pair{Frame::BackCover, "back"}, {Frame::FrontCover, "front"}}) {
            auto* const frame = new Frame; // the tag's from then on
            frame->setType(type);
            frame->setPicture(TagLib::ByteVector(bytes));
            file.ID3v2Tag(true)->addFrame(frame);
        }
        ASSERT_TRUE(file.save());
    }
    const Result<std::string> artwork = artworkOf(path);
    ASSERT_TRUE(artwork);
    EXPECT_EQ(artwork.value(), "front");
}

TEST_F(ArtworkTest, OfAnApeTagStandsBehindItsName) {
    const std::string path = write(SoundKind::mp3, 0);
    {
        TagLib::MPEG::File file(path.c_str());
        file.APETag(true)->setItem(
            "COVER ART (FRONT)",
            TagLib::APE::Item("COVER ART (FRONT)", TagLib::ByteVector("cover.png\0picture", 17), true));
        ASSERT_TRUE(file.save());
    }
    const Result<std::string> artwork = artworkOf(path);
    ASSERT_TRUE(artwork);
    EXPECT_EQ(artwork.value(), "picture");
}

TEST_F(ArtworkTest, WhatIsNoSoundFileHasAReasonForNone) {
    EXPECT_FALSE(artworkOf(m_folder.path() + "/gone.mp3"));
    EXPECT_FALSE(artworkOf(m_folder.write("text.txt", "text")));
    const Result<std::string> noise = artworkOf(m_folder.write("noise.flac", "noise"));
    EXPECT_TRUE(!noise || noise.value().empty());
}

} // namespace
} // namespace songsweep::test
