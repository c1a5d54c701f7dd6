// SPDX-License-Identifier: MIT
#include "app/Restoring.h"

#include "app/ControllerServices.h"
#include "app/views/RestoreView.h"
#include "platform/Desktop.h"
#include "platform/Log.h"
#include "restore/FinishProc.h"
#include "restore/InterruptionSearch.h"

#include <algorithm>

namespace songsweep {

Restoring::Restoring(const ControllerServices& services, RestoreView& view, Workers workers)
    : m_services(services)
    , m_view(view)
    , m_workers(workers)
    , m_looks(workers.center, services.log) {}

Restoring::~Restoring() = default;

RestoreServices Restoring::services() const {
    return {m_workers.center, m_services.desktop.trash(), m_services.log, "Songsweep " + m_services.version,
            m_services.writeLibrary};
}

void Restoring::begin(const std::string& record) {
    m_wanted = record;
    m_order = {m_services.libraryFile(), {}, LostFiles::tracksComeBack};
    auto search = std::make_unique<CleanupSearch>(m_order.library, m_workers.center);
    m_pending = search->serial();
    m_view.beginRestore();
    m_looks.add(std::move(search));
}

void Restoring::lookForInterruption() {
    const std::string library = m_services.libraryFile();
    if (library.empty()) return;
    m_looks.add(std::make_unique<InterruptionSearch>(library, m_services.files, m_services.desktop.trash(),
                                                     m_workers.center));
}

void Restoring::finish(const std::string& record) {
    m_workers.queue.add(
        std::make_unique<FinishProc>(m_services.libraryFile(), record, m_services.files, services()));
}

void Restoring::onCleanupsListed(const WorkerEvent& event) {
    if (event.sender->serial() != m_pending) return; // the sheet was closed meanwhile
    m_pending.reset();
    m_listing = std::move(*std::get<std::shared_ptr<CleanupListing>>(event.payload));
    const int chosen = firstChoice();
    m_view.showCleanups(m_listing, chosen);
    chooseCleanup(chosen, m_order.lostFiles);
}

int Restoring::firstChoice() const {
    const auto& cleanups = m_listing.cleanups;
    auto found = std::find_if(cleanups.begin(), cleanups.end(),
                              [this](const CleanupSummary& each) { return each.path == m_wanted; });
    if (found == cleanups.end())
        found = std::find_if(cleanups.begin(), cleanups.end(),
                             [](const CleanupSummary& each) { return each.isOpen(); });
    if (found == cleanups.end()) found = cleanups.begin();
    return cleanups.empty() ? -1 : static_cast<int>(found - cleanups.begin());
}

void Restoring::chooseCleanup(int index, LostFiles lostFiles) {
    if (m_isRunning || index < 0 || static_cast<std::size_t>(index) >= m_listing.cleanups.size()) return;
    m_order.record = m_listing.cleanups[static_cast<std::size_t>(index)].path;
    m_order.lostFiles = lostFiles;
    if (m_pending) m_looks.cancelAllOperations();
    auto foresight = std::make_unique<RestoreForesight>(m_order, services());
    m_pending = foresight->serial();
    m_view.showForeseeing();
    m_looks.add(std::move(foresight));
}

void Restoring::onRestoreForeseen(const WorkerEvent& event) {
    if (event.sender->serial() != m_pending) return; // another clean-up was chosen meanwhile
    m_pending.reset();
    m_view.showForeseen(*std::get<std::shared_ptr<RestoreAnswer>>(event.payload));
}

void Restoring::restoreOkButtonClick() {
    if (m_isRunning || m_pending || m_order.record.empty()) return; // what comes back is not known yet
    m_isRunning = true;
    m_view.showRestoring();
    m_workers.queue.add(std::make_unique<RestoreProc>(m_order, services()));
}

void Restoring::restoreCancelButtonClick() {
    if (m_isRunning) return m_workers.queue.cancelAllOperations();
    m_pending.reset();
    m_looks.cancelAllOperations();
    m_view.endRestore();
}

void Restoring::stop() { m_looks.cancelAllOperations(); }

void Restoring::onRestoreProgress(ProgressUnits percent) { m_view.setRestoreProgress(percent.prg); }

void Restoring::onRestoreFinish(const std::shared_ptr<RestoreAnswer>& answer) {
    m_isRunning = false;
    m_answer = answer;
    m_order.record.clear(); // the sheet tells what came of it, and restores no more
    m_view.showRestored(*answer);
}

} // namespace songsweep
