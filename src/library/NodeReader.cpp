// SPDX-License-Identifier: MIT
#include "library/NodeReader.h"

#include "library/ReadTracks.h"

namespace songsweep {

NodeReader::NodeReader() = default;
NodeReader::~NodeReader() = default;

bool NodeReader::readProperty(XmlProperty& /*property*/) { return false; }

std::unique_ptr<ReadTracks> NodeReader::takeTracks() { return nullptr; }

} // namespace songsweep
