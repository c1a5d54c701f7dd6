// SPDX-License-Identifier: MIT
#pragma once

#include "app/ChosenScripts.h"
#include "app/ControllerServices.h"
#include "app/EmbeddedCleanup.h"
#include "app/MapRule.h"
#include "app/OpenedLibrary.h"
#include "hosts/EmbeddedScripting.h"
#include "platform/Desktop.h"
#include "platform/Files.h"
#include "platform/PathMap.h"
#include "platform/Preferences.h"
#include "platform/RecentFiles.h"
#include "platform/Sleeper.h"
#include "scripting/NativeAppleScript.h"

#include <QObject>

#include <functional>
#include <memory>
#include <string>

namespace songsweep {

class Log;

/// What the program is started with.
struct ProgramOptions {
    std::string library; ///< path of the library file; empty for the one that iTunes' preferences name
    PathMap map;
    std::string iTunesVersion = "12.0";
    std::string version;                           ///< of this program
    std::string purpose = "the window";            ///< who cleans up, for others that want to meanwhile
    std::vector<MapRule> mapRules = {};            ///< of the map, to tell one that is of no use
    std::shared_ptr<RecentFiles> recentFiles = {}; ///< where opened libraries are noted; null for nowhere
};

/// iTunes' preferences, but for a library that the user named: that one comes first then.
class ChosenLibraryPreferences final : public Preferences {
  public:
    explicit ChosenLibraryPreferences(std::unique_ptr<Preferences> others)
        : m_others(std::move(others)) {}

    /// Takes an absolute path. Main thread, while no worker runs.
    void choose(const std::string& path);

    std::optional<IAppsDomain> iAppsDomain() const override;
    std::optional<IAppsDomain> iAppsPropertyList(const std::string& path) const override;
    std::string homeFolder() const override;

  private:
    const Preferences& present() const;

    std::unique_ptr<Preferences> m_others;
    std::unique_ptr<Preferences> m_chosen;
};

/// The parts that a controller works with.
///
/// Without a library of its own choice the user works with the system's iTunes, where there is one; a named
/// or opened library file is the embedded iTunes'. Owns the parts; outlives the controller. Pending changes
/// of the library are written when it goes.
class Program {
  public:
    /// `systemScripts` reaches the system's iTunes; null where there is none.
    Program(ProgramOptions options, Log& log,
            std::unique_ptr<AppleScript> systemScripts = nativeAppleScript());
    Program(const Program&) = delete;
    Program& operator=(const Program&) = delete;

    ControllerServices controllerServices();
    EmbeddedScripting& scripting() { return m_scripting; }
    EmbeddedCleanup& cleanup() { return m_cleanup; }
    Files& files() { return m_files; }
    Desktop& desktop() { return *m_desktop; }

    /// Turns to another library file, or to the one in a folder, and to the embedded iTunes. Whether it can
    /// be read shows when it is. The present one stays where what is left to write of it cannot be written,
    /// and where the other is no library by its first look.
    OpenedLibrary openLibrary(const std::string& path);

    /// `handler` is called on the main thread when the library file cannot be written outside of a deletion,
    /// with the path and the reason. The deletions are forgotten.
    void setWriteFailedHandler(std::function<void(const std::string& reason)> handler);
    /// Writes what is left; the path and the reason where that fails. Once no worker runs.
    Result<void> writeLibrary();

    /// Why the library cannot be read, with its path: for alerts and the console. Empty where it can.
    std::string unreachableReason() const;

  private:
    EmbeddedScripting::Options scriptingOptions();
    void addMapRule(const MapRule& rule);
    std::string withLibraryPath(const std::string& reason) const;
    bool areTracksOfITunes(const std::vector<TrackRecord*>& records);
    std::vector<std::string> tracksOfId(std::string_view pid);
    std::vector<std::vector<std::string>> playlistsOf(const std::vector<std::string>& persistentIds);
    Result<CleanupRoom> foreseeWriting(const CleanupSize& size);
    Result<MergePlan> planMergeOf(const SongsToMerge& songs, const MergeChoice& choice);
    Result<LibraryContents> libraryContents();
    Error unreadable(const Error& reason) const;
    std::vector<std::string> otherLibraries() const;
    bool visitLocations(const LocationVisitor& visit);

    ProgramOptions m_options;
    Log& m_log;
    std::string m_libraryPath; ///< of the present one; scripts that run would keep the main thread waiting
    Files m_files;
    std::unique_ptr<Desktop> m_desktop;
    ChosenLibraryPreferences m_preferences;
    Sleeper m_sleeper;
    std::function<void(const std::string& reason)> m_writeFailed;
    QObject m_mainThread; ///< calls for it are handled on the main thread
    EmbeddedScripting m_scripting;
    ChosenScripts m_scripts;
    EmbeddedCleanup m_cleanup;
};

} // namespace songsweep
