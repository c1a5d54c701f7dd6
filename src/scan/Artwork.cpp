// SPDX-License-Identifier: MIT
#include "scan/Artwork.h"

#include "platform/ExceptionReason.h"
#include "scan/SoundFormat.h"
#include "scan/SoundStream.h"

#include <taglib/aifffile.h>
#include <taglib/apefile.h>
#include <taglib/apetag.h>
#include <taglib/asffile.h>
#include <taglib/attachedpictureframe.h>
#include <taglib/flacfile.h>
#include <taglib/flacpicture.h>
#include <taglib/id3v2framefactory.h>
#include <taglib/id3v2tag.h>
#include <taglib/mp4file.h>
#include <taglib/mpcfile.h>
#include <taglib/mpegfile.h>
#include <taglib/oggflacfile.h>
#include <taglib/opusfile.h>
#include <taglib/speexfile.h>
#include <taglib/vorbisfile.h>
#include <taglib/wavfile.h>
#include <taglib/wavpackfile.h>
#include <taglib/xiphcomment.h>

namespace songsweep {

namespace {

using TagLib::ByteVector;

/// The front cover of some pictures, or the first of them.
class Choice {
  public:
    void offer(const ByteVector& picture, bool isFrontCover) {
        if (m_hasFrontCover || (!m_picture.isEmpty() && !isFrontCover)) return;
        m_picture = picture;
        m_hasFrontCover = isFrontCover;
    }
    const ByteVector& picture() const { return m_picture; }

  private:
    ByteVector m_picture;
    bool m_hasFrontCover = false;
};

void offer(Choice& choice, const TagLib::ID3v2::Tag* tag) {
    using Frame = TagLib::ID3v2::AttachedPictureFrame;
    if (tag == nullptr) return;
    for (const TagLib::ID3v2::Frame* const each : tag->frameList("APIC"))
        if (const auto* const frame = dynamic_cast<const Frame*>(each))
            choice.offer(frame->picture(), frame->type() == Frame::FrontCover);
}

void offer(Choice& choice, const TagLib::List<TagLib::FLAC::Picture*>& pictures) {
    for (const TagLib::FLAC::Picture* const each : pictures)
        choice.offer(each->data(), each->type() == TagLib::FLAC::Picture::FrontCover);
}

void offer(Choice& choice, TagLib::Ogg::XiphComment* tag) {
    if (tag != nullptr) offer(choice, tag->pictureList());
}

/// Before the picture stands its name.
void offer(Choice& choice, const TagLib::APE::Tag* tag) {
    if (tag == nullptr) return;
    for (const auto& [key, item] : tag->itemListMap()) {
        const TagLib::String name = key.upper();
        if (!name.startsWith("COVER ART (")) continue;
        const ByteVector bytes = item.binaryData();
        if (const int end = bytes.find('\0'); end >= 0)
            choice.offer(bytes.mid(static_cast<unsigned int>(end) + 1), name == "COVER ART (FRONT)");
    }
}

void offer(Choice& choice, const TagLib::ASF::Tag* tag) {
    if (tag == nullptr || !tag->attributeListMap().contains("WM/Picture")) return;
    for (const TagLib::ASF::Attribute& each : tag->attributeListMap()["WM/Picture"]) {
        const TagLib::ASF::Picture picture = each.toPicture();
        choice.offer(picture.picture(), picture.type() == TagLib::ASF::Picture::FrontCover);
    }
}

void offer(Choice& choice, const TagLib::MP4::Tag* tag) {
    if (tag == nullptr || !tag->itemMap().contains("covr")) return;
    for (const TagLib::MP4::CoverArt& each : tag->itemMap()["covr"].toCoverArtList())
        choice.offer(each.data(), true);
}

void readMpeg(Choice& choice, SoundStream& stream) {
    TagLib::MPEG::File file(&stream, TagLib::ID3v2::FrameFactory::instance(), false);
    if (file.hasID3v2Tag()) offer(choice, file.ID3v2Tag());
    if (file.hasAPETag()) offer(choice, file.APETag());
}

void readFlac(Choice& choice, SoundStream& stream) {
    TagLib::FLAC::File file(&stream, TagLib::ID3v2::FrameFactory::instance(), false);
    offer(choice, file.pictureList());
    if (file.hasXiphComment()) offer(choice, file.xiphComment());
    if (file.hasID3v2Tag()) offer(choice, file.ID3v2Tag());
}

template <class File>
void readOwnTag(Choice& choice, SoundStream& stream) {
    File file(&stream, false);
    offer(choice, file.tag());
}

template <class File>
void readApeTag(Choice& choice, SoundStream& stream) {
    File file(&stream, false);
    if (file.hasAPETag()) offer(choice, file.APETag());
}

void readOgg(Choice& choice, SoundStream& stream) {
    namespace Ogg = TagLib::Ogg;
    if (Ogg::Opus::File::isSupported(&stream)) return readOwnTag<Ogg::Opus::File>(choice, stream);
    if (Ogg::Speex::File::isSupported(&stream)) return readOwnTag<Ogg::Speex::File>(choice, stream);
    if (Ogg::FLAC::File::isSupported(&stream)) return readOwnTag<Ogg::FLAC::File>(choice, stream);
    readOwnTag<Ogg::Vorbis::File>(choice, stream);
}

void readWav(Choice& choice, SoundStream& stream) {
    TagLib::RIFF::WAV::File file(&stream, false);
    if (file.hasID3v2Tag()) offer(choice, file.ID3v2Tag());
}

void readFormat(Choice& choice, SoundStream& stream, SoundFormat format) {
    switch (format) {
    case SoundFormat::aiff:
        return readOwnTag<TagLib::RIFF::AIFF::File>(choice, stream);
    case SoundFormat::ape:
        return readApeTag<TagLib::APE::File>(choice, stream);
    case SoundFormat::flac:
        return readFlac(choice, stream);
    case SoundFormat::mp4:
        return readOwnTag<TagLib::MP4::File>(choice, stream);
    case SoundFormat::mpeg:
        return readMpeg(choice, stream);
    case SoundFormat::musepack:
        return readApeTag<TagLib::MPC::File>(choice, stream);
    case SoundFormat::ogg:
        return readOgg(choice, stream);
    case SoundFormat::wav:
        return readWav(choice, stream);
    case SoundFormat::wavPack:
        return readApeTag<TagLib::WavPack::File>(choice, stream);
    case SoundFormat::wma:
        return readOwnTag<TagLib::ASF::File>(choice, stream);
    }
}

} // namespace

Result<std::string> artworkOf(const std::string& path) {
    const std::optional<SoundFormat> format = soundFormatOf(path);
    if (!format) return Error{Error::Code::notSupported, path + " is no sound file by its name"};
    try {
        SoundStream stream;
        if (const Result<void> opened = SoundStream::open(path, stream); !opened) return opened.error();
        Choice choice;
        readFormat(choice, stream, *format);
        if (stream.error()) return *stream.error();
        return std::string(choice.picture().data(), choice.picture().size());
    } catch (...) {
        return Error{Error::Code::invalid, "cannot make sense of " + path + ": " + exceptionReason()};
    }
}

} // namespace songsweep
