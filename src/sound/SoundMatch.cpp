// SPDX-License-Identifier: MIT
#include "sound/SoundMatch.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cstddef>
#include <span>

namespace songsweep {

namespace {

constexpr int furthestOffset = 89;       // eleven seconds
constexpr std::size_t leastOverlap = 80; // ten seconds
constexpr std::size_t coarseStep = 4;    // of the items that the search for the offset looks at
constexpr std::size_t leastVariety = 24; // different items of an overlap in which something happens
constexpr double bitsOfItem = 32;
constexpr std::size_t pieces = 4;
constexpr double leastOfPiece = 0.80; // one that begins in silence, or in noise, agrees less
constexpr int furthestDrift = 6;
constexpr int mostDrift = 1; // an eighth of a second, which is also the grain of the items

using Items = std::span<const std::uint32_t>;

struct Overlap {
    Items a;
    Items b;
};

Overlap overlapAt(Items a, Items b, int offset) {
    const std::size_t skipA = offset > 0 ? static_cast<std::size_t>(offset) : 0;
    const std::size_t skipB = offset < 0 ? static_cast<std::size_t>(-offset) : 0;
    if (skipA >= a.size() || skipB >= b.size()) return {};
    const std::size_t length = std::min(a.size() - skipA, b.size() - skipB);
    return {a.subspan(skipA, length), b.subspan(skipB, length)};
}

double agreement(const Overlap& overlap, std::size_t step) {
    std::size_t differing = 0;
    std::size_t count = 0;
    for (std::size_t i = 0; i < overlap.a.size(); i += step, ++count)
        differing += static_cast<std::size_t>(std::popcount(overlap.a[i] ^ overlap.b[i]));
    return count == 0 ? 0 : 1 - static_cast<double>(differing) / (bitsOfItem * static_cast<double>(count));
}

/// Short sounds need not overlap longer than they are.
std::size_t leastOverlapOf(const Fingerprint& a, const Fingerprint& b) {
    return std::min(leastOverlap, std::max<std::size_t>(1, std::min(a.size(), b.size()) / 2));
}

/// The offsets that look best, the best first.
std::array<SoundMatch, 3> bestOffsets(const Fingerprint& a, const Fingerprint& b) {
    std::array<SoundMatch, 3> best;
    for (int offset = -furthestOffset; offset <= furthestOffset; ++offset) {
        const Overlap overlap = overlapAt(a, b, offset);
        if (overlap.a.size() < leastOverlapOf(a, b)) continue;
        const SoundMatch match = {agreement(overlap, coarseStep), offset, Sameness::differs};
        if (match.agreement <= best.back().agreement) continue;
        best.back() = match;
        std::sort(best.begin(), best.end(), [](const SoundMatch& one, const SoundMatch& other) {
            return one.agreement > other.agreement;
        });
    }
    return best;
}

std::size_t varietyOf(Items items) {
    std::vector<std::uint32_t> sorted(items.begin(), items.end());
    std::sort(sorted.begin(), sorted.end());
    return static_cast<std::size_t>(std::unique(sorted.begin(), sorted.end()) - sorted.begin());
}

Overlap pieceOf(const Overlap& overlap, std::size_t piece) {
    const std::size_t length = overlap.a.size() / pieces;
    return {overlap.a.subspan(piece * length, length), overlap.b.subspan(piece * length, length)};
}

/// By how many items the second of a piece runs ahead of the first.
int drift(const Overlap& piece) {
    int best = 0;
    double most = agreement(piece, 1);
    for (int shift = -furthestDrift; shift <= furthestDrift; ++shift) {
        const double agreeing = agreement(overlapAt(piece.a, piece.b, shift), 1);
        if (agreeing <= most) continue;
        most = agreeing;
        best = shift;
    }
    return best;
}

/// Whether all pieces agree, and none drifts away from the others.
bool staysTogether(const Overlap& overlap) {
    int least = furthestDrift;
    int most = -furthestDrift;
    for (std::size_t piece = 0; piece < pieces; ++piece) {
        const Overlap part = pieceOf(overlap, piece);
        if (agreement(part, 1) < leastOfPiece) return false;
        least = std::min(least, drift(part));
        most = std::max(most, drift(part));
    }
    return most - least <= mostDrift;
}

Sameness samenessOf(const Overlap& overlap, double agreeing) {
    if (overlap.a.size() >= leastOverlap && agreeing <= mostOfOthers) return Sameness::differs;
    const bool isTelling = overlap.a.size() >= leastOverlap &&
                           std::min(varietyOf(overlap.a), varietyOf(overlap.b)) >= leastVariety;
    const bool isSame = isTelling && agreeing >= leastOfSame && staysTogether(overlap);
    return isSame ? Sameness::same : Sameness::unsure;
}

} // namespace

SoundMatch matchSounds(const Fingerprint& a, const Fingerprint& b) {
    SoundMatch best;
    for (SoundMatch match : bestOffsets(a, b)) {
        match.agreement = agreement(overlapAt(a, b, match.offset), 1);
        if (match.agreement > best.agreement) best = match;
    }
    best.sameness = samenessOf(overlapAt(a, b, best.offset), best.agreement);
    return best;
}

} // namespace songsweep
