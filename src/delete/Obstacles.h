// SPDX-License-Identifier: MIT
#pragma once

#include "delete/DeletePlan.h"
#include "delete/DeleteReport.h"
#include "platform/Files.h"

#include <string_view>

namespace songsweep {

/// Why a track stays in the library though it is marked; null where nothing is in the way. Its file stays
/// with it. A phrase for an outcome.
const char* trackObstacle(std::string_view pid);

/// Why what is no file stays; null for a file. A folder would take the files of other tracks with it.
const char* kindObstacle(FileAttributes::Kind kind);
/// Why a track stays in the library where files go, too: one whose file would be left behind, since its name
/// cannot be told. Null where nothing is in the way.
const char* nameObstacle(const TrackRecord& record, const DeletePlan& plan);
/// Of a file whose path cannot stand in a text.
inline constexpr const char* unnameable = "its name cannot be told to Finder";
/// Why what exists at a location stays though it is to be trashed; null where nothing is in the way.
const char* fileObstacle(std::string_view location, FileAttributes::Kind kind);

/// Whether the file of a marked track stays by the plan, for the sake of its own track or of others; notes it
/// in the outcome then. Where the others could not be looked for, nobody asked for that, and the track is not
/// dealt with.
bool isKeptByPlan(const TrackRecord& record, const DeletePlan& plan, DeleteOutcome& outcome);

} // namespace songsweep
