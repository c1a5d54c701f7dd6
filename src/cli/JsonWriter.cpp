// SPDX-License-Identifier: MIT
#include "cli/Output.h"
#include "cli/SearchReport.h"
#include "library/Groups.h"
#include "library/ValueFormats.h"
#include "platform/FileUrl.h"
#include "platform/Utf8.h"

#include <nlohmann/json.hpp>

#include <algorithm>
#include <cstddef>

namespace songsweep::cli {

namespace {

using Json = nlohmann::ordered_json;

/// All keys of a record, in their order; a record of the AppleScript reader lacks "isfile" and "trackid".
/// JSON holds no bytes that are not UTF-8, so that such a location is told once more as a URL.
Json trackObject(const TrackRecord& record) {
    Json track;
    track["checkbox"] = record.checkbox;
    track["name"] = record.name.view();
    track["artist"] = record.artist.view();
    track["album"] = record.album.view();
    track["timev"] = record.timev;
    track["time"] = record.time.view();
    track["bitrate"] = record.bitrate.view();
    track["size"] = record.size.view();
    track["sizestring"] = sizestring(record);
    track["rating"] = record.rating;
    track["pid"] = record.pid.view();
    track["gid"] = record.gid;
    track["showid"] = record.showid ? "1" : "0";
    track["playcount"] = integerValue(record.playcount);
    track["location"] = record.location.view();
    if (!isUtf8(record.location)) track["locationurl"] = fileUrl(record.location);
    track["dateaddedv"] = record.dateaddedv;
    track["dateadded"] = dateadded(record);
    track["hasartwork"] = record.hasartwork;
    if (record.fromlibraryfile) track["isfile"] = record.isfile;
    track["isdead"] = record.isdead;
    if (record.fromlibraryfile) track["trackid"] = record.trackid.view();
    return track;
}

/// A name that is not UTF-8 shows a replacement character instead of ending the output.
std::string dump(const Json& value) { return value.dump(-1, ' ', false, Json::error_handler_t::replace); }

/// Whether the copies of the group are not the same exactly.
bool isSimilarOnly(const SearchReport& report, const RowGroup& group) {
    if (report.differences.empty()) return false;
    const auto first = report.differences.begin();
    return std::any_of(first + static_cast<std::ptrdiff_t>(group.first),
                       first + static_cast<std::ptrdiff_t>(group.end),
                       [](const std::vector<std::string>& differences) { return !differences.empty(); });
}

void writeTrack(Output& output, const SearchReport& report, std::size_t row) {
    Json track = trackObject(*report.rows.at(row));
    if (!report.differences.empty() && !report.differences[row].empty())
        track["differences"] = report.differences[row];
    if (report.hasSounds) track["sound"] = report.rows.at(row)->sound.set;
    if (!report.playlists.empty()) track["playlists"] = report.playlists[row];
    if (report.reason) track["reason"] = report.reason(static_cast<int>(row));
    output.write(dump(track));
}

void writeGroup(Output& output, const SearchReport& report, const RowGroup& group) {
    output.write("    {\"gid\": " + std::to_string(report.rows.at(group.first)->gid));
    if (isSimilarOnly(report, group)) output.write(", \"similar\": true");
    output.write(", \"tracks\": [");
    for (std::size_t row = group.first; row < group.end; ++row) {
        output.write(row == group.first ? "\n      " : ",\n      ");
        writeTrack(output, report, row);
        report.onRow(row);
    }
    output.write("\n    ]}");
}

} // namespace

void writeJson(Output& output, const SearchReport& report) {
    output.write("{\n  \"tracks\": " + std::to_string(report.tracks) + ",\n  \"listed\": " +
                 std::to_string(report.listed) + ",\n  \"songs\": " + std::to_string(report.rows.size()));
    if (!report.notes.empty()) output.write(",\n  \"notes\": " + dump(report.notes));
    if (!report.unread.empty()) output.write(",\n  \"unread\": " + dump(report.unread));
    output.write(",\n  \"groups\": [");
    for (const RowGroup group : groupsOf(report.rows)) {
        output.write(group.first == 0 ? "\n" : ",\n");
        writeGroup(output, report, group);
    }
    output.write(report.rows.empty() ? "]\n}\n" : "\n  ]\n}\n");
}

} // namespace songsweep::cli
