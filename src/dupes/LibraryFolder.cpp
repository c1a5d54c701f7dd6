// SPDX-License-Identifier: MIT
#include "dupes/LibraryFolder.h"

#include "dupes/MarkingRules.h"
#include "platform/Files.h"
#include "platform/LocalName.h"
#include "platform/NameForms.h"

#include <algorithm>
#include <string_view>
#include <unordered_set>

namespace songsweep {

namespace {

/// The folder that the path lies in; empty at the root.
std::string_view parentOf(std::string_view path) {
    const std::size_t slash = path.rfind('/');
    return slash == std::string_view::npos ? std::string_view() : path.substr(0, slash);
}

/// One spelling for all names of a local folder.
std::string localFolder(const std::string& path) { return composedForm(canonicalPath(path)); }

} // namespace

std::string folderInLibrary(const TrackRows& rows, std::string folder, const Files& files) {
    while (folder.size() > 1 && folder.ends_with('/'))
        folder.pop_back();
    if (folder.empty() || matchesRow(rows, {MarkType::folder, false, folder})) return folder;
    const std::string wanted = localFolder(folder);
    std::unordered_set<std::string_view> seen;
    for (const TrackRecord* const row : rows)
        for (std::string_view each = parentOf(row->location); !each.empty(); each = parentOf(each)) {
            if (!seen.insert(each).second) break; // and so were those above it
            if (localFolder(files.localPath(std::string(each))) == wanted) return std::string(each);
        }
    return folder;
}

} // namespace songsweep
