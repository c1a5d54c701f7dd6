// SPDX-License-Identifier: MIT
#include "scan/ScanProgress.h"

#include "library/GroupedNumber.h"
#include "library/ValueFormats.h"
#include "platform/Words.h"

namespace songsweep {

namespace {

/// Empty as long as nobody can tell.
std::string timeLeft(std::size_t read, std::size_t toRead, std::chrono::milliseconds elapsed) {
    using namespace std::chrono;
    constexpr milliseconds longEnough{2000};
    constexpr std::int64_t secondsOfMinute = 60;
    constexpr std::int64_t minutesOfHour = 60;
    if (elapsed < longEnough || read == 0 || read >= toRead) return {};
    const double left =
        duration<double>(elapsed).count() * static_cast<double>(toRead - read) / static_cast<double>(read);
    const auto minutes = (static_cast<std::int64_t>(left) + secondsOfMinute / 2) / secondsOfMinute;
    if (minutes == 0) return ", " + words("ScanProgress", "less than a minute left");
    if (minutes < 2 * minutesOfHour)
        return ", " + countedWords("ScanProgress", "about %1 minutes left", "about 1 minute left", minutes);
    return ", " +
           countedWords("ScanProgress", "about %1 hours left", "about 1 hour left", minutes / minutesOfHour);
}

} // namespace

std::string scanProgressText(std::size_t read, std::size_t toRead, std::chrono::milliseconds elapsed) {
    const std::string text = toRead == 1 ? words("ScanProgress", "Reading %1 of %2 file…")
                                         : words("ScanProgress", "Reading %1 of %2 files…");
    return filled(text, {groupedNumber(read), groupedNumber(toRead)}) + timeLeft(read, toRead, elapsed);
}

std::string unreadFilesText(std::size_t count) {
    return count == 0 ? std::string()
                      : countedWords("ScanProgress", "%1 files could not be read", "1 file could not be read",
                                     count);
}

} // namespace songsweep
