// SPDX-License-Identifier: MIT
#include "app/ITunesQueries.h"

#include "library/ValueFormats.h"
#include "platform/Log.h"
#include "scripting/AppleScript.h"
#include "scripting/TextLiteral.h"

namespace songsweep {

namespace {

constexpr const char* errorOccured = "Error occured";

std::string textOf(const Descriptor& descriptor) { return descriptor.stringValue().value_or(std::string()); }

std::string playlistIndexScript(const std::string& name) {
    return "tell application \"iTunes\" \nset tresult to -1 \nset tcount to count of playlist \n"
           "repeat with i from 1 to tcount \nset tname to name of playlist [i] \nif tname = \"" +
           name + "\" then \nset tresult to i \nexit repeat \nend if \nend repeat \n{tresult} \nend tell";
}

} // namespace

std::optional<std::string> ITunesQueries::getMusicPlaylistName() const {
    const auto names = m_scripts.executeAndReturnError(
        "tell application \"iTunes\" \nget name of every user playlist \nend tell");
    if (!names) m_log.line(errorOccured);
    if (!names || names.value().numberOfItems() < 1) return std::nullopt;
    return textOf(*names.value().descriptorAtIndex(1));
}

std::vector<std::string> ITunesQueries::userPlaylistNames() const {
    std::vector<std::string> found;
    const auto names = m_scripts.executeAndReturnError(
        "tell application \"iTunes\" \nget name of every user playlist whose smart is false \nend tell");
    if (!names) {
        m_log.line(errorOccured);
        return found;
    }
    for (int index = 1; index <= names.value().numberOfItems(); ++index) {
        found.push_back(textOf(*names.value().descriptorAtIndex(index)));
        m_log.line("User Playlist : " + found.back());
    }
    return found;
}

std::int32_t ITunesQueries::getMusicLibraryInt(const std::string& name) const {
    // The name goes in as it is, so that one which would not read back breaks the script.
    if (escapedWords(name) != name) return -1;
    const auto index = m_scripts.executeAndReturnError(playlistIndexScript(name));
    return index ? integerValue(textOf(index.value())) : -1;
}

std::int32_t ITunesQueries::getTracksCount() const {
    const auto count = m_scripts.executeAndReturnError(
        "tell application \"iTunes\" \nget count of tracks of playlist 1 \nend tell");
    return count ? integerValue(textOf(count.value())) : -1;
}

std::int32_t ITunesQueries::majorVersion() const {
    const auto version =
        m_scripts.executeAndReturnError("tell application \"iTunes\" \nget version \nend tell \n");
    if (!version) m_log.line(errorOccured);
    const std::string text = version ? textOf(version.value()) : std::string();
    return integerValue(std::string_view(text).substr(0, text.find('.')));
}

void ITunesQueries::iTunesStop() const {
    // A stop that fails leaves nothing to do: the deletion goes on all the same.
    (void)m_scripts.executeAndReturnError("tell application \"iTunes\" to stop");
}

void ITunesQueries::play(const std::string& hfsPath) const {
    if (!canStandInText(hfsPath)) return;
    // A file that cannot be played is no news to a user who just asked for it: nothing starts.
    (void)m_scripts.executeAndReturnError("tell application \"iTunes\" \nplay \"" + escapedWords(hfsPath) +
                                          "\" \nend tell");
}

} // namespace songsweep
