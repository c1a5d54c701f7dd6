// SPDX-License-Identifier: MIT
#pragma once

#include "platform/Files.h"

#include <cstddef>
#include <memory>
#include <string_view>
#include <variant>

namespace songsweep {

struct CleanupListing;
struct DeleteReport;
struct FinishAnswer;
struct InterruptedCleanup;
struct LibraryAnswer;
struct MergeReport;
struct ReadError;
struct RestoreAnswer;
struct SurveyAnswer;
struct TrackRecord;
class Operation;

/// The events by which workers report, in the order in which the dispatch compares them; those from
/// "readError" on are news for the controller alone, and never logged.
enum class EventName {
    addFinish,
    xmlDoneParsing,
    xmlErrorParsing,
    xmlErrorProcessing,
    xmlerrornotfound,
    xmlModifiedDate,
    buildFinish,
    addCancel,
    step1,
    progressx,
    step2,
    progress,
    deleteAddCount,
    deleteValidity,
    deleteFinish,
    deleteCancel,
    tableviewSpacebar,
    readError,
    surveyDone,
    cleanupsListed,
    restoreForeseen,
    restoreProgress,
    restoreFinish,
    interruptionFound,
    cleanupFinished,
    libraryRead,
    mergeAddCount,
    mergeFinish,
    mergeCancel,
};

inline constexpr std::size_t eventCount = static_cast<std::size_t>(EventName::mergeCancel) + 1;

/// The event's text, as the log shows it ("addFinish").
std::string_view text(EventName name);

/// The payload of "progressx", work units done, and of "restoreProgress", percent.
struct ProgressUnits {
    int prg = 0;
};

/// What an event brings: nothing, a record, work units, the library file's attributes, or the result of a
/// worker, which is the receiver's from then on.
using WorkerEventPayload =
    std::variant<std::monostate, TrackRecord*, ProgressUnits, FileAttributes, std::shared_ptr<ReadError>,
                 std::shared_ptr<SurveyAnswer>, std::shared_ptr<DeleteReport>,
                 std::shared_ptr<CleanupListing>, std::shared_ptr<RestoreAnswer>,
                 std::shared_ptr<InterruptedCleanup>, std::shared_ptr<FinishAnswer>,
                 std::shared_ptr<LibraryAnswer>, std::shared_ptr<MergeReport>>;

/// One event on its way from a worker to the main thread. A value; the record stays its storage's.
struct WorkerEvent {
    EventName name = EventName::addFinish;
    WorkerEventPayload payload;
    const Operation* sender = nullptr; ///< the worker; nothing where a view posted it
};

/// Whether the event counts a step or hands over a record that its worker is done with, so that nobody waits
/// for it: it rides along with the next one.
inline bool isCount(const WorkerEvent& event) {
    return event.name == EventName::progress || event.name == EventName::deleteAddCount ||
           event.name == EventName::mergeAddCount || event.name == EventName::step1 ||
           event.name == EventName::step2;
}

} // namespace songsweep
