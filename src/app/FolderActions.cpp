// SPDX-License-Identifier: MIT
#include "app/FolderActions.h"

#include "app/Windows.h"
#include "platform/DataFolder.h"
#include "platform/Log.h"
#include "scan/ScanProgress.h"

#include <QPushButton>

#include <memory>
#include <utility>

namespace songsweep {

FolderActions::FolderActions(Windows& windows, Log& log, TellUnread tellUnread)
    : m_windows(windows)
    , m_log(log)
    , m_tellUnread(std::move(tellUnread))
    , m_sheet(&windows.mainWindow())
    , m_queue(m_center, log) {
    m_center.setObserver([this](const FolderScanEvent& event) { handle(event); });
    m_sheet.findChild<QPushButton*>(QStringLiteral("progressCancelButton"))
        ->setAccessibleName(ProgressSheet::tr("Cancel reading"));
    m_sheet.addAction(&windows.mainWindow().quitMenuitem());
    QObject::connect(&m_sheet, &QDialog::rejected, &m_sheet, [this] { m_queue.cancelAllOperations(); });
}

void FolderActions::open(const std::string& path, std::function<void(Outcome, const std::string&)> then) {
    const Result<FolderLibrary> place = FolderLibrary::of(path, dataFolder());
    if (!place) return m_windows.alertCantOpen(place.error().message);
    read(place.value(), [then = std::move(then), library = place.value().library](Outcome outcome) {
        then(outcome, library);
    });
}

void FolderActions::update(std::function<void()> then) {
    if (!m_present) return then();
    read(*m_present, [then = std::move(then)](Outcome outcome) {
        if (outcome != Outcome::cancelled) then();
    });
}

void FolderActions::noteLibrary(const std::string& library) {
    m_present = FolderLibrary::ofLibrary(library, dataFolder());
    m_windows.deleteConfirmation().setFilesAlwaysGo(m_present.has_value());
}

void FolderActions::read(const FolderLibrary& place, std::function<void(Outcome)> then) {
    if (isReading()) return;
    m_then = std::move(then);
    m_begun = std::chrono::steady_clock::now();
    m_queue.add(std::make_unique<FolderScanProc>(place, m_center));
}

void FolderActions::handle(const FolderScanEvent& event) {
    if (!event.result) return showProgress(event);
    if (m_sheet.isVisible()) m_sheet.endProgress();
    const Outcome outcome = outcomeOf(*event.result);
    std::exchange(m_then, {})(outcome);
    // What follows has begun, which takes away what was told before.
    if (outcome == Outcome::read) tellUnread(event.result->value().unread);
}

void FolderActions::tellUnread(const std::vector<UnreadPath>& unread) {
    if (unread.empty()) return;
    std::vector<std::string> lines;
    lines.reserve(unread.size());
    for (const UnreadPath& each : unread)
        lines.push_back(each.path + ": " + each.reason);
    m_tellUnread(unreadFilesText(unread.size()), std::move(lines));
}

void FolderActions::showProgress(const FolderScanEvent& event) {
    constexpr double whole = 100;
    const auto elapsed = std::chrono::steady_clock::now() - m_begun;
    m_sheet.setProgressText(scanProgressText(event.read, event.toRead,
                                             std::chrono::duration_cast<std::chrono::milliseconds>(elapsed)));
    m_sheet.setProgressValue(whole * static_cast<double>(event.read) / static_cast<double>(event.toRead));
    if (!m_sheet.isVisible()) m_sheet.beginProgress();
}

FolderActions::Outcome FolderActions::outcomeOf(const Result<ScanReport>& result) {
    if (!result && result.error().code == Error::Code::cancelled) return Outcome::cancelled;
    if (!result) {
        m_windows.alertCantOpen(result.error().message);
        return Outcome::failed;
    }
    for (const UnreadPath& unread : result.value().unread)
        m_log.line(unread.path + ": " + unread.reason);
    if (result.value().end == ScanReport::End::cancelled) return Outcome::cancelled;
    return result.value().tracks == 0 ? Outcome::empty : Outcome::read;
}

} // namespace songsweep
