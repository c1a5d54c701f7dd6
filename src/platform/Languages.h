// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>
#include <vector>

class QCoreApplication;

namespace songsweep {

/// The language among those that the program has which the user's list asks for first: "de" of {"de-AT",
/// "en"}. Nothing where English, in which the sentences are written, comes first, or where no language of the
/// list is there. `preferred` are names as "de-AT" or "de_AT".
std::optional<std::string> chosenLanguage(const std::vector<std::string>& preferred,
                                          const std::vector<std::string>& available);

/// Lets the application speak the language that the system's locale asks for; once, before anything is shown.
/// The translations are part of the program; those of Qt's own dialogs come from the system, where it has
/// them.
void installLanguage(QCoreApplication& application);

} // namespace songsweep
