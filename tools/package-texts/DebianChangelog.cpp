// SPDX-License-Identifier: MIT
#include "package-texts/Changelog.h"

#include <ctime>
#include <sstream>

namespace songsweep {

namespace {

constexpr std::size_t widestLine = 78;

/// "Sun, 22 Nov 2026 00:00:00 +0000", whatever the locale.
std::string mailDate(const std::string& date) {
    static const char* const days[] = {"Sun", "Mon", "Tue", "Wed", "Thu", "Fri", "Sat"};
    static const char* const months[] = {"Jan", "Feb", "Mar", "Apr", "May", "Jun",
                                         "Jul", "Aug", "Sep", "Oct", "Nov", "Dec"};
    constexpr int firstYear = 1900;
    std::tm time{};
    time.tm_year = std::stoi(date.substr(0, 4)) - firstYear;
    time.tm_mon = std::stoi(date.substr(5, 2)) - 1;
    time.tm_mday = std::stoi(date.substr(8, 2));
    timegm(&time);
    return std::string(days[time.tm_wday]) + ", " + date.substr(8, 2) + " " + months[time.tm_mon] + " " +
           date.substr(0, 4) + " 00:00:00 +0000";
}

/// "  * " and the text, broken at blanks.
std::string item(const std::string& text) {
    std::istringstream words(text);
    std::string result;
    std::string line = "  *";
    for (std::string word; words >> word;) {
        if (line.size() + 1 + word.size() > widestLine) {
            result += line + "\n";
            line = "   ";
        }
        line += " " + word;
    }
    return result + line + "\n";
}

std::string entry(const Release& release) {
    std::string text = "songsweep (" + release.version + ") stable; urgency=medium\n\n";
    for (const Release::Part& part : release.parts)
        for (const std::string& change : part.items)
            text += item(change);
    return text + "\n -- The Songsweep developers <developers@songsweep.example>  " + mailDate(release.date) +
           "\n";
}

} // namespace

std::string debianChangelog(const std::vector<Release>& releases) {
    std::string text;
    for (const Release& release : releases)
        if (!release.date.empty()) text += (text.empty() ? "" : "\n") + entry(release);
    return text;
}

} // namespace songsweep
