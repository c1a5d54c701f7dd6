// SPDX-License-Identifier: MIT
#include "app/AppController.h"

#include "app/Links.h"
#include "platform/Desktop.h"
#include "platform/Log.h"

#include <chrono>

namespace songsweep {

namespace {

constexpr int progressIntervalMilliseconds = 500;
constexpr int deleteDelayMilliseconds = 100;

std::int64_t nowInNanoseconds() {
    const auto now = std::chrono::system_clock::now().time_since_epoch();
    return std::chrono::duration_cast<std::chrono::nanoseconds>(now).count();
}

} // namespace

AppController::AppController(ControllerServices services, ControllerView& view)
    : m_services(std::move(services))
    , m_view(view)
    , m_queries(m_services.scripts, m_services.log)
    , m_list1(std::make_shared<TrackList>())
    , m_surveys(m_center, m_services.log)
    , m_queue(m_center, m_services.log) {
    m_progressTimer.setInterval(progressIntervalMilliseconds);
    m_progressTimer.setTimerType(Qt::PreciseTimer);
    QObject::connect(&m_progressTimer, &QTimer::timeout, &m_progressTimer, [this] { updateProgress(); });
    m_myTimer.setInterval(deleteDelayMilliseconds);
    QObject::connect(&m_myTimer, &QTimer::timeout, &m_myTimer, [this] { beginDelete(); });
    m_queue.setIdleHandler([this] { reportIdle(); });
}

AppController::~AppController() { m_surveys.cancelAllOperations(); }

void AppController::awakeFromNib(const std::function<bool()>& redirectLog) {
    // A log that could not be redirected says so itself, and start-up goes on.
    if (redirectLog) redirectLog();
    m_services.log.line("Songsweep " + m_services.version);
    m_center.setObserver([this](const WorkerEvent& event) { threadHandlerSingleFinished2(event); });
    m_libraryModifiedDate = nowInNanoseconds();
    m_view.setAboutLabel("Songsweep " + m_services.version);
}

bool AppController::applicationShouldTerminate() {
    m_progressTimer.stop();
    m_myTimer.stop();
    m_queue.cancelAllOperations();
    m_surveys.cancelAllOperations();
    m_center.close();
    return true;
}

bool AppController::applicationShouldHandleReopen(bool hasVisibleWindows) {
    if (hasVisibleWindows) return true;
    m_view.showMainWindow();
    return false;
}

void AppController::mainWindowMenuClick() { m_view.showMainWindow(); }
void AppController::aboutButtonClick() { m_view.showAboutWindow(); }

void AppController::launchURL(const std::string& address) {
    const Result<void> opened = m_services.desktop.openUrl(address);
    if (!opened) m_services.log.line("Cannot open " + address + ": " + opened.error().message);
}

void AppController::websiteButtonClick() { launchURL(links::website); }
void AppController::helpButtonClick() { launchURL(links::help); }
void AppController::contactButtonClick() { launchURL(links::contact); }

void AppController::setIdleHandler(std::function<void()> handler) { m_idleHandler = std::move(handler); }

void AppController::reportIdle() {
    if (m_idleHandler) m_idleHandler();
}

ReaderServices AppController::readerServices() {
    return {m_center,           m_services.scripts, m_services.files, m_services.preferences,
            m_services.sleeper, m_services.log};
}

// Progress display.

void AppController::showProgressWindow(ProgressBar bar) {
    m_progressTimer.start();
    m_shownBar = bar;
    m_view.setProgressValue(0);
    m_view.beginProgress(bar);
    if (bar != ProgressBar::formprogress) return;
    m_view.setSearchEnabled(false);
    m_view.setProgressInfo("Searching...");
}

void AppController::updateProgress() { m_view.setProgressValue(m_progress.percent()); }

void AppController::closeProgressWindow(ProgressBar bar) {
    // A cancel that comes after the worker's last look at it closes the display twice.
    if (m_shownBar != bar) return;
    m_shownBar.reset();
    m_progressTimer.stop();
    m_view.endProgress(bar);
    if (bar == ProgressBar::formprogress) m_view.setSearchEnabled(true);
}

void AppController::cancelformButtonClick() {
    m_userCancelled = true;
    m_searching = false;
    m_queue.cancelAllOperations();
    closeProgressWindow(ProgressBar::formprogress);
}

void AppController::cancelButtonClick() {
    m_userCancelled = true;
    m_queue.cancelAllOperations();
    if (m_deletion == Deletion::starting) abandonDeletion();
    closeProgressWindow(ProgressBar::progress);
}

} // namespace songsweep
