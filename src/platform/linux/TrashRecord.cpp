// SPDX-License-Identifier: MIT
#include "platform/linux/TrashRecord.h"

#include "platform/linux/Gio.h"

#include <string_view>

namespace songsweep {

namespace {

std::optional<std::string> contentsOf(const std::string& file) {
    gchar* bytes = nullptr;
    gsize length = 0;
    if (g_file_get_contents(file.c_str(), &bytes, &length, nullptr) == 0) return std::nullopt;
    const gio::Owned<gchar> owner(bytes);
    return std::string(bytes, length);
}

/// The value of the line "Path=..." of the one group that records have; a line without its end was cut off.
std::optional<std::string_view> pathLine(std::string_view record) {
    constexpr std::string_view key = "\nPath=";
    if (!record.starts_with("[Trash Info]\n")) return std::nullopt;
    const std::size_t start = record.find(key);
    if (start == std::string_view::npos) return std::nullopt;
    record.remove_prefix(start + key.size());
    const std::size_t end = record.find('\n');
    if (end == std::string_view::npos) return std::nullopt;
    return record.substr(0, end);
}

} // namespace

std::optional<std::string> recordedPath(const std::string& recordFile) {
    const std::optional<std::string> record = contentsOf(recordFile);
    if (!record) return std::nullopt;
    const std::optional<std::string_view> line = pathLine(*record);
    if (!line || line->empty()) return std::nullopt;
    const gio::Owned<gchar> path(g_uri_unescape_string(std::string(*line).c_str(), nullptr));
    if (path == nullptr) return std::nullopt;
    return std::string(path.get());
}

} // namespace songsweep
