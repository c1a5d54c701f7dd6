// SPDX-License-Identifier: MIT
#pragma once

#include <string>

namespace songsweep {

struct CleanupListing;
struct RestoreAnswer;

/// What the controller tells the restore sheet. See ApplicationView.
class RestoreView {
  public:
    RestoreView() = default;
    RestoreView(const RestoreView&) = delete;
    RestoreView& operator=(const RestoreView&) = delete;
    virtual ~RestoreView() = default;

    /// Opens, while the clean-ups are looked for.
    virtual void beginRestore() {}
    /// The clean-ups, and which of them is chosen, -1 for none.
    virtual void showCleanups(const CleanupListing& /*listing*/, int /*chosen*/) {}
    /// What the chosen one would bring back is looked for.
    virtual void showForeseeing() {}
    virtual void showForeseen(const RestoreAnswer& /*answer*/) {}
    virtual void showRestoring() {}
    /// 0 to 100.
    virtual void setRestoreProgress(int /*percent*/) {}
    virtual void showRestored(const RestoreAnswer& /*answer*/) {}
    virtual void endRestore() {}
};

} // namespace songsweep
