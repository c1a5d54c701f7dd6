// SPDX-License-Identifier: MIT
#pragma once

#include "scan/SoundFacts.h"

#include <taglib/tpropertymap.h>

namespace TagLib {
class AudioProperties;
namespace APE {
class Tag;
}
namespace ASF {
class Tag;
}
namespace ID3v2 {
class Tag;
}
namespace MP4 {
class Tag;
}
namespace Ogg {
class XiphComment;
}
} // namespace TagLib

namespace songsweep {

/// Parts of what TagLib knows of a file, put into the facts. Each adds to what the ones before it found.
/// Thread-safe for different files; a null tag says nothing.

/// Duration, bit rate and sample rate.
void addProperties(SoundFacts& facts, const TagLib::AudioProperties& properties);

/// The texts and numbers that tags of every format have.
void addValues(SoundFacts& facts, const TagLib::PropertyMap& values);

/// Pictures, ratings and play counts, which each format keeps in a way of its own.
void addOwn(SoundFacts& facts, const TagLib::ID3v2::Tag* tag);
void addOwn(SoundFacts& facts, const TagLib::APE::Tag* tag);
void addOwn(SoundFacts& facts, const TagLib::ASF::Tag* tag);
void addOwn(SoundFacts& facts, const TagLib::MP4::Tag* tag);
void addOwn(SoundFacts& facts, TagLib::Ogg::XiphComment* tag);

} // namespace songsweep
