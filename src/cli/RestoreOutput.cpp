// SPDX-License-Identifier: MIT
#include "cli/RestoreOutput.h"

#include "cli/Csv.h"
#include "cli/Output.h"
#include "library/ValueFormats.h"
#include "platform/FileUrl.h"
#include "platform/TerminalText.h"
#include "platform/Utf8.h"
#include "platform/Words.h"

#include <nlohmann/json.hpp>

#include <algorithm>
#include <string_view>

namespace songsweep::cli {

namespace {

using Entry = RestoredTrack::Entry;
using File = RestoredTrack::File;

std::string_view wordOf(Entry entry) {
    constexpr std::string_view names[] = {"restored", "there already", "failed", "not attempted", "left out"};
    return names[static_cast<std::size_t>(entry)];
}

std::string_view wordOf(File file) {
    constexpr std::string_view names[] = {"not asked", "put back", "there already", "missing",
                                          "kept",      "failed",   "not attempted"};
    return names[static_cast<std::size_t>(file)];
}

std::string sentence(Entry entry, bool dryRun) {
    const auto text = [](const char* each) { return words("RestoreOutput", each); };
    if (entry == Entry::restored)
        return dryRun ? text(translatable("RestoreOutput", "Track %1 by %2 (%3) would be restored"))
                      : text(translatable("RestoreOutput", "Track %1 by %2 (%3) was restored"));
    if (entry == Entry::isThere)
        return text(translatable("RestoreOutput", "Track %1 by %2 (%3) is in the library already"));
    if (entry == Entry::failed)
        return text(translatable("RestoreOutput", "Track %1 by %2 (%3) cannot be restored"));
    return entry == Entry::leftOut
               ? text(translatable("RestoreOutput", "Track %1 by %2 (%3) is left out"))
               : text(translatable("RestoreOutput", "Track %1 by %2 (%3) was not attempted"));
}

std::string sentence(File file, bool dryRun) {
    if (file == File::putBack)
        return ", " + (dryRun ? words("RestoreOutput", "its file would be put back")
                              : words("RestoreOutput", "its file was put back"));
    if (file == File::isThere) return ", " + words("RestoreOutput", "its file is there already");
    if (file != File::notAttempted) return {};
    return ", " + words("RestoreOutput", "its file was not attempted");
}

/// A name may hold line breaks.
std::string lineOf(const RestoredTrack& track, bool dryRun) {
    std::string line =
        filled(sentence(track.entry, dryRun), {track.plan.name, track.plan.artist, track.plan.persistentId}) +
        sentence(track.file, dryRun);
    if (!track.reason.empty()) line += ": " + track.reason;
    if (!track.plan.path.empty()) line += ", " + track.plan.path;
    std::replace_if(
        line.begin(), line.end(), [](char c) { return c == '\n' || c == '\r'; }, ' ');
    return line;
}

std::string summary(const NamedRestore& restore) {
    const RestoreReport& report = restore.report;
    const std::string restored =
        restore.dryRun ? countedWords("RestoreOutput", "Would restore %2 of %1 tracks of \"%3\"",
                                      "Would restore %2 of 1 track of \"%3\"", report.tracks.size())
                       : countedWords("RestoreOutput", "Restored %2 of %1 tracks of \"%3\"",
                                      "Restored %2 of 1 track of \"%3\"", report.tracks.size());
    std::string line = filled(restored, {numberText(report.entries()), restore.cleanup}) + ", " +
                       countedWords("RestoreOutput", "%1 files put back", "1 file put back", report.files());
    if (report.playlists > 0)
        line += ", " + countedWords("RestoreOutput", "%1 playlist files as they were",
                                    "1 playlist file as it was", report.playlists);
    const auto left = std::count_if(report.tracks.begin(), report.tracks.end(),
                                    [](const RestoredTrack& track) { return !track.dealtWith(); });
    if (left > 0)
        line += ", " + countedWords("RestoreOutput", "%1 tracks not dealt with as asked",
                                    "1 track not dealt with as asked", left);
    return line;
}

void writeText(Output& output, const NamedRestore& restore) {
    const auto write = [&](const std::string& line) {
        output.write((output.isTerminal() ? terminalLine(line) : line) + "\n");
    };
    for (const RestoredTrack& track : restore.report.tracks)
        write(lineOf(track, restore.dryRun));
    for (const std::string& note : restore.report.notes)
        write(filled(words("OutcomeReport", "Note: %1"), {note}));
    write(summary(restore));
    if (!restore.report.backup.empty())
        write(filled(words("RestoreOutput", "The library as it was before: %1"), {restore.report.backup}));
    if (!restore.report.record.empty())
        write(filled(words("RestoreOutput", "What was done: %1"), {restore.report.record}));
}

/// A path that is not UTF-8 is told once more as a URL.
nlohmann::ordered_json jsonOf(const RestoredTrack& track) {
    nlohmann::ordered_json object;
    object["pid"] = track.plan.persistentId;
    object["name"] = track.plan.name;
    object["artist"] = track.plan.artist;
    object["location"] = track.plan.path;
    if (!isUtf8(track.plan.path)) object["locationurl"] = fileUrl(track.plan.path);
    object["track"] = wordOf(track.entry);
    object["file"] = wordOf(track.file);
    object["reason"] = track.reason;
    object["dealtwith"] = track.dealtWith();
    return object;
}

void writeJson(Output& output, const NamedRestore& restore) {
    nlohmann::ordered_json whole;
    whole["dryrun"] = restore.dryRun;
    whole["cleanup"] = restore.cleanup;
    whole["backup"] = restore.report.backup;
    whole["record"] = restore.report.record;
    whole["playlistfiles"] = restore.report.playlists;
    whole["notes"] = restore.report.notes;
    whole["outcomes"] = nlohmann::ordered_json::array();
    for (const RestoredTrack& track : restore.report.tracks)
        whole["outcomes"].push_back(jsonOf(track));
    output.write(whole.dump(2, ' ', false, nlohmann::ordered_json::error_handler_t::replace) + "\n");
}

void writeCsv(Output& output, const NamedRestore& restore) {
    const RestoreReport& report = restore.report;
    const std::string whole = csvTruth(restore.dryRun) + "," + csvField(restore.cleanup) + "," +
                              csvField(report.backup) + "," + csvField(report.record) + "\r\n";
    output.write("pid,name,artist,location,track,file,reason,dealtwith,dryrun,cleanup,backup,record\r\n");
    for (const RestoredTrack& track : report.tracks) {
        std::string row;
        for (const std::string& field :
             {track.plan.persistentId, track.plan.name, track.plan.artist, track.plan.path,
              std::string(wordOf(track.entry)), std::string(wordOf(track.file)), track.reason})
            row += csvField(field) + ",";
        output.write(row + csvTruth(track.dealtWith()) + "," + whole);
    }
}

} // namespace

void writeRestore(Output& output, const NamedRestore& restore, OutputFormat format) {
    switch (format) {
    case OutputFormat::html: // is not offered
    case OutputFormat::text:
        return writeText(output, restore);
    case OutputFormat::json:
        return writeJson(output, restore);
    case OutputFormat::csv:
        return writeCsv(output, restore);
    }
}

} // namespace songsweep::cli
