// SPDX-License-Identifier: MIT
#include "libraryfile/PlainReader.h"

#include <utility>

namespace songsweep {

PlainReader::PlainReader(std::unique_ptr<const LibraryFile> file)
    : m_file(std::move(file))
    , m_scanner(*m_file)
    , m_nodes(*m_file) {}

PlainReader::PlainReader(std::unique_ptr<const LibraryFile> file, TracksOfPass tracks)
    : m_file(std::move(file))
    , m_tracks(std::move(tracks.tracks))
    , m_scanner(*m_file, tracks.end, tracks.open)
    , m_nodes(tracks.open) {}

bool PlainReader::read(XmlNode& node) {
    while (m_next == m_nodes.nodes().size()) {
        node = {};
        if (m_error) return true;
        if (m_ended) return false;
        if (!readOn()) m_error = ReadError{0, "The file was changed while it was read"};
    }
    node = m_nodes.nodes()[m_next++];
    return true;
}

bool PlainReader::readOn() {
    m_next = 0;
    if (m_scanner.takeProperty(m_property)) {
        if (m_nodes.take(m_property)) return true;
    } else if (m_scanner.next(m_tag) && m_nodes.take(m_tag)) {
        m_ended = m_tag.kind == Tag::Kind::endOfDocument;
        return true;
    }
    m_next = m_nodes.nodes().size();
    return false;
}

} // namespace songsweep
