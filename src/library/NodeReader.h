// SPDX-License-Identifier: MIT
#pragma once

#include "library/LibraryKeys.h"
#include "library/ReadError.h"

#include <memory>
#include <optional>
#include <string_view>

namespace songsweep {

struct ReadTracks;

/// What a node of an XML document is; the numbers are those of libxml2's text reader. Others are skipped.
enum class NodeType : int { none = 0, element = 1, text = 3, endElement = 15 };

/// One node of a document. Name and value live until the next read.
struct XmlNode {
    NodeType type = NodeType::none;
    std::string_view name;  ///< of an element's start and end
    std::string_view value; ///< of a text
};

/// A key of a dictionary, whose text is not blank, and the value behind it, which is no dictionary: the nodes
/// of both in one.
struct XmlProperty {
    LibraryKey key = LibraryKey::none;
    std::string_view value; ///< empty where there would be no node of a text; lives until the next read
};

/// Streams a document, node by node.
///
/// Blank texts are not reported; neighbouring texts come as one, but at entities of the document's own. Used,
/// and destroyed, by the thread that opened it.
class NodeReader {
  public:
    NodeReader();
    NodeReader(const NodeReader&) = delete;
    NodeReader& operator=(const NodeReader&) = delete;
    virtual ~NodeReader();

    /// The next node; false at the end of the document. After a read error there is no end: every further
    /// step gives a node of type none.
    virtual bool read(XmlNode& node) = 0;

    /// Reads a whole property, where the reader can and one is next; false, and nothing is read, otherwise.
    virtual bool readProperty(XmlProperty& property);

    /// The tracks that were read before, once; the nodes are then those behind them. Null where the nodes are
    /// all there is.
    virtual std::unique_ptr<ReadTracks> takeTracks();

    /// The first read error.
    virtual const std::optional<ReadError>& error() const = 0;
};

} // namespace songsweep
