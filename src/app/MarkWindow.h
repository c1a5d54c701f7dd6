// SPDX-License-Identifier: MIT
#pragma once

#include "app/BringToFront.h"
#include "app/views/MarkView.h"
#include "dupes/MarkDialog.h"

namespace songsweep {

/// The mark dialog as the controller's view of it. Main thread.
class MarkWindow final : public MarkDialog, public MarkView {
  public:
    using MarkDialog::MarkDialog;

    void fillKinds(const std::vector<std::string>& kinds) override { MarkDialog::fillKinds(kinds); }
    void chooseMarkFolder() override { openFolderChooser(); }
    void showMarkWindow() override {
        selectMissingItems();
        bringToFront(*this);
    }
    void closeMarkWindow() override { hide(); }
};

} // namespace songsweep
