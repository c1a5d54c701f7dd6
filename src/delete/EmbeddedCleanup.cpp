// SPDX-License-Identifier: MIT
#include "delete/EmbeddedCleanup.h"

#include "hosts/EmbeddedScripting.h"

namespace songsweep {

Result<void> EmbeddedCleanup::lock() {
    if (!m_isEmbedded()) return {};
    return withPath(m_scripts.withCleanup([&](LibraryCleanup& cleanup) { return cleanup.lock(m_request); }));
}

Result<void> EmbeddedCleanup::begin() {
    m_isOn = m_isEmbedded();
    if (!m_isOn) return {};
    return withPath(m_scripts.withCleanup([&](LibraryCleanup& cleanup) { return cleanup.begin(m_request); }));
}

bool EmbeddedCleanup::beginTrack(const std::string& persistentId) {
    return !m_isOn ||
           m_scripts.withCleanup([&](LibraryCleanup& cleanup) { return cleanup.beginTrack(persistentId); });
}

Result<void> EmbeddedCleanup::finish() {
    if (!m_isOn) return {};
    return withPath(m_scripts.withCleanup([](LibraryCleanup& cleanup) { return cleanup.finish(); }));
}

bool EmbeddedCleanup::hasTrack(const std::string& persistentId) {
    return m_isOn &&
           m_scripts.withCleanup([&](LibraryCleanup& cleanup) { return cleanup.hasTrack(persistentId); });
}

std::optional<Result<void>> EmbeddedCleanup::fateOfFile(const std::string& path) {
    if (!m_isOn) return std::nullopt;
    const auto fate =
        m_scripts.withCleanup([&](LibraryCleanup& cleanup) { return cleanup.fateOfFile(path); });
    if (!fate) return std::nullopt;
    return *fate ? Result<void>() : Result<void>(fate->error());
}

/// A reason that does not say so itself says which library it is about.
Result<void> EmbeddedCleanup::withPath(const Result<void>& result) const {
    if (result) return {};
    const std::string path = m_scripts.libraryPath();
    const std::string& reason = result.error().message;
    if (reason.find(path) != std::string::npos) return result;
    return Error{result.error().code, path + ": " + reason};
}

} // namespace songsweep
