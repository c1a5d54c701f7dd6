// SPDX-License-Identifier: MIT
#pragma once

#include "app/AppController.h"
#include "app/FakeITunes.h"
#include "app/RecordingView.h"
#include "delete/Cleanup.h"
#include "platform/Desktop.h"
#include "platform/Files.h"
#include "platform/Preferences.h"
#include "platform/Sleeper.h"
#include "support/EventLoop.h"
#include "support/RecordingLog.h"
#include "support/RecordingTrash.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <memory>

namespace songsweep::test {

/// A desktop that keeps what it was asked.
class RecordingDesktop final : public Desktop {
  public:
    std::vector<std::string> calls;

    Result<void> openUrl(const std::string& url) override { return note("openUrl " + url); }
    Result<void> showInFileManager(const std::string& path) override { return note("show " + path); }
    Trash& trash() override { return m_trash; }
    Result<void> play(const std::string& path) override { return note("play " + path); }
    Result<void> stopPlaying() override { return note("stop"); }
    Result<void> setOutputMuted(bool muted) override { return note(muted ? "mute" : "unmute"); }

  private:
    Result<void> note(const std::string& call) {
        calls.push_back(call);
        return {};
    }
    RecordingTrash m_trash{calls};
};

/// Preferences that name one library file, or none.
class GivenPreferences final : public Preferences {
  public:
    std::string libraryUrl;

    std::optional<IAppsDomain> iAppsDomain() const override {
        if (libraryUrl.empty()) return std::nullopt;
        return IAppsDomain{{libraryUrl}};
    }
    std::optional<IAppsDomain> iAppsPropertyList(const std::string&) const override { return std::nullopt; }
    std::string homeFolder() const override { return "/nowhere"; }
};

/// Files that all exist, unless they are the library's own.
class AllFiles final : public Files {
  public:
    using Files::exists;
    bool exists(const char* path) const override {
        return std::string_view(path).starts_with("/music/") || Files::exists(path);
    }
};

/// A sleeper that does not wait.
class NoSleep final : public Sleeper {
  public:
    void sleep(std::chrono::milliseconds) override {}
};

/// A frame that lets a deletion begin, and write what it did, or not.
class GivenCleanup final : public Cleanup {
  public:
    Result<void> begin(std::vector<RecordedTrack>, Files) override { return mayBegin; }
    Result<void> finish() override { return canWrite; }
    Result<void> mayBegin;
    Result<void> canWrite;
};

/// A controller over a fake iTunes and a view that records.
class ControllerFixture : public ::testing::Test {
  protected:
    ControllerFixture() { controller->awakeFromNib(); }

    /// Handles events until no worker is left; a test that waits in vain fails.
    void runUntilIdle() {
        ASSERT_TRUE(runEventLoopUntil([this] { return !controller->isWorking(); }))
            << "a worker does not end";
    }

    void post(EventName name, WorkerEventPayload payload = {}) {
        controller->notificationCenter().post({name, std::move(payload), nullptr});
    }
    /// Appends rows of the given groups to the results as the grouping does.
    void addRows(const std::vector<int>& groups) {
        for (const int group : groups) {
            auto record = std::make_unique<TrackRecord>();
            record->gid = group;
            record->name = "Song";
            records.push_back(std::move(record));
            post(EventName::step2, records.back().get());
        }
    }

    /// What the controller works with, by files of the test's choice.
    ControllerServices services(Files& seen) {
        return {
            .scripts = iTunes,
            .files = seen,
            .preferences = preferences,
            .sleeper = sleeper,
            .log = log,
            .desktop = desktop,
            .cleanup = cleanup,
            .version = "1.0",
            .unreachableReason = [] { return std::string("line 3: no end"); },
        };
    }

    FakeITunes iTunes;
    AllFiles files;
    GivenPreferences preferences;
    NoSleep sleeper;
    RecordingLog log;
    RecordingDesktop desktop;
    RecordingView view;
    GivenCleanup cleanup;
    std::vector<std::unique_ptr<TrackRecord>> records;
    std::unique_ptr<AppController> controller =
        std::make_unique<AppController>(services(files), view.views());
};

} // namespace songsweep::test
