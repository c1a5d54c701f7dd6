// SPDX-License-Identifier: MIT
//
// A loop that opens each file of a folder by TagLib and reads its properties at its fastest setting, and
// keeps nothing: the floor that scan-benchmark compares with, in a program of its own since it has only
// TagLib and the C library's allocator.
//
//   bare-tags FOLDER

#include <taglib/fileref.h>
#include <taglib/tag.h>

#include <filesystem>

int main(int argumentCount, char** arguments) {
    if (argumentCount != 2) return 1;
    long length = 0;
    for (const auto& entry : std::filesystem::recursive_directory_iterator(arguments[1])) {
        if (!entry.is_regular_file()) continue;
        const TagLib::FileRef read(entry.path().c_str(), true, TagLib::AudioProperties::Fast);
        if (!read.isNull() && read.audioProperties() != nullptr)
            length += read.audioProperties()->lengthInMilliseconds() + long(read.tag()->title().size());
    }
    return length == 0 ? 1 : 0;
}
