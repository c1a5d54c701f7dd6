// SPDX-License-Identifier: MIT
#include "libraryfile/LockHolder.h"

#include <nlohmann/json.hpp>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <csignal>
#include <ctime>
#include <vector>

namespace songsweep {

namespace {

std::string hostName() {
    std::array<char, 256> name{};
    ::gethostname(name.data(), name.size() - 1);
    return name.data();
}

/// "12:00" today, "2026-01-31 12:00" otherwise.
std::string momentOf(std::int64_t seconds) {
    const auto moment = static_cast<std::time_t>(seconds);
    const std::time_t now = std::time(nullptr);
    std::tm then{};
    std::tm today{};
    ::localtime_r(&moment, &then);
    ::localtime_r(&now, &today);
    const bool isToday = then.tm_yday == today.tm_yday && then.tm_year == today.tm_year;
    std::array<char, 32> text{};
    std::strftime(text.data(), text.size(), isToday ? "%H:%M" : "%Y-%m-%d %H:%M", &then);
    return text.data();
}

} // namespace

LockHolder LockHolder::present(const std::string& purpose) {
    return {purpose, ::getpid(), hostName(), std::time(nullptr)};
}

LockHolder LockHolder::fromText(const std::string& text) {
    const auto json = nlohmann::json::parse(text, nullptr, false);
    if (!json.is_object()) return {};
    LockHolder holder;
    const auto take = [&](const char* key, auto& value) {
        using Value = std::decay_t<decltype(value)>;
        const auto found = json.find(key);
        if (found == json.end()) return;
        const bool fits =
            std::is_same_v<Value, std::string> ? found->is_string() : found->is_number_integer();
        if (fits) value = found->template get<Value>();
    };
    take("purpose", holder.purpose);
    take("process", holder.process);
    take("host", holder.host);
    take("since", holder.since);
    return holder;
}

std::string LockHolder::text() const {
    const nlohmann::json json = {{"program", "songsweep"},
                                 {"purpose", purpose},
                                 {"process", process},
                                 {"host", host},
                                 {"since", since}};
    return json.dump(-1, ' ', false, nlohmann::json::error_handler_t::replace) + "\n";
}

bool LockHolder::hasEnded() const {
    return process > 0 && host == hostName() && ::kill(static_cast<pid_t>(process), 0) != 0 && errno == ESRCH;
}

std::string LockHolder::sentence() const {
    std::string details = purpose;
    const auto add = [&](const std::string& detail) { details += (details.empty() ? "" : ", ") + detail; };
    if (process > 0) add("process " + std::to_string(process));
    if (!host.empty() && host != hostName()) add("on " + host);
    if (since > 0) add("since " + momentOf(since));
    if (!details.empty()) details = " (" + details + ")";
    return "another Songsweep" + details + " is cleaning up this library";
}

} // namespace songsweep
