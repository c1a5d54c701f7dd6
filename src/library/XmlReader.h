// SPDX-License-Identifier: MIT
#pragma once

#include "library/LibraryWalk.h"
#include "library/ReadError.h"

#include <memory>
#include <optional>
#include <string>
#include <string_view>

namespace songsweep {

/// One node of a document. Name and value live until the next read.
struct XmlNode {
    NodeType type = NodeType::none;
    std::string_view name;  ///< of an element's start and end
    std::string_view value; ///< of a text
};

/// Streams a document, node by node, over libxml2's text reader.
///
/// Blank texts are not reported, CDATA sections come as texts, entities are not expanded. libxml2's limits on
/// depth, text length and entities stay on; what exceeds them is a read error. Used, and destroyed, by the
/// thread that opened it.
class XmlReader {
  public:
    /// Opens the file at a local path; null where that fails. A folder opens, and fails to be read.
    static std::unique_ptr<XmlReader> open(const std::string& path);

    XmlReader(const XmlReader&) = delete;
    XmlReader& operator=(const XmlReader&) = delete;
    ~XmlReader();

    /// The next node; false at the end of the document. After a read error there is no end: every further
    /// step gives a node of type none.
    bool read(XmlNode& node);

    /// The first read error.
    const std::optional<ReadError>& error() const { return m_error; }

  private:
    class Parser;
    explicit XmlReader(std::unique_ptr<Parser> parser);

    std::unique_ptr<Parser> m_parser;
    std::optional<ReadError> m_error;
};

} // namespace songsweep
