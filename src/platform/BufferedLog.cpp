// SPDX-License-Identifier: MIT
#include "platform/BufferedLog.h"

#include <chrono>

namespace songsweep {

namespace {

constexpr std::size_t largePiece = std::size_t{64} * 1024;
constexpr std::chrono::milliseconds longest{200};

std::string endLine(std::uint64_t bytes) {
    constexpr std::uint64_t bytesPerMegabyte = 1'000'000;
    return "The log ends here, at " + std::to_string(bytes / bytesPerMegabyte) + " MB.";
}

} // namespace

BufferedLog::BufferedLog(Log& target, std::uint64_t mostBytes)
    : m_target(target)
    , m_mostBytes(mostBytes)
    , m_clock([this](const std::stop_token& stop) { handOnInTime(stop); }) {}

BufferedLog::~BufferedLog() {
    m_clock.request_stop();
    m_clock.join();
    const std::lock_guard lock(m_lock);
    handOn();
}

void BufferedLog::begin() {
    const std::lock_guard lock(m_lock);
    m_hasBegun = true;
}

void BufferedLog::line(std::string_view text) {
    const std::lock_guard lock(m_lock);
    if (!m_hasBegun) return m_target.line(text);
    if (m_hasEnded) return;
    m_bytes += text.size() + 1;
    m_hasEnded = m_bytes > m_mostBytes;
    hold(m_hasEnded ? endLine(m_mostBytes) : text);
}

void BufferedLog::hold(std::string_view text) {
    const bool isFirst = m_held.empty();
    if (!isFirst) m_held += '\n';
    m_held += text;
    if (m_held.size() >= largePiece) return handOn();
    if (isFirst) m_changed.notify_all();
}

void BufferedLog::handOn() {
    if (m_held.empty()) return;
    m_target.line(m_held);
    m_held.clear();
}

void BufferedLog::handOnInTime(const std::stop_token& stop) {
    std::unique_lock lock(m_lock);
    while (m_changed.wait(lock, stop, [this] { return !m_held.empty(); })) {
        m_changed.wait_for(lock, stop, longest, [] { return false; });
        handOn();
    }
}

} // namespace songsweep
