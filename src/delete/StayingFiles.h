// SPDX-License-Identifier: MIT
#pragma once

#include "library/TrackRecord.h"
#include "libraryfile/FileStampHash.h"

#include <string>
#include <unordered_map>
#include <vector>

namespace songsweep {

class SharedIds;
struct DeletePlan;
struct PlannedFile;

/// The files of marked tracks of which it is known beforehand that they stay, whatever else uses them.
///
/// A file of such a track must not go with another marked track either, also where its user lets shared files
/// go: nobody asked for a track without its file. One file is one of one canonical path or one stamp. Linear
/// in the rows; the library is asked once for each ID.
class StayingFiles {
  public:
    StayingFiles() = default;
    /// The rows outlive it.
    StayingFiles(const std::vector<TrackRecord*>& rows, const DeletePlan& plan, SharedIds& ids);

    /// Why the file of a marked track that goes must stay, a phrase; "" where it may go.
    std::string reasonToKeep(const PlannedFile& file) const;

  private:
    const TrackRecord* userOf(const PlannedFile& file) const;

    std::unordered_map<std::string, const TrackRecord*> m_byPath;
    std::unordered_map<FileStamp, const TrackRecord*, FileStampHash> m_byStamp;
};

} // namespace songsweep
