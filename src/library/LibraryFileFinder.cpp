// SPDX-License-Identifier: MIT
#include "library/LibraryFileFinder.h"

#include "library/LocationUrl.h"
#include "operations/Operation.h"
#include "platform/Log.h"
#include "platform/Preferences.h"
#include "platform/Sleeper.h"

namespace songsweep {

namespace {

/// The domain, from the user's preferences or else straight from their file.
std::optional<IAppsDomain> iAppsDomain(const ReaderServices& services) {
    if (auto domain = services.preferences.iAppsDomain()) return domain;
    std::string path = services.preferences.homeFolder();
    if (path.ends_with('/')) path.pop_back();
    path += "/Library/Preferences/com.apple.iApps.plist";
    services.log.line("Home folder: " + path);
    return services.preferences.iAppsPropertyList(path);
}

} // namespace

std::optional<std::string> LibraryFileFinder::locate() const {
    const std::optional<IAppsDomain> domain = iAppsDomain(m_services);
    if (!domain || domain->iTunesRecentDatabases.empty()) {
        m_services.log.line("RecentDatabases !> 0");
        return {};
    }
    std::optional<std::string> path = pathOfUrl(domain->iTunesRecentDatabases.front());
    m_services.log.line("iTunes library file : " + path.value_or("(null)"));
    if (path && m_files.exists(*path)) return path;
    m_services.log.line("Cannot locate iTunes XML");
    return {};
}

std::optional<FileAttributes> LibraryFileFinder::waitUntilRewritten(const std::string& path,
                                                                    const RewriteWait& wait) const {
    FileAttributes found = attributes(path);
    if (!wait.hasDelete) return found;
    const auto isRewritten = [&] { return found.modificationNanoseconds != wait.lastModified; };

    m_services.log.line("Xml enter delay");
    if (isRewritten()) return found;

    m_services.log.line("Xml enter sleep");
    sleepSeconds(wait.readDelay);
    found = attributes(path);
    if (isRewritten()) return found;

    m_services.log.line("Xml enter sleep2");
    sleepSeconds(std::int64_t{wait.readDelayMax} - wait.readDelay + 1);
    found = attributes(path);
    if (isRewritten()) return found;
    return {};
}

FileAttributes LibraryFileFinder::attributes(const std::string& path) const {
    // A file that has gone since it was found has no date; it is dealt with when it cannot be opened.
    return m_files.attributes(path).value_or(FileAttributes{});
}

void LibraryFileFinder::sleepSeconds(std::int64_t seconds) const {
    using std::chrono::milliseconds;
    constexpr milliseconds slice(50); // how soon a cancelled wait ends
    for (milliseconds left(seconds * 1000); left.count() > 0 && !m_operation.isCancelled(); left -= slice)
        m_services.sleeper.sleep(slice);
}

} // namespace songsweep
