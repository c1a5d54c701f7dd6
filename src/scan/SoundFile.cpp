// SPDX-License-Identifier: MIT
#include "scan/SoundFile.h"

#include "libraryfile/FileNames.h"
#include "platform/ExceptionReason.h"
#include "scan/CleanText.h"
#include "scan/FileTitle.h"
#include "scan/SoundFormat.h"
#include "scan/SoundStream.h"
#include "scan/SoundTags.h"

#include <taglib/aifffile.h>
#include <taglib/apefile.h>
#include <taglib/asffile.h>
#include <taglib/flacfile.h>
#include <taglib/flacpicture.h>
#include <taglib/id3v2framefactory.h>
#include <taglib/mp4file.h>
#include <taglib/mpcfile.h>
#include <taglib/mpegfile.h>
#include <taglib/oggflacfile.h>
#include <taglib/opusfile.h>
#include <taglib/speexfile.h>
#include <taglib/vorbisfile.h>
#include <taglib/wavfile.h>
#include <taglib/wavpackfile.h>

namespace songsweep {

namespace {

constexpr auto fastest = TagLib::AudioProperties::Fast;

/// What every format has in common. Whether sound was found.
bool addCommon(SoundFacts& facts, TagLib::File& file) {
    if (!file.isValid() || file.audioProperties() == nullptr) return false;
    addProperties(facts, *file.audioProperties());
    if (facts.sampleRate == 0) return false;
    addValues(facts, file.properties());
    return true;
}

bool readMpeg(SoundFacts& facts, SoundStream& stream) {
    TagLib::MPEG::File file(&stream, TagLib::ID3v2::FrameFactory::instance(), true, fastest);
    facts.kind = "MPEG audio file";
    if (!addCommon(facts, file)) return false;
    if (file.hasID3v2Tag()) addOwn(facts, file.ID3v2Tag());
    if (file.hasAPETag()) addOwn(facts, file.APETag());
    return true;
}

bool readMp4(SoundFacts& facts, SoundStream& stream) {
    TagLib::MP4::File file(&stream, true, fastest);
    if (!addCommon(facts, file)) return false;
    const bool isLossless = file.audioProperties()->codec() == TagLib::MP4::Properties::ALAC;
    const bool isProtected = file.audioProperties()->isEncrypted();
    facts.kind = isLossless    ? "Apple Lossless audio file"
                 : isProtected ? "Protected AAC audio file"
                               : "AAC audio file";
    addOwn(facts, file.tag());
    return true;
}

bool readFlac(SoundFacts& facts, SoundStream& stream) {
    TagLib::FLAC::File file(&stream, TagLib::ID3v2::FrameFactory::instance(), true, fastest);
    facts.kind = "FLAC audio file";
    if (!addCommon(facts, file)) return false;
    facts.artworkCount += static_cast<std::int32_t>(file.pictureList().size());
    if (file.hasXiphComment()) addOwn(facts, file.xiphComment());
    if (file.hasID3v2Tag()) addOwn(facts, file.ID3v2Tag());
    return true;
}

template <class File>
bool readOggAs(SoundFacts& facts, SoundStream& stream, const char* kind) {
    File file(&stream, true, fastest);
    facts.kind = kind;
    if (!addCommon(facts, file)) return false;
    addOwn(facts, file.tag());
    return true;
}

/// One ending stands for several codecs.
bool readOgg(SoundFacts& facts, SoundStream& stream) {
    namespace Ogg = TagLib::Ogg;
    if (Ogg::Opus::File::isSupported(&stream))
        return readOggAs<Ogg::Opus::File>(facts, stream, "Opus audio file");
    if (Ogg::Speex::File::isSupported(&stream))
        return readOggAs<Ogg::Speex::File>(facts, stream, "Speex audio file");
    if (Ogg::FLAC::File::isSupported(&stream))
        return readOggAs<Ogg::FLAC::File>(facts, stream, "Ogg FLAC audio file");
    return readOggAs<Ogg::Vorbis::File>(facts, stream, "Ogg Vorbis audio file");
}

template <class File>
bool readWithApeTag(SoundFacts& facts, SoundStream& stream, const char* kind) {
    File file(&stream, true, fastest);
    facts.kind = kind;
    if (!addCommon(facts, file)) return false;
    if (file.hasAPETag()) addOwn(facts, file.APETag());
    return true;
}

bool readWav(SoundFacts& facts, SoundStream& stream) {
    TagLib::RIFF::WAV::File file(&stream, true, fastest);
    facts.kind = "WAV audio file";
    if (!addCommon(facts, file)) return false;
    if (file.hasID3v2Tag()) addOwn(facts, file.ID3v2Tag());
    return true;
}

bool readAiff(SoundFacts& facts, SoundStream& stream) {
    TagLib::RIFF::AIFF::File file(&stream, true, fastest);
    facts.kind = "AIFF audio file";
    if (!addCommon(facts, file)) return false;
    if (file.hasID3v2Tag()) addOwn(facts, file.tag());
    return true;
}

bool readWma(SoundFacts& facts, SoundStream& stream) {
    TagLib::ASF::File file(&stream, true, fastest);
    facts.kind = "Windows Media audio file";
    if (!addCommon(facts, file)) return false;
    addOwn(facts, file.tag());
    return true;
}

bool readFormat(SoundFacts& facts, SoundStream& stream, SoundFormat format) {
    switch (format) {
    case SoundFormat::aiff:
        return readAiff(facts, stream);
    case SoundFormat::ape:
        return readWithApeTag<TagLib::APE::File>(facts, stream, "APE audio file");
    case SoundFormat::flac:
        return readFlac(facts, stream);
    case SoundFormat::mp4:
        return readMp4(facts, stream);
    case SoundFormat::mpeg:
        return readMpeg(facts, stream);
    case SoundFormat::musepack:
        return readWithApeTag<TagLib::MPC::File>(facts, stream, "Musepack audio file");
    case SoundFormat::ogg:
        return readOgg(facts, stream);
    case SoundFormat::wav:
        return readWav(facts, stream);
    case SoundFormat::wavPack:
        return readWithApeTag<TagLib::WavPack::File>(facts, stream, "WavPack audio file");
    case SoundFormat::wma:
        return readWma(facts, stream);
    }
    return false;
}

/// To a reader of the library, a text of blanks is none.
bool isBlank(const std::string& text) { return text.find_first_not_of(" \t\r\n") == std::string::npos; }

/// "Artist - Title" is taken apart only where the tags know neither. Where the name, too, says nothing, it is
/// the title with its ending.
void nameAfterFile(SoundFacts& facts, const std::string& path) {
    if (!isBlank(facts.name)) return;
    const std::string title = cleanText(titleOfFile(path, facts.trackNumber));
    const FileTitle parts = facts.artist.empty() ? splitTitle(title) : FileTitle{facts.artist, title};
    facts.artist = parts.artist;
    facts.name = isBlank(parts.name) ? cleanText(nameOf(path)) : parts.name;
}

} // namespace

Result<SoundFacts> readSoundFile(const std::string& path, const std::string& namedPath) {
    const std::optional<SoundFormat> format = soundFormatOf(namedPath);
    if (!format) return Error{Error::Code::notSupported, path + " is no sound file by its name"};
    try {
        SoundStream stream;
        if (const Result<void> opened = SoundStream::open(path, stream); !opened) return opened.error();
        SoundFacts facts;
        facts.size = stream.size();
        facts.modificationNanoseconds = stream.modificationNanoseconds();
        const bool hasSound = readFormat(facts, stream, *format);
        facts.soundHash = stream.soundHash();
        if (stream.error()) return *stream.error();
        if (!hasSound) return Error{Error::Code::invalid, "no sound was found in " + path};
        nameAfterFile(facts, namedPath);
        return facts;
    } catch (...) {
        return Error{Error::Code::invalid, "cannot make sense of " + path + ": " + exceptionReason()};
    }
}

} // namespace songsweep
