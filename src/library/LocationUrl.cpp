// SPDX-License-Identifier: MIT
#include "library/LocationUrl.h"

#include "platform/Ascii.h"

#include <algorithm>
#include <array>
#include <cstdint>

namespace songsweep {

namespace {

constexpr bool isAlphanumeric(char c) {
    return (c >= '0' && c <= '9') || (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z');
}

/// Whether a character may stand in a URL as it is; "%" and "#" have rules of their own.
constexpr std::array<bool, 256> plainCharacters = [] {
    std::array<bool, 256> table{};
    for (const char c : std::string_view("-._~!$&'()*+,;=:@/?[]"))
        table[static_cast<unsigned char>(c)] = true;
    for (std::size_t c = 0; c < 128; ++c)
        if (isAlphanumeric(static_cast<char>(c))) table[c] = true;
    return table;
}();

bool isEscape(std::string_view text) {
    return text.size() >= 3 && hexDigit(text[1]) >= 0 && hexDigit(text[2]) >= 0;
}

/// The length of the URL without its query and fragment; nothing where the text holds anything but allowed
/// characters, whole escapes and one "#" at most.
std::optional<std::size_t> lengthUpToQuery(std::string_view text) {
    std::size_t length = text.size();
    bool inFragment = false;
    for (std::size_t i = 0; i < text.size(); ++i) {
        const char c = text[i];
        if (c == '?' || c == '#') length = std::min(length, i);
        if (plainCharacters[static_cast<unsigned char>(c)]) continue;
        if (c == '%' && isEscape(text.substr(i))) continue;
        if (c != '#' || inFragment) return {};
        inFragment = true;
    }
    return length;
}

/// The length of a leading "scheme:", 0 where there is none.
std::size_t schemeLength(std::string_view url) {
    for (std::size_t i = 0; i < url.size(); ++i) {
        if (url[i] == ':') return i == 0 ? 0 : i + 1;
        const bool mark = i > 0 && (url[i] == '+' || url[i] == '-' || url[i] == '.');
        if (!mark && !isAlphanumeric(url[i])) return 0;
    }
    return 0;
}

/// The path as it is written, a part of the URL without query and fragment; empty where it has none.
std::string_view writtenPath(std::string_view url) {
    const std::size_t scheme = schemeLength(url);
    url.remove_prefix(scheme);
    if (scheme > 0 && !url.starts_with('/')) return {}; // opaque, as "mailto:" is
    if (!url.starts_with("//")) return url;
    const std::size_t afterHost = url.find('/', 2);
    return afterHost == std::string_view::npos ? std::string_view() : url.substr(afterHost);
}

bool isFileScheme(std::string_view scheme) { return asciiLower(std::string(scheme)) == "file:"; }

/// Writes the decoded path to `target`, which may be where the path comes from or before it. A "%" that
/// begins no escape stays as it is.
std::size_t decode(std::string_view path, char* target) {
    std::size_t length = 0;
    for (std::size_t i = 0; i < path.size(); ++i) {
        char c = path[i];
        if (c == '%' && isEscape(path.substr(i))) {
            c = static_cast<char>(hexDigit(path[i + 1]) * 16 + hexDigit(path[i + 2]));
            i += 2;
        }
        target[length++] = c;
    }
    return length;
}

} // namespace

std::optional<std::size_t> makePathOfUrl(std::span<char> url) {
    const std::string_view text(url.data(), url.size());
    const std::optional<std::size_t> end = lengthUpToQuery(text);
    if (!end) return {};
    const std::string_view path = writtenPath(text.substr(0, *end));
    if (path.empty()) return {};
    std::size_t length = decode(path, url.data());
    if (text.substr(0, length).find('\0') != std::string_view::npos) return {};
    if (length > 1 && url[length - 1] == '/') --length;
    return length;
}

std::optional<std::string> pathOfUrl(std::string_view url) {
    std::string path(url);
    const std::optional<std::size_t> length = makePathOfUrl(path);
    if (!length) return {};
    path.resize(*length);
    return path;
}

std::optional<std::string> pathOfFileUrl(std::string_view url) {
    if (!isFileScheme(url.substr(0, schemeLength(url)))) return {};
    if (auto path = pathOfUrl(url)) return path;
    const std::string_view written = writtenPath(url);
    std::string path(written);
    path.resize(decode(written, path.data()));
    if (path.empty() || path.find('\0') != std::string::npos) return {};
    if (path.size() > 1 && path.ends_with('/')) path.pop_back();
    return path;
}

} // namespace songsweep
