// SPDX-License-Identifier: MIT
#pragma once

#include "app/views/RestoreView.h"
#include "restore/RestoreDialog.h"

namespace songsweep {

/// The restore dialog as the controller's view of it. Main thread.
class RestoreSheet final : public RestoreDialog, public RestoreView {
  public:
    using RestoreDialog::RestoreDialog;

    void beginRestore() override {
        setUnknown();
        open();
    }
    void showCleanups(const CleanupListing& listing, int chosen) override { setListing(listing, chosen); }
    void showForeseeing() override { setForeseeing(); }
    void showForeseen(const RestoreAnswer& answer) override { setForeseen(answer); }
    void showRestoring() override { setRestoring(); }
    void setRestoreProgress(int percent) override { setProgress(percent); }
    void showRestored(const RestoreAnswer& answer) override { setRestored(answer); }
    void endRestore() override { hide(); }
};

} // namespace songsweep
