// SPDX-License-Identifier: MIT
#include "delete/MergeProc.h"

#include "delete/Cleanup.h"
#include "library/DisplayedList.h"
#include "library/WorkerEvent.h"
#include "merge/MergeTexts.h"
#include "operations/NotificationCenter.h"
#include "platform/Log.h"
#include "scripting/AppleScript.h"

#include <utility>

namespace songsweep {

namespace {

MergedSong mergedSong(const SongMerge& song) {
    MergedSong merged{song.copies.kept.pid.string(), {}, !song.places.empty()};
    for (const SongsToMerge::Copy& copy : song.copies.removed)
        merged.removed.push_back({copy.number, copy.pid.string()});
    return merged;
}

void noteGiven(const SongMerge& song, MergeReport& report) {
    for (std::size_t copy = 0; copy < song.copies.removed.size(); ++copy)
        report.given.emplace(song.copies.removed[copy].record, mergedCopy(song, copy));
}

} // namespace

MergeReport foreseenMerge(const MergePlan& plan) {
    MergeReport report;
    report.counts = plan.counts;
    for (const SongMerge& song : plan.songs)
        noteGiven(song, report);
    return report;
}

MergeProc::MergeProc(const DisplayedList& list, MergeChoice choice, MergeServices services)
    : m_list(list)
    , m_choice(choice)
    , m_services(std::move(services)) {}

void MergeProc::main() {
    const Result<MergePlan> plan = begin();
    if (plan) {
        mergeSongs(plan.value());
    } else {
        m_report->notBegun = plan.error().message;
    }
    postEnd();
}

Result<MergePlan> MergeProc::begin() {
    if (auto begun = m_services.cleanup.beginMerge(); !begun) return begun.error();
    return m_services.plan(SongsToMerge(m_list.rows, m_list.storage, m_services.keptByReason), m_choice);
}

void MergeProc::mergeSongs(const MergePlan& plan) {
    m_report->counts = plan.counts;
    for (const SongMerge& song : plan.songs) {
        if (isCancelled()) return;
        mergeSong(song, plan.road);
        m_services.center.post({EventName::mergeAddCount, {}, this});
    }
}

/// Also one that failed is told to the clean-up, which takes back what its text has done.
void MergeProc::mergeSong(const SongMerge& song, MergeRoad road) {
    const std::string problem = run(song, road);
    m_services.cleanup.noteMerge(mergedSong(song));
    if (problem.empty()) return noteGiven(song, *m_report);
    m_services.log.line("Not merged : " + song.copies.kept.pid.string() + " : " + problem);
    for (const SongsToMerge::Copy& copy : song.copies.removed)
        m_report->failed.emplace(copy.record,
                                 "what it knows could not be given to the copy that stays: " + problem);
}

/// The problem, "" for none.
std::string MergeProc::run(const SongMerge& song, MergeRoad road) {
    const auto result = m_services.scripts.executeAndReturnError(mergeTexts::mergeSong(song, road));
    return result ? result.value().stringValue().value_or("") : result.error().message;
}

void MergeProc::postEnd() {
    const bool isOver = isCancelled() || !m_report->notBegun.empty();
    if (isOver) m_services.cleanup.abandonMerge();
    m_services.center.post({isOver ? EventName::mergeCancel : EventName::mergeFinish, m_report, this});
}

} // namespace songsweep
