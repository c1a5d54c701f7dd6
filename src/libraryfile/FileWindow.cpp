// SPDX-License-Identifier: MIT
#include "libraryfile/FileWindow.h"

#include <cstring>

namespace songsweep {

bool FileWindow::advance(const char* keep) {
    if (m_atEnd || m_error) return false;
    const auto dropped = static_cast<std::size_t>(keep - m_buffer.data());
    const std::size_t kept = m_filled - dropped;
    std::memmove(m_buffer.data(), keep, kept);
    m_offset += dropped;
    m_filled = kept;
    makeRoom(kept);
    if (m_error) return false;

    const std::size_t room = m_buffer.size() - kept;
    const auto count = m_file.read(m_offset + kept, m_buffer.data() + kept, room);
    if (!count) {
        m_error = count.error();
        return false;
    }
    m_filled += count.value();
    m_atEnd = count.value() < room;
    return count.value() > 0;
}

void FileWindow::makeRoom(std::size_t kept) {
    if (kept <= m_buffer.size() / 2) return;
    if (m_buffer.size() >= 2 * longestPiece) {
        m_error = Error{Error::Code::invalid, "a value or comment is longer than 32 MB"};
        return;
    }
    m_buffer.resize(m_buffer.size() * 2);
}

std::string_view FileWindow::view(ByteRange range) {
    if (range.begin > m_offset + m_filled) { // Nobody needs what lies between.
        m_offset = range.begin;
        m_filled = 0;
    }
    while (m_offset + m_filled < range.end()) {
        if (!advance(m_buffer.data() + (range.begin - m_offset))) return {};
    }
    return {m_buffer.data() + (range.begin - m_offset), static_cast<std::size_t>(range.length)};
}

} // namespace songsweep
