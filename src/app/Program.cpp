// SPDX-License-Identifier: MIT
#include "app/Program.h"

#include "library/RecentLibrary.h"
#include "libraryfile/CleanupForesight.h"
#include "platform/GivenLibrary.h"
#include "platform/Log.h"
#include "platform/Native.h"

#include <filesystem>

namespace songsweep {

namespace {

/// For the moment in which somebody else writes, not for a whole clean-up.
constexpr std::chrono::seconds lockTimeout{2};

/// Short, unless the letters of "link/.." would then lead elsewhere than the system goes.
std::string absolutePath(const std::string& path) {
    namespace fs = std::filesystem;
    std::error_code error;
    const fs::path absolute = fs::absolute(path, error);
    if (error) return path;
    const fs::path normal = absolute.lexically_normal();
    return (fs::equivalent(absolute, normal, error) ? normal : absolute).string();
}

std::string noLibraryReason() {
    std::string places;
    for (const std::string& place : nativeLibraryPlaces())
        places += (places.empty() ? "" : ", ") + place;
    return "no library was found on this machine; name one with --library, or open one in the window (looked "
           "for in " +
           places + ")";
}

} // namespace

void ChosenLibraryPreferences::choose(const std::string& path) {
    m_chosen = std::make_unique<GivenLibrary>(path);
}

const Preferences& ChosenLibraryPreferences::present() const { return m_chosen ? *m_chosen : *m_others; }

std::optional<IAppsDomain> ChosenLibraryPreferences::iAppsDomain() const { return present().iAppsDomain(); }

std::optional<IAppsDomain> ChosenLibraryPreferences::iAppsPropertyList(const std::string& path) const {
    return present().iAppsPropertyList(path);
}

std::string ChosenLibraryPreferences::homeFolder() const { return present().homeFolder(); }

Program::Program(ProgramOptions options, Log& log, std::unique_ptr<AppleScript> systemScripts)
    : m_options(std::move(options))
    , m_log(log)
    , m_files(m_options.map)
    , m_desktop(nativeDesktop())
    , m_preferences(nativePreferences())
    , m_scripting({}, *m_desktop, m_files, scriptingOptions())
    , m_scripts(std::move(systemScripts), m_scripting)
    , m_cleanup(m_scripting, [this] { return m_scripts.usesEmbedded(); },
                {{m_options.purpose, lockTimeout}, "Songsweep " + m_options.version}) {
    if (!m_options.library.empty()) {
        m_preferences.choose(absolutePath(m_options.library));
        m_scripts.chooseEmbedded();
    }
    // Nothing is pending in a program that has just begun. The system's iTunes, too, has its files looked at
    // here.
    (void)m_scripting.openLibrary(recentLibrary(m_preferences).path.value_or(""));
}

EmbeddedScripting::Options Program::scriptingOptions() {
    EmbeddedScripting::Options options;
    options.iTunesVersion = m_options.iTunesVersion;
    options.log = &m_log;
    options.writeFailed = [this](const Error& error) {
        QMetaObject::invokeMethod(
            &m_mainThread,
            [this, reason = error.message] {
                if (m_writeFailed) m_writeFailed(withLibraryPath(reason));
            },
            Qt::QueuedConnection);
    };
    return options;
}

ControllerServices Program::controllerServices() {
    return {
        .scripts = m_scripts,
        .files = m_files,
        .preferences = m_preferences,
        .sleeper = m_sleeper,
        .log = m_log,
        .desktop = *m_desktop,
        .cleanup = m_cleanup,
        .version = m_options.version,
        .unreachableReason = [this] { return unreachableReason(); },
        .libraryLocations = [this](const LocationVisitor& visit) { return visitLocations(visit); },
        .areTracksOfITunes =
            [this](const std::vector<TrackRecord*>& records) { return areTracksOfITunes(records); },
        .tracksOfId = [this](std::string_view pid) { return tracksOfId(pid); },
        .libraryForesight = [this] { return foreseeWriting(); },
        .libraryFile =
            [this] { return m_scripts.usesEmbedded() ? m_scripting.libraryPath() : std::string(); },
        .writeLibrary = [this] { return writeLibrary(); },
        .embeddedLibrary = [this] { return m_scripts.usesEmbedded(); },
        .mapRules = m_options.mapRules,
    };
}

OpenedLibrary Program::openLibrary(const std::string& path) {
    const std::string absolute = absolutePath(path);
    const Result<void> turned = m_scripting.openLibrary(absolute);
    if (!turned) return {.turned = false, .problem = turned.error().message};
    m_preferences.choose(absolute);
    m_scripts.chooseEmbedded();
    const Result<void> read = m_scripting.readLibrary();
    return {.turned = true, .problem = read ? std::string() : read.error().message};
}

std::string Program::unreachableReason() const {
    if (!m_scripts.usesEmbedded()) return {};
    const std::optional<Error> error = m_scripting.libraryError();
    if (!error) return {};
    if (m_scripting.libraryPath().empty()) return noLibraryReason();
    return withLibraryPath(error->message);
}

std::string Program::withLibraryPath(const std::string& reason) const {
    const std::string path = m_scripting.libraryPath();
    return reason.find(path) != std::string::npos ? reason : path + ": " + reason;
}

void Program::setWriteFailedHandler(std::function<void(const std::string&)> handler) {
    m_writeFailed = std::move(handler);
}

Result<void> Program::writeLibrary() {
    const Result<void> written = m_scripting.flush();
    if (!written) return Error{written.error().code, withLibraryPath(written.error().message)};
    return {};
}

/// The system's iTunes cannot be asked so.
bool Program::areTracksOfITunes(const std::vector<TrackRecord*>& records) {
    if (!m_scripts.usesEmbedded()) return true;
    const Result<bool> same = m_scripting.hasTracks(records);
    return same && same.value();
}

/// The system's iTunes is not asked: it gives no ID twice.
std::vector<std::string> Program::tracksOfId(std::string_view pid) {
    return m_scripts.usesEmbedded() ? m_scripting.tracksOfId(pid) : std::vector<std::string>();
}

Result<void> Program::foreseeWriting() {
    if (!m_scripts.usesEmbedded()) return {};
    const Result<void> foreseen = foreseeCleanup(m_scripting.libraryPath());
    if (!foreseen) return Error{foreseen.error().code, withLibraryPath(foreseen.error().message)};
    return {};
}

bool Program::visitLocations(const LocationVisitor& visit) {
    const Result<void> visited = m_scripting.forEachLocation(visit);
    if (!visited) m_log.line("The files of the library could not be looked at: " + visited.error().message);
    return visited.hasValue();
}

} // namespace songsweep
