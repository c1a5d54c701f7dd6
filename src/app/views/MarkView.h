// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

namespace songsweep {

/// What the controller tells the mark dialog. See ApplicationView.
class MarkView {
  public:
    MarkView() = default;
    MarkView(const MarkView&) = delete;
    MarkView& operator=(const MarkView&) = delete;
    virtual ~MarkView() = default;

    /// Kinds for the list of the kind rule, in their order; comes once in a run.
    virtual void fillKinds(const std::vector<std::string>& /*kinds*/) {}
    virtual void chooseMarkFolder() {}
    virtual void showMarkWindow() {}
    virtual void closeMarkWindow() {}
};

} // namespace songsweep
