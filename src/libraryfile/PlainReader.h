// SPDX-License-Identifier: MIT
#pragma once

#include "library/NodeReader.h"
#include "libraryfile/PlainNodes.h"
#include "libraryfile/TagScanner.h"
#include "libraryfile/TrackPass.h"

#include <cstddef>
#include <memory>
#include <optional>
#include <utility>

namespace songsweep {

/// Streams a library file that is known to be plain, see PlainNodes: a third of libxml2's time and less.
///
/// A file that turns out not to be plain was changed while it was read, which is a read error.
class PlainReader final : public NodeReader {
  public:
    explicit PlainReader(std::unique_ptr<const LibraryFile> file);
    /// Goes on behind tracks of the file that were read already.
    PlainReader(std::unique_ptr<const LibraryFile> file, TracksOfPass tracks);

    std::unique_ptr<ReadTracks> takeTracks() override { return std::move(m_tracks); }
    bool read(XmlNode& node) override;
    bool readProperty(XmlProperty& property) override;
    const std::optional<ReadError>& error() const override { return m_error; }

  private:
    bool readTag();
    void fail();

    std::unique_ptr<const LibraryFile> m_file;
    std::unique_ptr<ReadTracks> m_tracks;
    TagScanner m_scanner;
    PlainNodes m_nodes;
    Tag m_tag;
    Property m_property;
    std::size_t m_next = 0; // of the nodes at hand
    bool m_ended = false;
    std::optional<ReadError> m_error;
};

} // namespace songsweep
