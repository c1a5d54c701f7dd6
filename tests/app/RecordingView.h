// SPDX-License-Identifier: MIT
#pragma once

#include "app/views/ApplicationView.h"
#include "app/views/ControllerViews.h"
#include "app/views/DeleteView.h"
#include "app/views/LibraryView.h"
#include "app/views/MarkView.h"
#include "app/views/NoticeView.h"
#include "app/views/ProgressView.h"
#include "app/views/RestoreView.h"
#include "app/views/ResultsView.h"
#include "app/views/SearchView.h"
#include "delete/DeleteConfirmationFacts.h"
#include "library/LibraryOverview.h"
#include "library/ReadError.h"

#include <functional>
#include <string>
#include <vector>

namespace songsweep::test {

/// Keeps the calls that all views of a controller get, in their order, and shows nothing.
class RecordingView final : public ApplicationView,
                            public LibraryView,
                            public SearchView,
                            public ResultsView,
                            public MarkView,
                            public DeleteView,
                            public RestoreView,
                            public NoticeView {
  public:
    std::vector<std::string> calls;
    std::vector<int> selection;
    std::function<void(const std::string&)> onCall; ///< told of each call

    ControllerViews views() {
        return {*this, *this, *this, *this, *this, *this, *this, *this, m_progress, m_formprogress};
    }

    bool has(const std::string& call) const {
        return std::find(calls.begin(), calls.end(), call) != calls.end();
    }

    void showMainWindow() override { note("showMainWindow"); }
    void showAboutWindow() override { note("showAboutWindow"); }
    void setAboutLabel(const std::string& text) override { note("setAboutLabel " + text); }
    void showLibrary(const LibraryOverview& library) override { libraries.push_back(library); }
    void chooseLibrary() override { note("chooseLibrary"); }
    void alertCantOpen(const std::string& reason) override { note("alertCantOpen " + reason); }
    void setPlaylistsPending(bool on) override { note("setPlaylistsPending", on); }
    void showParamWindow() override { note("showParamWindow"); }
    void closeParamWindow() override { note("closeParamWindow"); }
    void clearPlaylists() override { note("clearPlaylists"); }
    void addPlaylist(const std::string& name) override { note("addPlaylist " + name); }
    void selectPlaylist(int index) override { note("selectPlaylist " + std::to_string(index)); }
    void reloadTable(const DisplayedList&) override { note("reloadTable"); }
    void setTableVisible(bool on) override { note("setTableVisible", on); }
    void setPerformLabelVisible(bool on) override { note("setPerformLabelVisible", on); }
    void setHorizontalScroller(bool on) override { note("setHorizontalScroller", on); }
    void setSortIndicator(Column column, bool ascending) override {
        note("setSortIndicator " + std::string(identifier(column)), ascending);
    }
    void clearSortIndicator() override { note("clearSortIndicator"); }
    std::vector<int> selectedRows() const override { return selection; }
    int selectedRow() const override { return selection.empty() ? -1 : selection.front(); }
    void setStatusText(const std::string& text) override { note("setStatusText " + text); }
    void setSearchedText(const std::string& text) override { note("setSearchedText " + text); }
    void setStatusVisible(bool on) override { note("setStatusVisible", on); }
    void setMarkEnabled(bool on) override { note("setMarkEnabled", on); }
    void setDeleteEnabled(bool on) override { note("setDeleteEnabled", on); }
    void beep() override { note("beep"); }
    void tellReadError(const ReadError& error) override {
        note("tellReadError " + std::to_string(error.line) + " " + error.reason);
    }
    void alertCantAccess(const std::string& message, const std::string& reason) override {
        note("alertCantAccess " + message + "|" + reason);
    }
    void alertNoDuplicates(const std::vector<std::string>& notes) override {
        note("alertNoDuplicates");
        explanations = notes;
    }
    void alertCantGoOnDeleting(const std::string& reason) override {
        note("alertCantGoOnDeleting " + reason);
    }
    void alertCantBeginDelete(const std::string& reason) override { note("alertCantBeginDelete " + reason); }
    void fillKinds(const std::vector<std::string>& kinds) override {
        std::string all;
        for (const std::string& kind : kinds)
            all += " " + kind;
        note("fillKinds" + all);
    }
    void chooseMarkFolder() override { note("chooseMarkFolder"); }
    void showMarkWindow() override { note("showMarkWindow"); }
    void closeMarkWindow() override { note("closeMarkWindow"); }
    void beginDeleteConfirmation(const DeleteConfirmationFacts& facts) override {
        deleteFacts = facts;
        note("beginDeleteConfirmation");
    }
    void updateDeleteConfirmation(const DeleteConfirmationFacts& facts) override {
        deleteFacts = facts;
        note("updateDeleteConfirmation");
    }
    void endDeleteConfirmation() override { note("endDeleteConfirmation"); }

    void showNotice(const Notice& notice) override { notices.push_back(notice); }
    void hideNotice() override { notices.clear(); }
    void showNoticeDetails(const std::vector<std::string>& lines) override { noticeDetails = lines; }

    std::vector<std::string> explanations;  ///< of the last search that found nothing
    std::vector<LibraryOverview> libraries; ///< as they were shown
    std::vector<Notice> notices;            ///< shown since the last was hidden
    std::vector<std::string> noticeDetails; ///< the last ones
    DeleteConfirmationFacts deleteFacts;    ///< the last ones
    std::vector<double> progressValues;     ///< of the bar in the sheet
    std::vector<double> formprogressValues; ///< of the bar in the main window

  private:
    class Bar final : public ProgressView {
      public:
        Bar(RecordingView& view, std::string name, std::string text, std::vector<double>& values)
            : m_view(view)
            , m_name(std::move(name))
            , m_text(std::move(text))
            , m_values(values) {}

        void beginProgress() override { m_view.note("beginProgress " + m_name); }
        void endProgress() override { m_view.note("endProgress " + m_name); }
        void setProgressValue(double percent) override { m_values.push_back(percent); }
        void setProgressText(const std::string& text) override { m_view.note(m_text + " " + text); }

      private:
        RecordingView& m_view;
        std::string m_name;
        std::string m_text;
        std::vector<double>& m_values;
    };

    void note(const std::string& call, bool on) { note(call + (on ? " on" : " off")); }
    void note(const std::string& call) {
        calls.push_back(call);
        if (onCall) onCall(call);
    }

    Bar m_progress{*this, "progress", "setProgressTitle", progressValues};
    Bar m_formprogress{*this, "formprogress", "setProgressInfo", formprogressValues};
};

} // namespace songsweep::test
