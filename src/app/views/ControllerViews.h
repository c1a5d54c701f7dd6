// SPDX-License-Identifier: MIT
#pragma once

namespace songsweep {

class ApplicationView;
class DeleteView;
class LibraryView;
class MarkView;
class NoticeView;
class ProgressView;
class RestoreView;
class ResultsView;
class SearchView;

/// All that a controller shows its state in; they outlive it.
struct ControllerViews {
    ApplicationView& application;
    LibraryView& library;
    SearchView& search;
    ResultsView& results;
    MarkView& mark;
    DeleteView& deletion;
    RestoreView& restore;
    NoticeView& notice;
    ProgressView& progress;     ///< the bar of the sheet, while deleting
    ProgressView& formprogress; ///< the bar of the main window, while searching
};

} // namespace songsweep
