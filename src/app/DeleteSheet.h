// SPDX-License-Identifier: MIT
#pragma once

#include "app/views/DeleteView.h"
#include "delete/DeleteConfirmation.h"

namespace songsweep {

/// The delete confirmation as the controller's view of it. Main thread.
class DeleteSheet final : public DeleteConfirmation, public DeleteView {
  public:
    using DeleteConfirmation::DeleteConfirmation;

    void beginDeleteConfirmation(const DeleteConfirmationFacts& facts) override {
        setFacts(facts);
        open();
    }
    void updateDeleteConfirmation(const DeleteConfirmationFacts& facts) override { updateFacts(facts); }
    void endDeleteConfirmation() override { hide(); }
};

} // namespace songsweep
