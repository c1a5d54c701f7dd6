// SPDX-License-Identifier: MIT
#include "dupes/FileKind.h"

#include "library/CaseFolding.h"
#include "platform/Ascii.h"

#include <algorithm>
#include <unordered_set>

namespace songsweep {

std::string_view fileExtension(std::string_view path) {
    for (std::size_t i = path.size(); i > 0 && path[i - 1] != '/'; --i)
        if (path[i - 1] == '.') return path.substr(i);
    return {};
}

std::string fileKind(std::string_view path) { return uppercase(fileExtension(path)); }

bool isOfKind(std::string_view path, std::string_view kind) {
    const std::string_view extension = fileExtension(path);
    if (!isAscii(extension)) return uppercase(extension) == kind;
    if (extension.size() != kind.size()) return false;
    return std::equal(extension.begin(), extension.end(), kind.begin(),
                      [](char a, char b) { return asciiUpper(a) == b; });
}

std::vector<std::string> kindsOf(const std::vector<TrackRecord*>& rows) {
    std::vector<std::string> kinds;
    std::unordered_set<std::string> known;
    std::unordered_set<std::string_view> seen; // as written, so that most rows cost no conversion
    for (const TrackRecord* const record : rows) {
        const std::string_view extension = fileExtension(record->location);
        if (extension.empty() || !seen.insert(extension).second) continue;
        std::string kind = uppercase(extension);
        if (known.insert(kind).second) kinds.push_back(std::move(kind));
    }
    return kinds;
}

} // namespace songsweep
