// SPDX-License-Identifier: MIT
#pragma once

#include "library/ReadError.h"
#include "library/SWXMLParser.h"
#include "library/WorkerEvent.h"
#include "operations/NotificationCenter.h"
#include "platform/Files.h"
#include "platform/Log.h"
#include "platform/Preferences.h"
#include "platform/Sleeper.h"
#include "scripting/AppleScript.h"

#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <chrono>
#include <functional>
#include <string>
#include <vector>

namespace songsweep::test {

/// What a run did, in order: log lines as they are, events as "> name" with their payload.
using Trace = std::vector<std::string>;

class TraceLog final : public Log {
  public:
    explicit TraceLog(Trace& trace)
        : m_trace(trace) {}
    void line(std::string_view text) override { m_trace.emplace_back(text); }

  private:
    Trace& m_trace;
};

class FixedPreferences final : public Preferences {
  public:
    std::optional<IAppsDomain> iAppsDomain() const override { return domain; }
    std::optional<IAppsDomain> iAppsPropertyList(const std::string& path) const override {
        askedPath = path;
        return propertyList;
    }
    std::string homeFolder() const override { return home; }

    std::optional<IAppsDomain> domain;
    std::optional<IAppsDomain> propertyList;
    std::string home = "/Users/ann";
    mutable std::string askedPath;
};

/// Does not sleep; adds up what it was asked for.
class CountingSleeper final : public Sleeper {
  public:
    void sleep(std::chrono::milliseconds time) override {
        slept += time;
        if (onSleep) onSleep();
    }

    std::chrono::milliseconds slept{0};
    std::function<void()> onSleep;
};

/// Answers scripts with what a function gives and keeps their texts.
class ScriptAnswers final : public AppleScript {
  public:
    Result<Descriptor> executeAndReturnError(std::string_view source) override {
        sources.emplace_back(source);
        if (answer) return answer(source);
        return Error{Error::Code::failed, "iTunes is not there"};
    }

    std::function<Result<Descriptor>(std::string_view)> answer;
    std::vector<std::string> sources;
};

/// A reader with a real library and real files in a temporary folder, run on the main thread, where events
/// are handled as they are posted.
class ReaderFixture : public testing::Test {
  protected:
    ReaderFixture();

    /// A path below the temporary folder.
    std::string path(const std::string& name) const;
    void write(const std::string& name, const std::string& contents) const;
    /// Puts a library of tests/data/library into place; "@FOLDER@" in it becomes the temporary folder.
    void useLibrary(const std::string& name);
    void useLibraryText(const std::string& contents);

    void run(const SearchParameters& parameters, std::int32_t trackCount);
    void run(SWXMLParser& parser);

    /// The names of the records listed in the end.
    std::vector<std::string> names() const;
    /// The events alone, without "> ".
    std::vector<std::string> events() const;
    /// The trace with the seconds of the last line but two left out.
    Trace traceWithoutSeconds() const;

    QTemporaryDir m_folder;
    Trace m_trace;
    TraceLog m_log{m_trace};
    NotificationCenter<WorkerEvent> m_center;
    Files m_files;
    FixedPreferences m_preferences;
    CountingSleeper m_sleeper;
    ScriptAnswers m_scripts;
    ReaderServices m_services{m_center, m_scripts, m_files, m_preferences, m_sleeper, m_log};
    std::shared_ptr<TrackList> m_list = std::make_shared<TrackList>();
    std::vector<ReadError> m_readErrors;
    std::vector<FileAttributes> m_modifiedDates;
    std::function<void(const WorkerEvent&, SWXMLParser&)> m_onEvent;
};

} // namespace songsweep::test
