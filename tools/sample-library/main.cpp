// SPDX-License-Identifier: MIT
#include "sample-library/BulkLibrary.h"
#include "sample-library/DesktopLibrary.h"
#include "sample-library/SoundFolder.h"

#include <CLI/CLI.hpp>

#include <filesystem>
#include <iostream>

namespace {

int report(const songsweep::Result<void>& result) {
    if (result) return 0;
    std::cerr << "songsweep-sample: " << result.error().message << '\n';
    return 1;
}

} // namespace

int main(int argumentCount, char** arguments) {
    CLI::App program("Makes sample libraries: one to try the program on, and large ones for measurements.");
    std::string folder;
    songsweep::sample::BulkOptions bulk;
    std::string soundFolder;
    int sounds = 1000;
    bool makesNoFiles = false;
    bool makesAllFiles = false;
    auto* files =
        program.add_option("--files", folder, "Make FOLDER/library.xml with tracks that players can open");
    auto* sound =
        program.add_option("--sound", soundFolder, "Make FOLDER with small sound files of every format");
    program.add_option("--sounds", sounds, "How many of them")->needs(sound)->check(CLI::Range(1, 5000000));
    auto* tracks = program.add_option("--tracks", bulk.tracks, "Make a library of this many tracks");
    auto* output = program.add_option("--output", bulk.file, "The library file of --tracks");
    program.add_option("--music", bulk.musicFolder, "Where its music lies (default: beside it, \"Music\")");
    program.add_option("--seed", bulk.seed, "The same number makes the same library");
    auto* none = program.add_flag("--no-files", makesNoFiles,
                                  "Make none of its files; otherwise nine of ten are there");
    program.add_flag("--all-files", makesAllFiles, "Make every one of its files")->excludes(none);
    tracks->check(CLI::Range(1, 5000000))->needs(output)->excludes(files)->excludes(sound);
    output->needs(tracks);
    program.require_option(1, 0);
    CLI11_PARSE(program, argumentCount, arguments);

    if (*sound) return report(songsweep::sample::makeSoundFolder(soundFolder, sounds));
    if (*files) return report(songsweep::sample::makeDesktopLibrary(folder));
    const auto library = std::filesystem::absolute(bulk.file).lexically_normal();
    bulk.file = library;
    if (bulk.musicFolder.empty()) bulk.musicFolder = library.parent_path() / "Music";
    if (makesNoFiles) bulk.files = songsweep::sample::BulkFiles::none;
    if (makesAllFiles) bulk.files = songsweep::sample::BulkFiles::all;
    return report(songsweep::sample::makeBulkLibrary(bulk));
}
