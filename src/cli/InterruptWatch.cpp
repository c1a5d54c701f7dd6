// SPDX-License-Identifier: MIT
#include "cli/InterruptWatch.h"

#include "cli/Options.h"

#include <QCoreApplication>

#include <unistd.h>

#include <utility>

namespace songsweep::cli {

namespace {

[[noreturn]] void endProcess() { ::_exit(static_cast<int>(ExitCode::interrupted)); }

} // namespace

InterruptWatch::InterruptWatch(std::function<void()> handler)
    : m_handler(std::move(handler))
    , m_watch([this](int count) { hear(count); }) {}

void InterruptWatch::setFirstAct(std::function<void()> act) {
    const std::lock_guard lock(m_lock);
    m_firstAct = std::move(act);
    if (m_heard && m_firstAct) m_firstAct();
}

void InterruptWatch::setLastAct(std::function<void()> act) {
    const std::lock_guard lock(m_lock);
    m_lastAct = std::move(act);
}

void InterruptWatch::hear(int count) {
    if (count == 1) {
        m_heard = true;
        actFirst();
        QMetaObject::invokeMethod(QCoreApplication::instance(), m_handler, Qt::QueuedConnection);
    } else if (count == 2) {
        m_end = std::jthread([this] { actAndEnd(); }); // so that a third one is heard
    } else {
        endProcess();
    }
}

void InterruptWatch::actFirst() {
    const std::lock_guard lock(m_lock);
    if (m_firstAct) m_firstAct();
}

void InterruptWatch::actAndEnd() {
    const std::lock_guard lock(m_lock);
    if (m_lastAct) m_lastAct();
    endProcess();
}

} // namespace songsweep::cli
