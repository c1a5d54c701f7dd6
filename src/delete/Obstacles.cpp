// SPDX-License-Identifier: MIT
#include "delete/Obstacles.h"

#include "delete/DeleteTexts.h"
#include "scripting/TextLiteral.h"

namespace songsweep {

const char* trackObstacle(std::string_view pid) {
    if (pid.empty() || pid == "0") return "it has no persistent ID";
    return canStandInText(pid) ? nullptr : "its persistent ID cannot be told to iTunes";
}

const char* fileObstacle(std::string_view location) {
    return canNameFile(location) ? nullptr : "its name cannot be told to Finder";
}

} // namespace songsweep
