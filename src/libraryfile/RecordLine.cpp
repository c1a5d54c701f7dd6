// SPDX-License-Identifier: MIT
#include "libraryfile/RecordLine.h"

#include <nlohmann/json.hpp>

#include <array>

namespace songsweep {

namespace {

constexpr std::array kindWords{"cleanup", "restore"};
constexpr std::array howWords{"complete", "cancelled", "failed"};
constexpr std::array trackWords{"deleted", "restored", "failed", "not attempted"};
constexpr std::array fileWords{"not asked", "trashed", "put back", "missing", "kept"};

constexpr std::array formWords{"text", "integer", "date", "true", "none"};

template <class Value, std::size_t count>
std::optional<Value> valueOf(const std::array<const char*, count>& words, const std::string& word) {
    for (std::size_t i = 0; i < count; ++i)
        if (word == words[i]) return static_cast<Value>(i);
    return {};
}

int digitOf(char c) {
    if (c >= '0' && c <= '9') return c - '0';
    return c >= 'a' && c <= 'f' ? c - 'a' + 10 : -1;
}

std::string percentDecoded(const std::string& text) {
    std::string bytes;
    for (std::size_t i = 0; i < text.size(); ++i) {
        const bool encoded =
            text[i] == '%' && i + 2 < text.size() && digitOf(text[i + 1]) >= 0 && digitOf(text[i + 2]) >= 0;
        bytes += encoded ? static_cast<char>(digitOf(text[i + 1]) * 16 + digitOf(text[i + 2])) : text[i];
        if (encoded) i += 2;
    }
    return bytes;
}

} // namespace

std::string_view wordOf(RecordHeading::Kind kind) { return kindWords[static_cast<std::size_t>(kind)]; }
std::string_view wordOf(RecordEnd::How how) { return howWords[static_cast<std::size_t>(how)]; }
std::string_view wordOf(RecordedOutcome::Track track) { return trackWords[static_cast<std::size_t>(track)]; }
std::string_view wordOf(RecordedOutcome::File file) { return fileWords[static_cast<std::size_t>(file)]; }

std::string_view wordOf(ValueChange::Form form) { return formWords[static_cast<std::size_t>(form)]; }

std::optional<ValueChange::Form> valueFormOf(const std::string& word) {
    return valueOf<ValueChange::Form>(formWords, word);
}

std::optional<RecordLine> RecordLine::parse(const std::string& text) {
    auto json = nlohmann::json::parse(text, nullptr, false);
    if (!json.is_object()) return {};
    return RecordLine(std::move(json));
}

RecordLine::RecordLine(nlohmann::json json)
    : m_json(std::make_unique<const nlohmann::json>(std::move(json))) {}
RecordLine::RecordLine(RecordLine&&) noexcept = default;
RecordLine::~RecordLine() = default;

std::string RecordLine::text(const char* key) const {
    if (const auto plain = m_json->find(key); plain != m_json->end() && plain->is_string())
        return plain->get<std::string>();
    const auto encoded = m_json->find(std::string(key) + "Encoded");
    const bool found = encoded != m_json->end() && encoded->is_string();
    return found ? percentDecoded(encoded->get<std::string>()) : std::string();
}

std::int64_t RecordLine::number(const char* key, std::int64_t otherwise) const {
    const auto found = m_json->find(key);
    return found != m_json->end() && found->is_number_integer() ? found->get<std::int64_t>() : otherwise;
}

std::vector<std::size_t> RecordLine::numbers(const char* key) const {
    std::vector<std::size_t> values;
    const auto found = m_json->find(key);
    if (found == m_json->end() || !found->is_array()) return values;
    values.reserve(found->size());
    for (const auto& value : *found)
        if (value.is_number_unsigned()) values.push_back(value.get<std::size_t>());
    return values;
}

bool RecordLine::truth(const char* key) const {
    const auto found = m_json->find(key);
    return found != m_json->end() && found->is_boolean() && found->get<bool>();
}

RecordHeading recordHeadingIn(const RecordLine& line, const std::string& folder) {
    RecordHeading heading;
    heading.kind = valueOf<RecordHeading::Kind>(kindWords, line.text("kind")).value_or(heading.kind);
    heading.program = line.text("program");
    heading.library = line.text("library");
    heading.backup = folder + "/" + line.text("backup");
    heading.version = {static_cast<std::uint64_t>(line.number("device")),
                       static_cast<std::uint64_t>(line.number("inode")),
                       static_cast<std::uint64_t>(line.number("size")), line.number("modified")};
    heading.date = line.text("date");
    heading.tracks = static_cast<std::size_t>(line.number("tracks"));
    heading.withFiles = line.truth("files");
    heading.isNarrowed = line.truth("narrowed");
    heading.restores = line.text("restores");
    return heading;
}

RecordEnd recordEndIn(const RecordLine& line) {
    return {valueOf<RecordEnd::How>(howWords, line.text("how")).value_or(RecordEnd::How::failed),
            line.text("reason"), static_cast<std::size_t>(line.number("tracks")),
            static_cast<std::size_t>(line.number("files")), static_cast<std::uint64_t>(line.number("bytes"))};
}

std::optional<RecordedOutcome> recordedOutcomeIn(const RecordLine& line) {
    const auto track = valueOf<RecordedOutcome::Track>(trackWords, line.text("outcome"));
    const auto file = valueOf<RecordedOutcome::File>(fileWords, line.text("file"));
    if (!track || !file) return {};
    return RecordedOutcome{*track, *file, line.text("reason")};
}

} // namespace songsweep
