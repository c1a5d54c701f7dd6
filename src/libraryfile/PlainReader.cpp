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
        if (!readTag()) fail();
    }
    node = m_nodes.nodes()[m_next++];
    return true;
}

bool PlainReader::readTag() {
    if (!m_scanner.next(m_tag) || !m_nodes.take(m_tag)) return false;
    m_next = 0;
    m_ended = m_tag.kind == Tag::Kind::endOfDocument;
    return true;
}

bool PlainReader::readProperty(XmlProperty& property) {
    const bool isNext = m_next == m_nodes.nodes().size() && !m_error && m_scanner.takeProperty(m_property);
    if (!isNext) return false;
    const auto read = m_nodes.read(m_property);
    if (!read) {
        fail();
        return false;
    }
    property = *read;
    return true;
}

void PlainReader::fail() {
    m_error = ReadError{0, "The file was changed while it was read"};
    m_next = m_nodes.nodes().size();
}

} // namespace songsweep
