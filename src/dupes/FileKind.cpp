// SPDX-License-Identifier: MIT
#include "dupes/FileKind.h"

#include "library/CaseFolding.h"
#include "library/RowParts.h"
#include "platform/Ascii.h"

#include <algorithm>
#include <map>
#include <mutex>
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

namespace {

/// As written, so that most rows cost no conversion.
std::vector<std::string_view> extensionsIn(const std::vector<TrackRecord*>& rows, RowGroup part) {
    std::vector<std::string_view> extensions;
    std::unordered_set<std::string_view> seen;
    for (std::size_t row = part.first; row < part.end; ++row) {
        const std::string_view extension = fileExtension(rows[row]->location);
        if (!extension.empty() && seen.insert(extension).second) extensions.push_back(extension);
    }
    return extensions;
}

} // namespace

std::vector<std::string> kindsOf(const std::vector<TrackRecord*>& rows) {
    std::mutex lock;
    std::map<std::size_t, std::vector<std::string_view>> extensions; // of the parts, in their order
    inParts(rows, [&](RowGroup part) {
        std::vector<std::string_view> ofPart = extensionsIn(rows, part);
        const std::lock_guard guard(lock);
        extensions.emplace(part.first, std::move(ofPart));
    });
    std::vector<std::string> kinds;
    std::unordered_set<std::string> known;
    for (const auto& [first, ofPart] : extensions)
        for (const std::string_view extension : ofPart)
            if (std::string kind = uppercase(extension); known.insert(kind).second)
                kinds.push_back(std::move(kind));
    return kinds;
}

} // namespace songsweep
