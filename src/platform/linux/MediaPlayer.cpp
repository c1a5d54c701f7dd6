// SPDX-License-Identifier: MIT
#include "platform/linux/MediaPlayer.h"

#include "platform/FileUrl.h"
#include "platform/linux/Opener.h"
#include "platform/linux/SessionBus.h"

#include <algorithm>
#include <optional>
#include <string_view>
#include <vector>

namespace songsweep {

namespace {

constexpr std::chrono::milliseconds answerLimit{1000};
constexpr const char* playerPath = "/org/mpris/MediaPlayer2";
constexpr const char* playerInterface = "org.mpris.MediaPlayer2.Player";

std::vector<std::string> runningPlayers(const SessionBus& bus) {
    const SessionBus::Method listNames{"org.freedesktop.DBus", "/org/freedesktop/DBus",
                                       "org.freedesktop.DBus", "ListNames"};
    const auto answer = bus.call(listNames, nullptr, answerLimit);
    std::vector<std::string> players;
    if (!answer || g_variant_is_of_type(answer.value().get(), G_VARIANT_TYPE("(as)")) == 0) return players;
    GVariantIter* names = nullptr;
    g_variant_get(answer.value().get(), "(as)", &names);
    const char* name = nullptr;
    while (g_variant_iter_next(names, "&s", &name) != 0)
        if (std::string_view(name).starts_with("org.mpris.MediaPlayer2.")) players.emplace_back(name);
    g_variant_iter_free(names);
    std::sort(players.begin(), players.end());
    return players;
}

/// A property's value; where the player does not tell it, or not in time, the error says so.
Result<gio::Owned<GVariant>> property(const SessionBus& bus, const std::string& player, const char* interface,
                                      const char* name) {
    const SessionBus::Method get{player, playerPath, "org.freedesktop.DBus.Properties", "Get"};
    const auto answer = bus.call(get, g_variant_new("(ss)", interface, name), answerLimit);
    if (!answer) return answer.error();
    if (g_variant_is_of_type(answer.value().get(), G_VARIANT_TYPE("(v)")) == 0)
        return Error{Error::Code::invalid, "Not a property"};
    GVariant* value = nullptr;
    g_variant_get(answer.value().get(), "(v)", &value);
    return gio::Owned<GVariant>(value);
}

/// How close a player is to playing: 0 when it plays, 1 when it is paused, else 2. Nothing for one that
/// hangs.
std::optional<int> distanceFromPlaying(const SessionBus& bus, const std::string& player) {
    const auto status = property(bus, player, playerInterface, "PlaybackStatus");
    if (!status && status.error().code == Error::Code::busy) return std::nullopt;
    if (!status || g_variant_is_of_type(status.value().get(), G_VARIANT_TYPE_STRING) == 0) return 2;
    const std::string_view text = g_variant_get_string(status.value().get(), nullptr);
    if (text == "Playing") return 0;
    return text == "Paused" ? 1 : 2;
}

std::vector<std::string> playersByPreference(const SessionBus& bus) {
    std::vector<std::pair<int, std::string>> ranked;
    for (std::string& name : runningPlayers(bus))
        if (const std::optional<int> distance = distanceFromPlaying(bus, name))
            ranked.emplace_back(*distance, std::move(name));
    std::sort(ranked.begin(), ranked.end());
    std::vector<std::string> players;
    players.reserve(ranked.size());
    for (auto& [distance, name] : ranked)
        players.push_back(std::move(name));
    return players;
}

/// False only where the player lists what it opens, and files are not in the list, as browsers do.
bool opensFiles(const SessionBus& bus, const std::string& player) {
    const auto schemes = property(bus, player, "org.mpris.MediaPlayer2", "SupportedUriSchemes");
    if (!schemes || g_variant_is_of_type(schemes.value().get(), G_VARIANT_TYPE_STRING_ARRAY) == 0)
        return true;
    // The array is ours, its texts stay the value's.
    const std::unique_ptr<const gchar*, decltype(&g_free)> list(
        g_variant_get_strv(schemes.value().get(), nullptr), &g_free);
    return g_strv_contains(list.get(), "file") != 0;
}

Result<void> callPlayer(const SessionBus& bus, const std::string& player, const char* name,
                        GVariant* arguments) {
    const auto answer = bus.call({player, playerPath, playerInterface, name}, arguments, answerLimit);
    if (!answer) return answer.error();
    return {};
}

/// Whether a running player took the file.
bool playInRunningPlayer(const std::string& url) {
    const Result<SessionBus> bus = SessionBus::open();
    if (!bus) return false;
    const std::vector<std::string> players = playersByPreference(bus.value());
    return std::any_of(players.begin(), players.end(), [&](const std::string& player) {
        return opensFiles(bus.value(), player) &&
               callPlayer(bus.value(), player, "OpenUri", g_variant_new("(s)", url.c_str())).hasValue();
    });
}

} // namespace

Result<void> playFile(const std::string& path) {
    if (!path.starts_with('/')) return Error{Error::Code::invalid, "Not an absolute path"};
    const std::string url = fileUrl(path);
    if (playInRunningPlayer(url)) return {};
    return openWithDefault(url);
}

Result<void> stopPlayer() {
    const Result<SessionBus> bus = SessionBus::open();
    if (!bus) return {};
    const std::vector<std::string> players = playersByPreference(bus.value());
    if (players.empty()) return {};
    return callPlayer(bus.value(), players.front(), "Stop", nullptr);
}

} // namespace songsweep
