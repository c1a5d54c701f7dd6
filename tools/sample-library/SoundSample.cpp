// SPDX-License-Identifier: MIT
#include "sample-library/SoundSample.h"

#include <taglib/apetag.h>
#include <taglib/asffile.h>
#include <taglib/attachedpictureframe.h>
#include <taglib/fileref.h>
#include <taglib/flacfile.h>
#include <taglib/id3v2tag.h>
#include <taglib/mp4file.h>
#include <taglib/mpcfile.h>
#include <taglib/mpegfile.h>
#include <taglib/tpropertymap.h>
#include <taglib/wavfile.h>
#include <taglib/xiphcomment.h>

#include <array>
#include <fstream>

namespace songsweep::sample {

namespace {

constexpr std::array<std::string_view, soundKinds> endings = {
    "m4a", "aiff", "m4a", "ape", "flac", "mp3", "mpc", "oga", "opus", "spx", "ogg", "wav", "wv", "wma"};

/// No picture that anybody could look at, but bytes in a picture's place.
TagLib::ByteVector pictureBytes(int number) {
    return TagLib::ByteVector("\xFF\xD8\xFF picture ") + TagLib::ByteVector(1000, static_cast<char>(number));
}

TagLib::FLAC::Picture* flacPicture(int number) {
    auto* const picture = new TagLib::FLAC::Picture; // the file's from then on
    picture->setMimeType("image/jpeg");
    picture->setData(pictureBytes(number));
    return picture;
}

void addPicture(TagLib::ID3v2::Tag& tag, int number) {
    auto* const frame = new TagLib::ID3v2::AttachedPictureFrame; // the tag's from then on
    frame->setMimeType("image/jpeg");
    frame->setPicture(pictureBytes(number));
    tag.addFrame(frame);
}

void addPicture(TagLib::MP4::Tag& tag, int number) {
    TagLib::MP4::CoverArtList covers = tag.item("covr").toCoverArtList();
    covers.append(TagLib::MP4::CoverArt(TagLib::MP4::CoverArt::JPEG, pictureBytes(number)));
    tag.setItem("covr", covers);
}

void addPicture(TagLib::ASF::Tag& tag, int number) {
    TagLib::ASF::Picture picture;
    picture.setMimeType("image/jpeg");
    picture.setPicture(pictureBytes(number));
    tag.addAttribute("WM/Picture", picture);
}

/// For the formats whose files carry pictures.
void addPictureTo(TagLib::File& file, int number) {
    if (auto* const mpeg = dynamic_cast<TagLib::MPEG::File*>(&file))
        addPicture(*mpeg->ID3v2Tag(true), number);
    if (auto* const flac = dynamic_cast<TagLib::FLAC::File*>(&file)) flac->addPicture(flacPicture(number));
    if (auto* const mp4 = dynamic_cast<TagLib::MP4::File*>(&file)) addPicture(*mp4->tag(), number);
    if (auto* const wma = dynamic_cast<TagLib::ASF::File*>(&file)) addPicture(*wma->tag(), number);
    if (auto* const wav = dynamic_cast<TagLib::RIFF::WAV::File*>(&file)) addPicture(*wav->ID3v2Tag(), number);
    if (auto* const xiph = dynamic_cast<TagLib::Ogg::XiphComment*>(file.tag()))
        xiph->addPicture(flacPicture(number));
    if (auto* const mpc = dynamic_cast<TagLib::MPC::File*>(&file))
        mpc->APETag(true)->setData(number == 0 ? "COVER ART (FRONT)" : "COVER ART (BACK)",
                                   pictureBytes(number));
}

} // namespace

std::string_view endingOf(SoundKind kind) { return endings.at(static_cast<std::size_t>(kind)); }

bool writeSound(const std::string& path, const SoundSample& sample) {
    const std::string bytes = bareSound(sample);
    std::ofstream file(path, std::ios::binary);
    file.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    file.close();
    if (!file.good()) return false;
    if (sample.tags.empty() && sample.pictures == 0) return true;
    TagLib::FileRef tagged(path.c_str(), false);
    if (tagged.isNull()) return false;
    TagLib::PropertyMap values;
    for (const auto& [key, value] : sample.tags)
        values.insert(key, TagLib::StringList(TagLib::String(value, TagLib::String::UTF8)));
    tagged.file()->setProperties(values);
    for (int i = 0; i < sample.pictures; ++i)
        addPictureTo(*tagged.file(), i);
    return tagged.save();
}

} // namespace songsweep::sample
