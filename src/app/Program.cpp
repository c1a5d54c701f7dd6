// SPDX-License-Identifier: MIT
#include "app/Program.h"

#include "app/Guide.h"
#include "library/RecentLibrary.h"
#include "libraryfile/CleanupForesight.h"
#include "libraryfile/ForeignFile.h"
#include "libraryfile/LibraryFile.h"
#include "merge/LibraryMerge.h"
#include "platform/GivenLibrary.h"
#include "platform/Log.h"
#include "platform/Native.h"
#include "platform/ReasonWithPath.h"
#include "platform/UsualLibraries.h"

#include <QCoreApplication>

#include <algorithm>
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

/// The library in a folder, or the file itself where it may be one.
Result<std::string> libraryAt(const std::string& path) {
    if (const auto reason = foreignFile(path)) return Error{Error::Code::invalid, *reason};
    std::error_code error;
    if (!std::filesystem::is_directory(path, error)) return path;
    const std::vector<std::string> found = usualLibraries(path);
    if (!found.empty()) return found.front();
    return Error{Error::Code::notFound, path + " holds no library file. " + wayToLibraryFile()};
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
    m_libraryPath = recentLibrary(m_preferences).path.value_or("");
    (void)m_scripting.openLibrary(m_libraryPath);
}

EmbeddedScripting::Options Program::scriptingOptions() {
    EmbeddedScripting::Options options;
    options.iTunesVersion = m_options.iTunesVersion;
    options.library.reading = LibraryDocument::Reading::indexAndTracks;
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
        .playerName = [this] { return m_scripts.usesEmbedded() ? "iTunes" : nativePlayerName(); },
        .unreachableReason = [this] { return unreachableReason(); },
        .libraryLocations = [this](const LocationVisitor& visit) { return visitLocations(visit); },
        .areTracksOfITunes =
            [this](const std::vector<TrackRecord*>& records) { return areTracksOfITunes(records); },
        .openNodes = [this](const std::string& path) { return m_scripting.openNodes(path); },
        .tracksOfId = [this](std::string_view pid) { return tracksOfId(pid); },
        .playlistsOfTracks =
            [this](const std::vector<std::string>& persistentIds) { return playlistsOf(persistentIds); },
        .libraryForesight = [this](const CleanupSize& size) { return foreseeWriting(size); },
        .libraryFile = [this] { return m_scripts.usesEmbedded() ? m_libraryPath : std::string(); },
        .libraryContents = [this] { return libraryContents(); },
        .libraryPlaces = [] { return nativeLibraryPlaces(); },
        .otherLibraries = [this] { return otherLibraries(); },
        .guide = [] { return guideFile(QCoreApplication::applicationDirPath().toStdString()); },
        .writeLibrary = [this] { return writeLibrary(); },
        .embeddedLibrary = [this] { return m_scripts.usesEmbedded(); },
        .mapRules = [this] { return m_options.mapRules; },
        .addMapRule = [this](const MapRule& rule) { addMapRule(rule); },
        .planMerge = [this](const SongsToMerge& songs,
                            const MergeChoice& choice) { return planMergeOf(songs, choice); },
    };
}

void Program::addMapRule(const MapRule& rule) {
    m_options.mapRules.push_back(rule);
    m_options.map.add(rule.from, rule.to);
    m_files.setMap(m_options.map);
}

OpenedLibrary Program::openLibrary(const std::string& path) {
    const Result<std::string> library = libraryAt(absolutePath(path));
    if (!library) return {.turned = false, .problem = library.error().message};
    const std::string& absolute = library.value();
    const Result<void> turned = m_scripting.openLibrary(absolute);
    if (!turned) return {.turned = false, .problem = turned.error().message};
    m_preferences.choose(absolute);
    m_scripts.chooseEmbedded();
    m_libraryPath = absolute;
    return {.turned = true, .problem = {}};
}

std::string Program::unreachableReason() const {
    if (!m_scripts.usesEmbedded()) return {};
    const std::optional<Error> error = m_scripting.libraryError();
    if (!error) return {};
    if (m_scripting.libraryPath().empty()) return noLibraryReason();
    return withLibraryPath(error->message);
}

std::string Program::withLibraryPath(const std::string& reason) const {
    return reasonWithPath(m_scripting.libraryPath(), reason);
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

/// What the system's iTunes knows stands in the library file that it writes.
Result<MergePlan> Program::planMergeOf(const SongsToMerge& songs, const MergeChoice& choice) {
    const auto road = m_scripts.usesEmbedded() ? MergeRoad::libraryFile : MergeRoad::iTunes;
    return m_scripting.withLibrary(
        [&](LibraryDocument& library) { return planMerge(library, songs, choice, road); });
}

/// The system's iTunes is not asked: it gives no ID twice.
std::vector<std::string> Program::tracksOfId(std::string_view pid) {
    return m_scripts.usesEmbedded() ? m_scripting.tracksOfId(pid) : std::vector<std::string>();
}

std::vector<std::vector<std::string>> Program::playlistsOf(const std::vector<std::string>& persistentIds) {
    if (!m_scripts.usesEmbedded()) return {};
    return m_scripting.playlistsOf(persistentIds);
}

Result<CleanupRoom> Program::foreseeWriting(const CleanupSize& size) {
    if (!m_scripts.usesEmbedded()) return CleanupRoom();
    Result<CleanupRoom> foreseen = foreseeCleanup(m_scripting.libraryPath(), size);
    if (!foreseen) return Error{foreseen.error().code, withLibraryPath(foreseen.error().message)};
    return foreseen;
}

/// On a worker thread.
Result<LibraryContents> Program::libraryContents() {
    const std::string path = m_scripting.libraryPath();
    if (const auto reason = foreignFile(path)) return Error{Error::Code::invalid, *reason};
    const Result<int> tracks = m_scripting.trackCount();
    const Result<std::vector<PlaylistInfo>> playlists = m_scripting.playlists();
    if (!tracks) return unreadable(tracks.error());
    if (!playlists) return unreadable(playlists.error());
    if (m_options.recentFiles) m_options.recentFiles->note(path);
    constexpr std::int64_t nanosecondsPerSecond = 1'000'000'000;
    const Result<FileStamp> stamp = LibraryFile::stampOf(path);
    const auto isUsers = [](const PlaylistInfo& playlist) { return !playlist.library && !playlist.folder; };
    return LibraryContents{
        .tracks = tracks.value(),
        .playlists =
            static_cast<int>(std::count_if(playlists.value().begin(), playlists.value().end(), isUsers)),
        .savedSeconds = stamp ? stamp.value().modificationNanoseconds / nanosecondsPerSecond : 0};
}

Error Program::unreadable(const Error& reason) const {
    const std::string sentence = withLibraryPath(reason.message);
    if (reason.code != Error::Code::invalid) return {reason.code, sentence};
    return {reason.code, sentence + "\n" + wayToLibraryFile()};
}

/// On a worker thread.
std::vector<std::string> Program::otherLibraries() const {
    constexpr std::size_t most = 5;
    std::vector<std::string> found = nativeLibraries();
    const std::vector<std::string> recent =
        m_options.recentFiles ? m_options.recentFiles->libraries() : std::vector<std::string>();
    found.insert(found.end(), recent.begin(), recent.end());
    const std::string present = m_scripting.libraryPath();
    std::vector<std::string> others;
    for (const std::string& path : found)
        if (path != present && others.size() < most &&
            std::find(others.begin(), others.end(), path) == others.end())
            others.push_back(path);
    return others;
}

bool Program::visitLocations(const LocationVisitor& visit) {
    const Result<void> visited = m_scripting.forEachLocation(visit);
    if (!visited) m_log.line("The files of the library could not be looked at: " + visited.error().message);
    return visited.hasValue();
}

} // namespace songsweep
