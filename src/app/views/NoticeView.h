// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

namespace songsweep {

enum class NoticeAction {
    details,
    showTrash,
    showBackup,
    finish,
    restore,
    chooseFilesFolder,
    searchWithFewer,
};

/// A message that stands over the table until the user closes it or something new begins.
struct Notice {
    std::string title; ///< "56 tracks deleted"
    std::string rest;  ///< more of it, in sentences; ""
    std::string line;  ///< both, where there is but one line
    bool isWarning = false;
    std::vector<NoticeAction> actions; ///< that its buttons offer, in their order
};

/// What the controller tells of what has happened. See ApplicationView.
class NoticeView {
  public:
    NoticeView() = default;
    NoticeView(const NoticeView&) = delete;
    NoticeView& operator=(const NoticeView&) = delete;
    virtual ~NoticeView() = default;

    /// In the place of one that is shown.
    virtual void showNotice(const Notice& /*notice*/) {}
    virtual void hideNotice() {}
    /// A list of lines that can be copied.
    virtual void showNoticeDetails(const std::vector<std::string>& /*lines*/) {}
};

} // namespace songsweep
