// SPDX-License-Identifier: MIT
#pragma once

#include "library/NodeReader.h"

#include <memory>
#include <optional>
#include <string>

namespace songsweep {

/// Streams any XML document over libxml2's text reader.
///
/// CDATA sections come as texts, entities are not expanded. libxml2's limits on
/// depth, text length and entities stay on; what exceeds them is a read error.
class XmlReader final : public NodeReader {
  public:
    /// Opens the file at a local path; null where that fails. A folder opens, and fails to be read.
    static std::unique_ptr<XmlReader> open(const std::string& path);

    ~XmlReader() override;

    bool read(XmlNode& node) override;
    const std::optional<ReadError>& error() const override { return m_error; }

  private:
    class Parser;
    explicit XmlReader(std::unique_ptr<Parser> parser);

    std::unique_ptr<Parser> m_parser;
    std::optional<ReadError> m_error;
};

} // namespace songsweep
