// SPDX-License-Identifier: MIT
#pragma once

#include "app/MapRule.h"
#include "delete/DeletePlan.h"
#include "delete/MergeProc.h"
#include "delete/SharedIds.h"
#include "library/LibraryOverview.h"
#include "library/ReaderServices.h"
#include "platform/Result.h"

#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace songsweep {

class AppleScript;
class Cleanup;
class Desktop;
class Files;
class Log;
class Preferences;
class Sleeper;

/// What the controller works with. Everything referred to outlives it.
struct ControllerServices {
    AppleScript& scripts;
    Files& files;
    Preferences& preferences;
    Sleeper& sleeper;
    Log& log;
    Desktop& desktop;
    Cleanup& cleanup;
    std::string version; ///< "1.0"
    /// What the player is called that scripts go to, for the alert where it does not answer.
    std::function<std::string()> playerName = [] { return std::string("iTunes"); };
    /// Why the embedded library cannot be read, for the alert; empty where nothing is known.
    std::function<std::string()> unreachableReason = [] { return std::string(); };
    /// Every track of the whole library with its file, for finding files that two tracks share; called on a
    /// worker thread.
    LibraryLocations libraryLocations = {};
    /// Whether the records of a library file's reader, in its order, are the tracks that iTunes finds by
    /// their persistent IDs; called on a worker thread.
    std::function<bool(const std::vector<TrackRecord*>&)> areTracksOfITunes =
        [](const std::vector<TrackRecord*>&) { return true; };
    OpenNodes openNodes = XmlReader::open; ///< of a library file
    /// The tracks of the whole library that share a persistent ID, where iTunes tells; called on a worker
    /// thread.
    TracksOfId tracksOfId = {};
    /// The names of the playlists that hold the tracks of some persistent IDs, where the library file is
    /// known; called on a worker thread.
    std::function<std::vector<std::vector<std::string>>(const std::vector<std::string>& persistentIds)>
        playlistsOfTracks = [](const auto&) { return std::vector<std::vector<std::string>>(); };
    /// Whether the library could be written if a deletion began now; called on a worker thread.
    LibraryForesight libraryForesight = [](const CleanupSize&) { return CleanupRoom(); };
    /// The library file that the embedded iTunes works on, for restoring; "" where it is the system's.
    std::function<std::string()> libraryFile = [] { return std::string(); };
    /// What the library file holds; indexes it where that was not done. Called on a worker thread.
    std::function<Result<LibraryContents>()> libraryContents = [] { return LibraryContents(); };
    /// The files and folders in which a library was looked for.
    std::function<std::vector<std::string>()> libraryPlaces = [] { return std::vector<std::string>(); };
    /// Other libraries than the present one: those that lie there, and those that were opened last. Called on
    /// a worker thread.
    std::function<std::vector<std::string>()> otherLibraries = [] { return std::vector<std::string>(); };
    /// The page of the user guide that came with the program; nothing where none did.
    std::function<std::optional<std::string>()> guide = [] { return std::optional<std::string>(); };
    /// Writes what is pending of it. Called on a worker thread.
    std::function<Result<void>()> writeLibrary = [] { return Result<void>(); };
    /// Whether the library is the embedded iTunes', for the words of the delete confirmation.
    std::function<bool()> embeddedLibrary = [] { return true; };
    /// The rules by which files are looked for elsewhere than the library says.
    std::function<std::vector<MapRule>()> mapRules = [] { return std::vector<MapRule>(); };
    /// Adds one; no worker runs.
    std::function<void(const MapRule&)> addMapRule = [](const MapRule&) {};

    /// Plans what copies that stay are given of those that go; not set where the library does not tell.
    MergePlanner planMerge = {};

    /// What is asked before a deletion.
    SurveySources surveySources() const;
};

} // namespace songsweep
