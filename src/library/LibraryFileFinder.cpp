// SPDX-License-Identifier: MIT
#include "library/LibraryFileFinder.h"

#include "library/RecentLibrary.h"
#include "operations/Operation.h"
#include "platform/Log.h"
#include "platform/Sleeper.h"

#include <utility>

namespace songsweep {

std::optional<std::string> LibraryFileFinder::locate() const {
    RecentLibrary recent = recentLibrary(m_services.preferences);
    if (!recent.propertyList.empty()) m_services.log.line("Home folder: " + recent.propertyList);
    if (!recent.isNamed) {
        m_services.log.line("RecentDatabases !> 0");
        return {};
    }
    m_services.log.line("iTunes library file : " + recent.path.value_or("(null)"));
    if (recent.path && m_files.exists(*recent.path)) return std::move(recent.path);
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
