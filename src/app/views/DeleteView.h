// SPDX-License-Identifier: MIT
#pragma once

namespace songsweep {

struct DeleteConfirmationFacts;

/// What the controller tells the delete confirmation. See ApplicationView.
class DeleteView {
  public:
    DeleteView() = default;
    DeleteView(const DeleteView&) = delete;
    DeleteView& operator=(const DeleteView&) = delete;
    virtual ~DeleteView() = default;

    virtual void beginDeleteConfirmation(const DeleteConfirmationFacts& /*facts*/) {}
    /// What it says of files is known now; comes while the confirmation is open, if at all.
    virtual void updateDeleteConfirmation(const DeleteConfirmationFacts& /*facts*/) {}
    virtual void endDeleteConfirmation() {}
};

} // namespace songsweep
