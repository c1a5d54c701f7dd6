// SPDX-License-Identifier: MIT
#include "operations/OperationRunner.h"

#include "operations/EventCenter.h"
#include "platform/Log.h"

#include <QCoreApplication>
#include <QEvent>

#include <string>
#include <utility>

namespace songsweep {

/// Stands on the main thread and is told, by an event of its loop, that the last operation has returned.
class OperationRunner::IdleReceiver final : public QObject {
  public:
    explicit IdleReceiver(const OperationRunner& runner)
        : m_runner(runner) {}
    std::function<void()> handler;

  protected:
    void customEvent(QEvent*) override {
        if (handler && m_runner.count() == 0) handler(); // else a new one will tell again
    }

  private:
    const OperationRunner& m_runner;
};

OperationRunner::OperationRunner(EventCenter& center, Log& log)
    : m_center(center)
    , m_log(log)
    , m_idleReceiver(std::make_unique<IdleReceiver>(*this)) {
    setAutoDelete(false);
    m_pool.setMaxThreadCount(1);
}

OperationRunner::~OperationRunner() = default;

void OperationRunner::add(std::unique_ptr<Operation> operation) {
    const std::lock_guard lock(m_lock);
    m_waiting.push_back(std::move(operation));
    if (!std::exchange(m_isActive, true)) m_pool.start(this);
}

void OperationRunner::cancelAll() {
    const std::lock_guard lock(m_lock);
    for (auto& operation : m_waiting)
        operation->cancel();
    if (m_running) m_running->cancel();
}

int OperationRunner::count() const {
    const std::lock_guard lock(m_lock);
    return static_cast<int>(m_waiting.size()) + (m_running ? 1 : 0);
}

void OperationRunner::setIdleHandler(std::function<void()> handler) {
    m_idleReceiver->handler = std::move(handler);
}

void OperationRunner::waitUntilIdle() {
    std::unique_lock lock(m_lock);
    m_becameIdle.wait(lock, [this] { return !m_isActive; });
}

void OperationRunner::run() {
    while (auto* operation = takeNext()) {
        runMain(*operation);
        letGo(m_center.flush());
    }
}

Operation* OperationRunner::takeNext() {
    const std::lock_guard lock(m_lock);
    if (m_waiting.empty()) {
        m_isActive = false;
        m_becameIdle.notify_all();
        tellIdle();
        return nullptr;
    }
    m_running = std::move(m_waiting.front());
    m_waiting.pop_front();
    return m_running.get();
}

void OperationRunner::runMain(Operation& operation) {
    try {
        operation.main();
    } catch (const std::exception& exception) {
        m_log.line(std::string("Exception in an operation: ") + exception.what());
    } catch (...) {
        m_log.line("Exception in an operation: of unknown type");
    }
}

void OperationRunner::letGo(bool isHandled) {
    std::unique_ptr<Operation> done;
    const std::lock_guard lock(m_lock);
    if (isHandled) {
        done = std::move(m_running);
    } else {
        m_kept.push_back(std::move(m_running));
    }
}

void OperationRunner::tellIdle() {
    QCoreApplication::postEvent(m_idleReceiver.get(), new QEvent(QEvent::User));
}

} // namespace songsweep
