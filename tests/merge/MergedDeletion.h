// SPDX-License-Identifier: MIT
#pragma once

#include "delete/DeleteReport.h"
#include "delete/MergeProc.h"
#include "hosts/EmbeddedScripting.h"
#include "hosts/RecordingDesktop.h"
#include "library/DisplayedList.h"
#include "libraryfile/LibraryFixture.h"
#include "operations/NotificationCenter.h"
#include "platform/Files.h"
#include "support/RecordingLog.h"

#include <deque>
#include <memory>
#include <string>
#include <vector>

namespace songsweep {
struct WorkerEvent;
}

namespace songsweep::test {

/// A copy of a song in a results list.
struct MarkedCopy {
    int gid = 0;
    std::string pid;
    bool isMarked = false;
};

/// A library file, and deletions out of it by the real workers, scripts and hosts, one after the other on
/// this thread.
class MergedDeletion {
  public:
    explicit MergedDeletion(std::string_view library, const std::vector<MarkedCopy>& copies);
    ~MergedDeletion();

    /// Merges and then deletes what is marked; nothing follows a merge that was cancelled.
    DeleteReport carryOut(const MergeChoice& choice);
    /// Takes the last clean-up back.
    void restore();

    std::string content() const { return contentOf(m_path); }
    const std::string& path() const { return m_path; }
    EmbeddedScripting& scripts() { return *m_scripts; }
    /// How often the library was written.
    int writes() const;
    std::vector<std::string> names() const { return m_folder.names(); }

    /// Who carries the next one out, by the texts that it understands.
    MergeRoad road = MergeRoad::libraryFile;

    /// Called with each event.
    std::function<void(const WorkerEvent&)> observer = [](const WorkerEvent&) {};
    /// Of texts that fail when they have run, and of those that do not run at all; "" for none.
    std::string failingPart;
    std::string refusedPart;

  private:
    class Scripts;

    MergeReport merge(const MergeChoice& choice, Cleanup& cleanup, AppleScript& scripts);

    Folder m_folder;
    std::string m_path;
    RecordingDesktop m_desktop;
    Files m_files;
    RecordingLog m_log;
    std::deque<std::string> m_texts;
    std::deque<TrackRecord> m_records;
    DisplayedList m_list;
    std::unique_ptr<NotificationCenter<WorkerEvent>> m_center;
    std::unique_ptr<EmbeddedScripting> m_scripts;
    std::shared_ptr<MergeReport> m_merged;
    DeleteReport m_report;
};

} // namespace songsweep::test
