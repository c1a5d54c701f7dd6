// SPDX-License-Identifier: MIT
#pragma once

#include "operations/Operation.h"
#include "operations/TestEvent.h"

#include <functional>
#include <memory>
#include <utility>

namespace songsweep::test {

/// An operation whose work is a function.
class TestOperation final : public Operation {
  public:
    using Work = std::function<void(TestOperation&)>;
    explicit TestOperation(Work work)
        : m_work(std::move(work)) {}
    void main() override { m_work(*this); }

    TestEvent event(Kind kind, int units = 0) const { return {kind, units, this}; }

  private:
    Work m_work;
};

inline std::unique_ptr<TestOperation> operation(TestOperation::Work work) {
    return std::make_unique<TestOperation>(std::move(work));
}

} // namespace songsweep::test
