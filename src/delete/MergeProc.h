// SPDX-License-Identifier: MIT
#pragma once

#include "merge/MergeWords.h"
#include "operations/Operation.h"
#include "platform/Result.h"

#include <functional>
#include <memory>
#include <string>
#include <unordered_map>

namespace songsweep {

class AppleScript;
class Cleanup;
class Log;
struct DisplayedList;
struct TrackRecord;
struct WorkerEvent;
template <typename Event>
class NotificationCenter;

/// Plans what copies that stay are given, by the library as it is; not set where that cannot be done. Called
/// on any thread.
using MergePlanner = std::function<Result<MergePlan>(const SongsToMerge& songs, const MergeChoice& choice)>;

/// What was given before a deletion, by the copies that go; the records are keys. A value.
struct MergeReport {
    std::unordered_map<const TrackRecord*, MergedCopy> given;
    /// Why nothing was given; such a copy stays.
    std::unordered_map<const TrackRecord*, std::string> failed;
    MergeCounts counts;
    std::string notBegun; ///< why no song was merged; "" where it began
};

/// What it will come to: every song is given what the plan says.
MergeReport foreseenMerge(const MergePlan& plan);

/// What a merge works with; all of it outlives the worker.
struct MergeServices {
    NotificationCenter<WorkerEvent>& center;
    AppleScript& scripts;
    Log& log;
    Cleanup& cleanup;
    MergePlanner plan;
    KeptByReason keptByReason = {}; ///< not set: a song that keeps several copies is left as it is
};

/// Gives the copies that stay what the marked ones know, before a deletion takes these: one text a song.
///
/// The plan is made when the library is locked, so that it is that of the very library which is written. A
/// step is "mergeAddCount", the end "mergeFinish", or "mergeCancel" where it was cancelled or could not
/// begin; the report comes with either. What was given is written with the deletion that follows, and taken
/// back where it was cancelled. The copies of a song whose text failed are in `failed`, and must stay.
class MergeProc final : public Operation {
  public:
    /// Of the list, which outlives it, and does not change meanwhile.
    MergeProc(const DisplayedList& list, MergeChoice choice, MergeServices services);

    void main() override;

  private:
    Result<MergePlan> begin();
    void mergeSongs(const MergePlan& plan);
    void mergeSong(const SongMerge& song, MergeRoad road);
    std::string run(const SongMerge& song, MergeRoad road);
    void postEnd();

    const DisplayedList& m_list;
    MergeChoice m_choice;
    MergeServices m_services;
    std::shared_ptr<MergeReport> m_report = std::make_shared<MergeReport>();
};

} // namespace songsweep
