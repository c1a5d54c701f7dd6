// SPDX-License-Identifier: MIT
#include "operations/OperationQueue.h"

#include "operations/EventCenter.h"
#include "operations/OperationRunner.h"

#include <utility>

namespace songsweep {

OperationQueue::OperationQueue(EventCenter& center, Log& log)
    : m_center(center)
    , m_runner(std::make_unique<OperationRunner>(center, log)) {}

OperationQueue::~OperationQueue() {
    cancelAllOperations();
    m_center.close();
    // The runner's end waits for whoever still runs.
}

void OperationQueue::add(std::unique_ptr<Operation> operation) {
    const auto* handling = m_center.handling();
    if (handling != nullptr && handling->isCancelled()) operation->cancel();
    m_runner->add(std::move(operation));
}

void OperationQueue::cancelAllOperations() { m_runner->cancelAll(); }

int OperationQueue::operationCount() const { return m_runner->count(); }

void OperationQueue::setIdleHandler(std::function<void()> handler) {
    m_runner->setIdleHandler(std::move(handler));
}

void OperationQueue::waitUntilAllOperationsAreFinished() { m_runner->waitUntilIdle(); }

} // namespace songsweep
