// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

namespace songsweep {

/// What the controller tells of the program as a whole: its windows, its alerts.
///
/// As with every view the calls come on the main thread and do nothing unless overridden, since nobody shows
/// everything; and nothing here may run an event loop of its own: alerts are opened, not executed.
class ApplicationView {
  public:
    ApplicationView() = default;
    ApplicationView(const ApplicationView&) = delete;
    ApplicationView& operator=(const ApplicationView&) = delete;
    virtual ~ApplicationView() = default;

    virtual void showMainWindow() {}
    virtual void showAboutWindow() {}
    virtual void setAboutLabel(const std::string& /*text*/) {}
    virtual void beep() {}

    /// That a library the user opened cannot be read, and why.
    virtual void alertCantOpen(const std::string& /*reason*/) {}
    /// "Can't access iTunes. ...", or Music, with "OK" and "Help"; `reason` is its informative text, or
    /// empty.
    virtual void alertCantAccess(const std::string& /*message*/, const std::string& /*reason*/) {}
    /// "No duplicates found."; the notes tell, a paragraph each, what was not searched.
    virtual void alertNoDuplicates(const std::vector<std::string>& /*notes*/) {}
    /// That the library could not be written, so that nothing is deleted.
    virtual void alertCantBeginDelete(const std::string& /*reason*/) {}
    /// That a deletion has ended early, as the library could not be written any more.
    virtual void alertCantGoOnDeleting(const std::string& /*reason*/) {}
};

} // namespace songsweep
