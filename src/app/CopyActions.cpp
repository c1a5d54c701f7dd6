// SPDX-License-Identifier: MIT
#include "app/CopyActions.h"

#include "app/MainWindow.h"

#include <memory>
#include <utility>

namespace songsweep {

namespace {

constexpr int restMilliseconds = 150;

} // namespace

CopyActions::CopyActions(MainWindow& window, CopyLook::PlaylistsOfTracks playlists, const Files& files,
                         Log& log)
    : m_window(window)
    , m_playlists(std::move(playlists))
    , m_files(files)
    , m_queue(m_center, log) {
    m_rest.setSingleShot(true);
    m_rest.setInterval(restMilliseconds);
    m_center.setObserver([this](const CopyLookEvent& event) { handle(event); });
    QObject::connect(&window, &MainWindow::otherCopiesShown, &m_rest,
                     [this](std::vector<CopyLook::Copy> copies) {
                         m_copies = std::move(copies);
                         m_awaited.reset();
                         m_queue.cancelAllOperations();
                         m_rest.start();
                     });
    QObject::connect(&m_rest, &QTimer::timeout, &m_rest, [this] { look(); });
}

void CopyActions::look() {
    if (m_copies.empty()) return;
    auto worker = std::make_unique<CopyLook>(m_copies, m_playlists, m_files, m_filesLock, m_center);
    m_awaited = worker->serial();
    m_queue.add(std::move(worker));
}

void CopyActions::handle(const CopyLookEvent& event) {
    if (event.sender->serial() != m_awaited) return;
    m_awaited.reset();
    m_window.showCopyFindings(*event.findings);
}

} // namespace songsweep
