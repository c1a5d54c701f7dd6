// SPDX-License-Identifier: MIT
#include "hosts/LibraryCleanup.h"

#include "hosts/EmbeddedLibrary.h"

namespace songsweep {

Result<void> LibraryCleanup::lock(const CleanupLock::Request& request) {
    m_library.beginScript();
    const auto document = m_library.document();
    return document ? document.value()->lockForCleanup(request) : Result<void>(document.error());
}

Result<void> LibraryCleanup::begin(const CleanupLock::Request& request) {
    if (m_library.opened() != nullptr)
        if (auto written = m_write(*m_library.opened()); !written) return written;
    m_library.beginScript();
    const auto document = m_library.document();
    if (!document) return document.error();
    auto begun = document.value()->beginCleanup(request);
    m_files.clear();
    m_isOn = begun.hasValue();
    return begun;
}

bool LibraryCleanup::beginTrack(const std::string& persistentId) {
    m_track = persistentId;
    return !m_error;
}

Result<void> LibraryCleanup::write(LibraryDocument& library) {
    if (m_error) {
        library.rollback(); // What was told meanwhile is not written either.
        return *m_error;
    }
    auto written = m_write(library);
    if (written) {
        m_files.release(library, m_trash);
    } else {
        m_error = written.error();
    }
    return written;
}

Result<void> LibraryCleanup::finish() {
    LibraryDocument* const document = m_library.opened();
    auto written = document != nullptr ? write(*document) : Result<void>();
    m_files.keep("its track is still in the library");
    if (document != nullptr) document->endCleanup();
    m_isOn = false;
    m_error.reset();
    m_track.clear();
    return written;
}

bool LibraryCleanup::hasTrack(const std::string& persistentId) const {
    LibraryDocument* const document = m_library.opened();
    return document != nullptr && !document->tracksWithPersistentId(persistentId).empty();
}

} // namespace songsweep
