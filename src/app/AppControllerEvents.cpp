// SPDX-License-Identifier: MIT
// The dispatch of worker events: the program's main loop is the chain of these reactions.
#include "app/AppController.h"
#include "app/SearchSummary.h"
#include "dupes/BuildResultProc.h"
#include "library/ReadError.h"
#include "platform/Log.h"

#include <algorithm>
#include <array>

namespace songsweep {

/// One row of the dispatch: the event, whether it is logged, and what it does.
struct AppController::EventReaction {
    EventName name;
    bool logs;
    Reaction react;
};

void AppController::threadHandlerSingleFinished2(const WorkerEvent& event) {
    static constexpr std::array reactions = {
        EventReaction{EventName::addFinish, true, &AppController::onAddFinish},
        EventReaction{EventName::xmlDoneParsing, true, &AppController::onXmlDoneParsing},
        EventReaction{EventName::xmlErrorParsing, true, &AppController::onXmlError},
        EventReaction{EventName::xmlErrorProcessing, true, &AppController::onXmlError},
        EventReaction{EventName::xmlerrornotfound, true, &AppController::onXmlErrorNotFound},
        EventReaction{EventName::xmlModifiedDate, true, &AppController::onXmlModifiedDate},
        EventReaction{EventName::buildFinish, true, &AppController::onBuildFinish},
        EventReaction{EventName::addCancel, true, &AppController::onAddCancel},
        EventReaction{EventName::step1, false, &AppController::onStep1},
        EventReaction{EventName::progressx, false, &AppController::onProgressx},
        EventReaction{EventName::step2, false, &AppController::onStep2},
        EventReaction{EventName::progress, false, &AppController::onCount},
        EventReaction{EventName::deleteAddCount, false, &AppController::onCount},
        EventReaction{EventName::deleteValidity, false, &AppController::onDeleteValidity},
        EventReaction{EventName::deleteFinish, false, &AppController::onDeleteFinish},
        EventReaction{EventName::deleteCancel, false, &AppController::onDeleteCancel},
        EventReaction{EventName::tableviewSpacebar, false, &AppController::onSpacebar},
        EventReaction{EventName::readError, false, &AppController::onReadError},
        EventReaction{EventName::surveyDone, false, &AppController::onSurveyDone},
    };
    if (isStale(event)) return;
    // An event's place in the table is its number, so that a million of them find their row at once.
    const EventReaction& reaction = reactions.at(static_cast<std::size_t>(event.name));
    if (reaction.logs) m_services.log.line("Handler : " + std::string(text(event.name)));
    (this->*reaction.react)(event);
}

/// Whether the sender was cancelled before the present search began: its end is no news of this search.
bool AppController::isStale(const WorkerEvent& event) const {
    return event.sender && event.sender->serial() < m_searchSerial && event.sender->isCancelled();
}

void AppController::onAddFinish(const WorkerEvent&) {
    m_view.setProgressInfo("Processing...");
    m_listedCount = static_cast<int>(m_list1->records.size());
    if (m_useLibraryXML) {
        m_progress.beginPhase(70, 30);
    } else {
        m_progress.beginPhase(90, 10);
    }
    m_queue.add(std::make_unique<BuildResultProc>(m_list1, m_params, m_center));
}

void AppController::onXmlDoneParsing(const WorkerEvent&) {
    m_progress.beginPhase(50, 20);
    m_deletedSinceRead = false;
    m_view.setProgressInfo("Checking missing tracks...");
}

void AppController::onXmlError(const WorkerEvent&) {
    m_progress.beginPhase(50, 40);
    startAddProc();
}

void AppController::onXmlErrorNotFound(const WorkerEvent&) {
    m_progress.prc = 0;
    startAddProc();
}

void AppController::onXmlModifiedDate(const WorkerEvent& event) {
    if (const auto* attributes = std::get_if<FileAttributes>(&event.payload))
        m_libraryModifiedDate = attributes->modificationNanoseconds;
}

void AppController::onReadError(const WorkerEvent& event) {
    m_view.tellReadError(*std::get<std::shared_ptr<ReadError>>(event.payload));
}

void AppController::onBuildFinish(const WorkerEvent&) {
    m_searching = false;
    closeProgressWindow(ProgressBar::formprogress);
    realignShowID();
    m_view.setTableVisible(true);
    m_view.reloadTable();
    setStatusLabel();
    m_view.setPerformLabelVisible(false);
    if (m_horizontalScrollbarShowCount == 0) {
        m_horizontalScrollbarShowCount = 1;
        m_view.setHorizontalScroller(true);
    }
    const bool found = !m_tableDataSource.rows.empty();
    m_view.setSearchedText(found ? searchSummary(m_params) : std::string());
    if (!found) m_view.alertNoDuplicates();
}

void AppController::onAddCancel(const WorkerEvent&) {
    m_searching = false;
    realignShowID();
    m_view.reloadTable();
    setStatusLabel();
    m_view.setTableVisible(false);
    m_view.setPerformLabelVisible(true);
}

void AppController::onStep1(const WorkerEvent& event) {
    m_progress.prc += 1;
    if (TrackRecord* const* record = std::get_if<TrackRecord*>(&event.payload))
        m_list1->records.push_back(*record);
}

void AppController::onProgressx(const WorkerEvent& event) {
    if (const auto* units = std::get_if<ProgressUnits>(&event.payload)) m_progress.prc += units->prg;
}

void AppController::onStep2(const WorkerEvent& event) {
    if (TrackRecord* const* record = std::get_if<TrackRecord*>(&event.payload))
        m_tableDataSource.rows.push_back(*record);
}

void AppController::onCount(const WorkerEvent&) { m_progress.prc += 1; }

void AppController::onDeleteValidity(const WorkerEvent&) { validity(); }

void AppController::onDeleteFinish(const WorkerEvent& event) {
    keepReport(event);
    m_deletion = Deletion::none;
    validity();
    closeProgressWindow(ProgressBar::progress);
    showRowsLeft();
}

void AppController::onDeleteCancel(const WorkerEvent& event) {
    keepReport(event);
    m_deletion = Deletion::none;
    validity();
    showRowsLeft();
}

void AppController::keepReport(const WorkerEvent& event) {
    if (const auto* report = std::get_if<std::shared_ptr<DeleteReport>>(&event.payload))
        m_deleteReport = *report;
}

void AppController::showRowsLeft() {
    // Pruning leaves an empty list alone, but the view still shows the rows that were there.
    if (m_tableDataSource.rows.empty()) m_view.reloadTable();
    setStatusLabel();
}

void AppController::onSpacebar(const WorkerEvent&) {
    if (!mayChangeMarks()) return;
    const std::vector<TrackRecord*> selected = selectedRecords();
    const bool allChecked =
        std::all_of(selected.begin(), selected.end(), [](const TrackRecord* each) { return each->checkbox; });
    if (!selected.empty()) m_lastMark.reset();
    for (TrackRecord* const record : selected)
        record->checkbox = !allChecked;
    m_view.reloadTable();
}

} // namespace songsweep
