// SPDX-License-Identifier: MIT
#include "platform/linux/LinuxRecentFiles.h"

#include "platform/UsualLibraries.h"
#include "platform/linux/Gio.h"

#include <sys/stat.h>

#include <algorithm>
#include <ctime>
#include <utility>

namespace songsweep {

namespace {

constexpr const char* applicationName = "Songsweep";
constexpr const char* applicationCommand = "songsweep %f";
constexpr const char* libraryType = "application/xml";

struct FreeBookmarks {
    void operator()(GBookmarkFile* bookmarks) const { g_bookmark_file_free(bookmarks); }
};
using Bookmarks = std::unique_ptr<GBookmarkFile, FreeBookmarks>;

/// Null where there is a list that cannot be read: nobody may write another in its place.
Bookmarks read(const std::string& path) {
    Bookmarks bookmarks(g_bookmark_file_new());
    GError* problem = nullptr;
    if (g_bookmark_file_load_from_file(bookmarks.get(), path.c_str(), &problem) != FALSE) return bookmarks;
    const gio::Owned<GError> error(problem);
    return g_error_matches(error.get(), G_FILE_ERROR, G_FILE_ERROR_NOENT) != FALSE ? std::move(bookmarks)
                                                                                   : nullptr;
}

std::string localPath(const char* uri) {
    const gio::Owned<gchar> path(g_filename_from_uri(uri, nullptr, nullptr));
    return path ? path.get() : std::string();
}

bool isFile(const std::string& path) {
    struct stat attributes {};
    return ::stat(path.c_str(), &attributes) == 0 && S_ISREG(attributes.st_mode);
}

std::time_t lastUse(GBookmarkFile* bookmarks, const char* uri) {
    GDateTime* const used = g_bookmark_file_get_modified_date_time(bookmarks, uri, nullptr);
    return used == nullptr ? 0 : static_cast<std::time_t>(g_date_time_to_unix(used));
}

using Dated = std::pair<std::time_t, std::string>;

/// Whether the file is one is looked at last, since its medium may sleep.
std::vector<Dated> librariesIn(GBookmarkFile* bookmarks) {
    std::vector<Dated> found;
    gsize count = 0;
    gchar** const uris = g_bookmark_file_get_uris(bookmarks, &count);
    for (gsize index = 0; index < count; ++index) {
        const char* const uri = uris[index];
        const std::string path = localPath(uri);
        const bool isOurs =
            g_bookmark_file_has_application(bookmarks, uri, applicationName, nullptr) != FALSE;
        if (path.empty() || !(isOurs || hasUsualLibraryName(path)) || !isFile(path)) continue;
        found.emplace_back(lastUse(bookmarks, uri), path);
    }
    g_strfreev(uris);
    return found;
}

} // namespace

std::string LinuxRecentFiles::userList() {
    return std::string(g_get_user_data_dir()) + "/recently-used.xbel";
}

std::vector<std::string> LinuxRecentFiles::libraries() const {
    const Bookmarks bookmarks = read(m_path);
    if (!bookmarks) return {};
    std::vector<Dated> found = librariesIn(bookmarks.get());
    std::stable_sort(found.begin(), found.end(),
                     [](const Dated& a, const Dated& b) { return a.first > b.first; });
    std::vector<std::string> paths;
    paths.reserve(found.size());
    for (Dated& each : found)
        paths.push_back(std::move(each.second));
    return paths;
}

void LinuxRecentFiles::note(const std::string& path) {
    const Bookmarks bookmarks = read(m_path);
    if (!bookmarks) return;
    const gio::Owned<gchar> uri(g_filename_to_uri(path.c_str(), nullptr, nullptr));
    if (!uri) return;
    g_bookmark_file_set_mime_type(bookmarks.get(), uri.get(), libraryType);
    g_bookmark_file_add_application(bookmarks.get(), uri.get(), applicationName, applicationCommand);
    g_bookmark_file_to_file(bookmarks.get(), m_path.c_str(), nullptr);
}

std::unique_ptr<RecentFiles> nativeRecentFiles() {
    return std::make_unique<LinuxRecentFiles>(LinuxRecentFiles::userList());
}

} // namespace songsweep
