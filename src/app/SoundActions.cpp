// SPDX-License-Identifier: MIT
#include "app/SoundActions.h"

#include "app/AppController.h"
#include "app/Progress.h"
#include "app/Windows.h"
#include "platform/Words.h"
#include "sound/ListenerProgram.h"
#include "ui/SWTableView.h"

#include <QPushButton>

#include <memory>
#include <utility>

namespace songsweep {

namespace {

AppController::SoundScope scopeOf(SoundDialog::Scope scope) {
    return scope == SoundDialog::Scope::selected ? AppController::SoundScope::selected
                                                 : AppController::SoundScope::listed;
}

} // namespace

SoundActions::SoundActions(Windows& windows, AppController& controller, Log& log, const std::string& listener)
    : m_windows(windows)
    , m_controller(controller)
    , m_dialog(&windows.mainWindow())
    , m_sheet(&windows.mainWindow())
    , m_listening(listeningBy(listener), controller.files())
    , m_queue(m_center, log) {
    m_center.setObserver([this](const SoundEvent& event) { handle(event); });
    m_sheet.findChild<QPushButton*>(QStringLiteral("progressCancelButton"))
        ->setAccessibleName(ProgressSheet::tr("Cancel comparing"));
    const bool isThere = isProgram(listener);
    windows.mainWindow().setSoundAvailable(isThere);
    windows.markWindow().setSoundAvailable(isThere);
    connectWindows();
}

void SoundActions::connectWindows() {
    MainWindow* window = &m_windows.mainWindow();
    m_dialog.addAction(&window->quitMenuitem());
    m_sheet.addAction(&window->quitMenuitem());
    QObject::connect(window, &MainWindow::compareSoundMenuClick, &m_dialog, [this] { begin(); });
    QObject::connect(&m_windows.markWindow(), &MarkDialog::compareSoundRequested, &m_dialog,
                     [this] { begin(); });
    QObject::connect(&m_dialog, &SoundDialog::compareRequested, &m_sheet,
                     [this](SoundDialog::Scope scope) { compare(scope); });
    QObject::connect(&m_sheet, &QDialog::rejected, &m_sheet, [this] { cancel(); });
    QObject::connect(&m_sheet, &ProgressSheet::ended, window,
                     [window] { window->tableview().setFocus(Qt::OtherFocusReason); });
}

void SoundActions::begin() {
    const auto copies = [this](AppController::SoundScope scope) {
        return static_cast<int>(m_controller.rowsToCompare(scope).rows.size());
    };
    const int listed = copies(AppController::SoundScope::listed);
    if (listed == 0 || m_awaited) return m_windows.beep();
    m_dialog.ask(listed, copies(AppController::SoundScope::selected));
}

void SoundActions::compare(SoundDialog::Scope scope) {
    m_compared = m_controller.rowsToCompare(scopeOf(scope));
    if (m_compared.rows.empty()) return;
    m_begun = std::chrono::steady_clock::now();
    m_sheet.setProgressText(words("SoundActions", "Comparing sounds..."));
    m_sheet.setProgressValue(0);
    m_sheet.setProgressCounts({});
    m_sheet.beginProgress();
    auto worker = std::make_unique<SoundProc>(comparedCopies(m_compared.rows), m_listening, m_center);
    m_awaited = worker->serial();
    m_queue.add(std::move(worker));
}

/// Nobody waits until the worker has returned; the next one does.
void SoundActions::cancel() {
    m_awaited.reset();
    m_compared = {};
    m_queue.cancelAllOperations();
}

void SoundActions::handle(const SoundEvent& event) {
    if (event.sender->serial() != m_awaited) return;
    if (!event.result) return showProgress(event);
    m_awaited.reset();
    m_sheet.endProgress();
    const DisplayedList compared = std::exchange(m_compared, {});
    if (*event.result) m_controller.keepSounds(compared, event.result->value());
}

void SoundActions::showProgress(const SoundEvent& event) {
    constexpr double whole = 100;
    if (event.total == 0) return;
    const double percent = whole * static_cast<double>(event.done) / static_cast<double>(event.total);
    const auto elapsed = std::chrono::steady_clock::now() - m_begun;
    const auto milliseconds = std::chrono::duration_cast<std::chrono::milliseconds>(elapsed).count();
    m_sheet.setProgressValue(percent);
    m_sheet.setProgressCounts({.done = static_cast<int>(event.done),
                               .total = static_cast<int>(event.total),
                               .secondsLeft = secondsLeft(percent, milliseconds)});
}

} // namespace songsweep
