// SPDX-License-Identifier: MIT
#include "library/LocationUrl.h"

#include <unicode/utf8.h>

#include <algorithm>
#include <cstdint>

namespace songsweep {

namespace {

bool isAlphanumeric(char c) {
    return (c >= '0' && c <= '9') || (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z');
}

int hexDigit(char c) {
    if (c >= '0' && c <= '9') return c - '0';
    if (c >= 'a' && c <= 'f') return c - 'a' + 10;
    if (c >= 'A' && c <= 'F') return c - 'A' + 10;
    return -1;
}

bool isAllowed(char c) {
    constexpr std::string_view marks = "-._~!$&'()*+,;=:@/?%";
    return isAlphanumeric(c) || marks.find(c) != std::string_view::npos;
}

/// The text without its fragment and query; the fragment's "#" may stand once.
std::optional<std::string_view> withoutFragmentAndQuery(std::string_view url) {
    const std::size_t hash = url.find('#');
    if (hash != std::string_view::npos && url.find('#', hash + 1) != std::string_view::npos) return {};
    if (hash != std::string_view::npos) {
        const std::string_view fragment = url.substr(hash + 1);
        if (!std::all_of(fragment.begin(), fragment.end(), isAllowed)) return {};
    }
    return url.substr(0, std::min(hash, url.find('?')));
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

std::string_view withoutHost(std::string_view url) {
    if (!url.starts_with("//")) return url;
    const std::size_t path = url.find('/', 2);
    return path == std::string_view::npos ? std::string_view() : url.substr(path);
}

std::optional<std::string> decoded(std::string_view path) {
    std::string result;
    result.reserve(path.size());
    for (std::size_t i = 0; i < path.size(); ++i) {
        if (path[i] != '%') {
            result += path[i];
            continue;
        }
        if (i + 2 >= path.size()) return {};
        const int value = hexDigit(path[i + 1]) * 16 + hexDigit(path[i + 2]);
        if (hexDigit(path[i + 1]) < 0 || hexDigit(path[i + 2]) < 0 || value == 0) return {};
        result += static_cast<char>(value);
        i += 2;
    }
    return result;
}

bool isUtf8(std::string_view text) {
    const auto length = static_cast<std::int32_t>(text.size());
    for (std::int32_t i = 0; i < length;) {
        UChar32 c = 0;
        U8_NEXT(text.data(), i, length, c);
        if (c < 0) return false;
    }
    return true;
}

} // namespace

std::optional<std::string> pathOfUrl(std::string_view url) {
    const auto kept = withoutFragmentAndQuery(url);
    const std::string_view main = url.substr(0, url.find('#'));
    if (!kept || !std::all_of(main.begin(), main.end(), isAllowed)) return {};

    const std::size_t scheme = schemeLength(*kept);
    const std::string_view path = withoutHost(kept->substr(scheme));
    const bool opaque = scheme > 0 && !path.starts_with('/');
    if (path.empty() || opaque) return {};

    auto result = decoded(path);
    if (!result || !isUtf8(*result)) return {};
    if (result->size() > 1 && result->ends_with('/')) result->pop_back();
    return result;
}

} // namespace songsweep
