// SPDX-License-Identifier: MIT
#pragma once

#include "scripting/interpreter/Applications.h"

#include <map>
#include <memory>
#include <string>
#include <vector>

namespace songsweep::test {

/// A track of the fake player, its properties by name.
struct FakeTrack {
    std::map<std::string, interpreter::Value> properties;
    int artworks = 0;
};

struct FakePlaylist {
    std::string name;
    bool isSmart = false;
    bool isUserPlaylist = true;
    std::vector<std::shared_ptr<FakeTrack>> tracks;
};

/// What the fake applications hold, and what they were asked for.
struct FakeWorld {
    std::vector<FakePlaylist> playlists;
    std::map<std::string, bool> lockedFiles; ///< by POSIX path
    std::vector<std::string> commands;       ///< "play Disk:a.mp3", in order
    int elementsTaken = 0;
    int candidatesAsked = 0;
    int propertiesRead = 0;
    bool hasIndex = true;
    interpreter::Candidates::Certainty indexCertainty = interpreter::Candidates::Certainty::exact;
    int volume = 50;
};

/// A track with the twelve properties of an ordinary one. A track without a file has an empty path.
std::shared_ptr<FakeTrack> fakeTrack(const std::string& name, const std::string& persistentId,
                                     const std::string& posixPath, int artworks = 0);

/// A player and a file manager, small, over one world that must outlive them: "iTunes" and "Finder".
std::vector<interpreter::NamedApplication> fakeApplications(FakeWorld& world);

} // namespace songsweep::test
