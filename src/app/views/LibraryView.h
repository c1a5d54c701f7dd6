// SPDX-License-Identifier: MIT
#pragma once

namespace songsweep {

struct LibraryOverview;

/// What the controller tells of the library that it works with. See ApplicationView.
class LibraryView {
  public:
    LibraryView() = default;
    LibraryView(const LibraryView&) = delete;
    LibraryView& operator=(const LibraryView&) = delete;
    virtual ~LibraryView() = default;

    virtual void showLibrary(const LibraryOverview& /*library*/) {}
    /// Asks the user for a library file.
    virtual void chooseLibrary() {}
};

} // namespace songsweep
