// SPDX-License-Identifier: MIT
#pragma once

#include "sound/Listening.h"

#include <string>

namespace songsweep {

/// The path of the program that decodes: where it is installed, or else beside this one, as both are built.
/// Needs a QCoreApplication.
std::string listenerProgram();

/// Whether it is there; not so where the program was built without the codecs' libraries.
bool isProgram(const std::string& path);

/// How files are listened to by that program: one process for each core.
ListeningSettings listeningBy(const std::string& program);

} // namespace songsweep
