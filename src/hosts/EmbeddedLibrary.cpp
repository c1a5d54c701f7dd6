// SPDX-License-Identifier: MIT
#include "hosts/EmbeddedLibrary.h"

namespace songsweep {

Result<LibraryDocument*> EmbeddedLibrary::document() {
    if (!m_checked) {
        m_checked = true;
        const auto stamp = LibraryFile::stampOf(m_path);
        const bool refusedAlready = m_refused && stamp && stamp.value() == *m_refused;
        if (!refusedAlready) {
            const auto done = openOrRefresh(stamp);
            m_error = done ? std::nullopt : std::optional(done.error());
            // Only what the file holds is remembered: its permissions may be others at the next look.
            const bool refused = m_error && m_error->code == Error::Code::invalid && stamp;
            m_refused = refused ? std::optional(stamp.value()) : std::nullopt;
        }
    }
    if (m_error) return *m_error;
    return m_document.get();
}

Result<void> EmbeddedLibrary::openOrRefresh(const Result<FileStamp>& stamp) {
    if (m_document) return stamp ? m_document->refresh(stamp.value()) : stamp.error();
    auto opened = LibraryDocument::open(m_path, m_options);
    if (!opened) return opened.error();
    m_document = std::move(opened).value();
    return {};
}

} // namespace songsweep
