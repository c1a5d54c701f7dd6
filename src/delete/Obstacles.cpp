// SPDX-License-Identifier: MIT
#include "delete/Obstacles.h"

#include "delete/DeleteTexts.h"
#include "scripting/TextLiteral.h"

namespace songsweep {

const char* trackObstacle(std::string_view pid) {
    if (pid.empty() || pid == "0") return "it has no persistent ID";
    return canStandInText(pid) ? nullptr : "its persistent ID cannot be told to iTunes";
}

const char* fileObstacle(std::string_view location, FileAttributes::Kind kind) {
    if (kind == FileAttributes::Kind::folder) return "it is a folder";
    if (kind == FileAttributes::Kind::other) return "it is no regular file";
    return canNameFile(location) ? nullptr : "its name cannot be told to Finder";
}

} // namespace songsweep
