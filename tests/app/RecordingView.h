// SPDX-License-Identifier: MIT
#pragma once

#include "app/ControllerView.h"
#include "delete/DeleteConfirmationFacts.h"

#include <functional>
#include <string>
#include <vector>

namespace songsweep::test {

/// A view that keeps the calls that it gets, in their order, and shows nothing.
class RecordingView final : public ControllerView {
  public:
    std::vector<std::string> calls;
    std::vector<int> selection;
    std::function<void(const std::string&)> onCall; ///< told of each call

    bool has(const std::string& call) const {
        return std::find(calls.begin(), calls.end(), call) != calls.end();
    }

    void showMainWindow() override { note("showMainWindow"); }
    void showAboutWindow() override { note("showAboutWindow"); }
    void setAboutLabel(const std::string& text) override { note("setAboutLabel " + text); }
    void showParamWindow() override { note("showParamWindow"); }
    void closeParamWindow() override { note("closeParamWindow"); }
    void clearPlaylists() override { note("clearPlaylists"); }
    void addPlaylist(const std::string& name) override { note("addPlaylist " + name); }
    void selectPlaylist(int index) override { note("selectPlaylist " + std::to_string(index)); }
    void reloadTable() override { note("reloadTable"); }
    void setTableVisible(bool on) override { note("setTableVisible", on); }
    void setPerformLabelVisible(bool on) override { note("setPerformLabelVisible", on); }
    void setHorizontalScroller(bool on) override { note("setHorizontalScroller", on); }
    void setSortIndicator(Column column, bool ascending) override {
        note("setSortIndicator " + std::string(identifier(column)), ascending);
    }
    void clearSortIndicator() override { note("clearSortIndicator"); }
    std::vector<int> selectedRows() const override { return selection; }
    int selectedRow() const override { return selection.empty() ? -1 : selection.front(); }
    void beginProgress(ProgressBar bar) override { note("beginProgress " + name(bar)); }
    void endProgress(ProgressBar bar) override { note("endProgress " + name(bar)); }
    void setProgressValue(double percent) override { progressValues.push_back(percent); }
    void setProgressInfo(const std::string& phase) override { note("setProgressInfo " + phase); }
    void setProgressTitle(const std::string& title) override { note("setProgressTitle " + title); }
    void setStatusText(const std::string& text) override { note("setStatusText " + text); }
    void setSearchedText(const std::string& text) override { note("setSearchedText " + text); }
    void setStatusVisible(bool on) override { note("setStatusVisible", on); }
    void setSearchEnabled(bool on) override { note("setSearchEnabled", on); }
    void setMarkEnabled(bool on) override { note("setMarkEnabled", on); }
    void setDeleteEnabled(bool on) override { note("setDeleteEnabled", on); }
    void beep() override { note("beep"); }
    void alertCantAccess(const std::string& message, const std::string& reason) override {
        note("alertCantAccess " + message + "|" + reason);
    }
    void alertNoDuplicates() override { note("alertNoDuplicates"); }
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

    std::vector<double> progressValues;
    DeleteConfirmationFacts deleteFacts; ///< the last ones

  private:
    static std::string name(ProgressBar bar) {
        return bar == ProgressBar::progress ? "progress" : "formprogress";
    }
    void note(const std::string& call, bool on) { note(call + (on ? " on" : " off")); }
    void note(const std::string& call) {
        calls.push_back(call);
        if (onCall) onCall(call);
    }
};

} // namespace songsweep::test
