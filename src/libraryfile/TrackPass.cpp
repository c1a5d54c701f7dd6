// SPDX-License-Identifier: MIT
#include "libraryfile/TrackPass.h"

#include <exception>
#include <utility>

namespace songsweep {

TrackPass::TrackPass()
    : m_found{std::make_unique<ReadTracks>(), 0, {}}
    , m_walk(m_found.tracks->list, m_noItems, std::nullopt, m_noLog, [](int) {}) {}

void TrackPass::take(const PlainNodes& nodes, std::uint64_t end) {
    if (m_state != State::reading) return;
    try {
        for (const XmlNode& node : nodes.nodes())
            m_walk.feed(node.type, node.name, node.value);
        if (!m_walk.isPastTracks()) return;
        m_walk.finish();
        m_state = State::found;
        m_found.tracks->walk = m_walk.state();
        m_found.end = end;
        m_found.open.assign(nodes.open().begin(), nodes.open().end());
    } catch (const std::exception&) {
        m_state = State::failed;
    }
}

void TrackPass::take(const XmlProperty& property) {
    if (m_state != State::reading) return;
    try {
        m_walk.feed(property);
    } catch (const std::exception&) {
        m_state = State::failed;
    }
}

std::optional<TracksOfPass> TrackPass::found() {
    if (m_state != State::found) return {};
    return std::move(m_found);
}

} // namespace songsweep
