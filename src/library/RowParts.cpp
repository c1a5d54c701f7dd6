// SPDX-License-Identifier: MIT
#include "library/RowParts.h"

#include <algorithm>
#include <atomic>
#include <cstddef>
#include <thread>

namespace songsweep {

namespace {

/// About a millisecond's worth: far more than a thread costs.
constexpr std::size_t rowsOfPart = 16'384;

std::vector<RowGroup> partsOf(const std::vector<TrackRecord*>& rows) {
    std::vector<RowGroup> parts;
    for (std::size_t first = 0; first < rows.size();) {
        const std::size_t last = std::min(first + rowsOfPart, rows.size()) - 1;
        const std::size_t end = groupEnd(rows, last);
        parts.push_back({first, end});
        first = end;
    }
    return parts;
}

} // namespace

void inParts(const std::vector<TrackRecord*>& rows, const std::function<void(RowGroup part)>& walk) {
    const std::vector<RowGroup> parts = partsOf(rows);
    std::atomic<std::size_t> next = 0;
    const auto work = [&] {
        for (std::size_t part = next++; part < parts.size(); part = next++)
            walk(parts[part]);
    };
    const std::size_t cores = std::max(std::thread::hardware_concurrency(), 1U);
    std::vector<std::jthread> others;
    for (std::size_t other = 1; other < std::min(cores, parts.size()); ++other)
        others.emplace_back(work);
    work();
}

std::vector<char> marksOf(const std::vector<TrackRecord*>& rows) {
    std::vector<char> marks(rows.size());
    inParts(rows, [&](RowGroup part) {
        for (std::size_t row = part.first; row < part.end; ++row)
            marks[row] = rows[row]->checkbox ? 1 : 0;
    });
    return marks;
}

std::vector<TrackRecord*> rowsOf(const std::vector<TrackRecord*>& rows, RowGroup part) {
    const auto begin = rows.begin();
    return {begin + static_cast<std::ptrdiff_t>(part.first), begin + static_cast<std::ptrdiff_t>(part.end)};
}

} // namespace songsweep
