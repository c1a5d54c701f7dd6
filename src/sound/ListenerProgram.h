// SPDX-License-Identifier: MIT
#pragma once

#include "sound/Listening.h"

#include <string>

namespace songsweep {

/// The path at which the program that decodes lies, beside this one, as both are built and installed. Needs a
/// QCoreApplication.
std::string listenerProgram();

/// Whether it is there; not so where the program was built without the codecs' libraries.
bool isProgram(const std::string& path);

/// How files are listened to by that program: one process for each core.
ListeningSettings listeningBy(const std::string& program);

} // namespace songsweep
