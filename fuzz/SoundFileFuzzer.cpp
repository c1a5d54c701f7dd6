// SPDX-License-Identifier: MIT
//
// Any bytes as a file of music, the first one choosing its ending: its tags are read or it is refused, and
// the library that is written of them is one, with that track in it.
#include "Check.h"
#include "libraryfile/LibraryDocument.h"
#include "libraryfile/WellFormedness.h"
#include "scan/LibraryWriter.h"
#include "scan/SoundFile.h"

#include <array>

namespace {

using namespace songsweep;

constexpr std::array endings = {"mp3", "flac", "m4a", "ogg", "opus", "spx",
                                "wav", "aiff", "wma", "ape", "mpc",  "wv"};

void checkLibrary(const SoundFacts& facts, const std::string& name) {
    const std::string path = fuzz::scratchFolder() + "/library.xml";
    Result<NewFile> file = NewFile::createFor(path);
    if (!file) return;
    LibraryWriter writer(std::move(file).value(), fuzz::scratchFolder());
    writer.begin(0);
    KnownFile track;
    track.path = name;
    track.trackId = 1;
    track.persistentId = 1;
    writer.track(track, facts);
    fuzz::check(writer.finish({track}, {}, NewFile::Safety::asItComes).hasValue(), "no library was written");
    const Result<LibraryFile> written = LibraryFile::open(path);
    fuzz::check(written && checkWellFormedness(written.value()), "a library is not well formed");
    auto library = LibraryDocument::open(path);
    fuzz::check(library && library.value()->trackCount() == 1, "a library has not its track");
    const auto fields = library.value()->fields(0);
    fuzz::check(fields && fields.value()->text(LibraryKey::name) == facts.name,
                "a name reads back as another");
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    if (size == 0) return 0;
    const std::string name = std::string("Artist - 01 Song.") + endings[data[0] % endings.size()];
    const std::string path = fuzz::scratchFile(name, fuzz::textOf(data + 1, size - 1));
    const Result<SoundFacts> facts = readSoundFile(path, name);
    if (facts) {
        checkLibrary(facts.value(), name);
    } else {
        fuzz::check(!facts.error().message.empty(), "an error without a reason");
    }
    fuzz::clearScratchFolder();
    return 0;
}
