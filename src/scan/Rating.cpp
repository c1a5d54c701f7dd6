// SPDX-License-Identifier: MIT
#include "scan/Rating.h"

#include <algorithm>
#include <charconv>
#include <cmath>

namespace songsweep {

std::int32_t ratingOfPopularity(std::int32_t popularity) {
    constexpr std::int32_t star = 20;
    if (popularity <= 0) return 0;
    if (popularity < 32) return star;
    if (popularity < 96) return 2 * star;
    if (popularity < 160) return 3 * star;
    return popularity < 224 ? 4 * star : 5 * star;
}

namespace {

/// 0 where it is none from 0 to 100.
double valueOf(std::string_view text) {
    double value = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
    const bool isWhole = error == std::errc() && end == text.data() + text.size();
    return isWhole && value > 0 && value <= 100 ? value : 0;
}

} // namespace

std::int32_t ratingOfPart(std::string_view text) {
    const double value = valueOf(text);
    return value <= 1 ? static_cast<std::int32_t>(std::lround(value * 100)) : 0;
}

std::int32_t ratingOfText(std::string_view text) {
    const double value = valueOf(text);
    const bool isPart = value <= 1 && text.find('.') != std::string_view::npos;
    double scale = 1;
    if (isPart) {
        scale = 100;
    } else if (value <= 5) {
        scale = 20;
    } else if (value <= 10) {
        scale = 10;
    }
    return static_cast<std::int32_t>(std::lround(value * scale));
}

} // namespace songsweep
