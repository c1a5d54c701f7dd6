// SPDX-License-Identifier: MIT
#include "libraryfile/EntryEdit.h"

#include "platform/Ascii.h"

#include <algorithm>
#include <optional>

namespace songsweep {

namespace {

using Form = ValueChange::Form;

Error cannotChange(const ValueChange& change, const std::string& reason) {
    return {Error::Code::invalid, "“" + change.key + "” cannot be changed: " + reason};
}

bool hasSeveral(const EntryValues& values, const EntryValue* value) {
    return value && std::ranges::any_of(values.all(), [&](const EntryValue& other) {
               return &other != value && asciiLower(other.key) == asciiLower(value->key);
           });
}

std::string_view elementName(Form form) {
    if (form == Form::date) return "date";
    return form == Form::text ? "string" : "integer";
}

/// The value's element as it is written; nothing for a text that XML cannot hold.
std::optional<std::string> elementOf(const ValueChange& change) {
    if (change.form == Form::isTrue) return "<true/>";
    const std::string name(elementName(change.form));
    const auto text = encodeXmlText(change.text);
    if (!text) return {};
    return "<" + name + ">" + *text + "</" + name + ">";
}

std::size_t spaceBefore(std::string_view bytes, std::size_t at) {
    std::size_t blanks = 0;
    while (blanks < at && isXmlSpace(bytes[at - 1 - blanks]))
        ++blanks;
    return blanks;
}

/// A key and a value as they would stand behind the last ones of the entry.
std::string inserted(std::string_view entry, const EntryValue& last, const ValueChange& change,
                     const std::string& element) {
    const std::size_t beforeKey = spaceBefore(entry, last.keyBegin);
    const std::size_t beforeValue = spaceBefore(entry, last.begin);
    return std::string(entry.substr(last.keyBegin - beforeKey, beforeKey)) + "<key>" + change.key + "</key>" +
           std::string(entry.substr(last.begin - beforeValue, beforeValue)) + element;
}

/// Nothing where there is nothing to do.
Result<std::optional<EntryReplacement>> replacementFor(std::string_view entry, const EntryValues& values,
                                                       const ValueChange& change) {
    using Nothing = std::optional<EntryReplacement>;
    const EntryValue* const value = values.find(change.key);
    if (hasSeveral(values, value)) return cannotChange(change, "the track has several of it");
    if (change.form == Form::none) {
        if (!value) return Nothing();
        const std::size_t begin = value->keyBegin - spaceBefore(entry, value->keyBegin);
        return std::optional(EntryReplacement{begin, value->end - begin, {}});
    }
    const auto element = elementOf(change);
    if (!element) return cannotChange(change, "a library cannot hold one of the characters");
    if (value) return std::optional(EntryReplacement{value->begin, value->end - value->begin, *element});
    if (values.all().empty()) return cannotChange(change, "the track has no values");
    return std::optional(EntryReplacement{values.contentEnd().value_or(0), 0,
                                          inserted(entry, values.all().back(), change, *element)});
}

} // namespace

Result<std::vector<EntryReplacement>> replacementsFor(std::string_view entry, const XmlEntities& entities,
                                                      const std::vector<ValueChange>& changes) {
    const auto values = EntryValues::parse(entry, entities);
    if (!values) return Error{Error::Code::busy, "the library is being rewritten"};
    std::vector<EntryReplacement> replacements;
    for (const ValueChange& change : changes) {
        auto replacement = replacementFor(entry, *values, change);
        if (!replacement) return replacement.error();
        if (replacement.value()) replacements.push_back(*std::move(replacement).value());
    }
    std::ranges::stable_sort(replacements, {}, &EntryReplacement::begin);
    return replacements;
}

std::string withReplacements(std::string_view entry, const std::vector<EntryReplacement>& replacements) {
    std::string changed;
    std::size_t at = 0;
    for (const EntryReplacement& replacement : replacements) {
        changed += entry.substr(at, replacement.begin - at);
        changed += replacement.text;
        at = replacement.begin + replacement.length;
    }
    return changed.append(entry.substr(at));
}

} // namespace songsweep
