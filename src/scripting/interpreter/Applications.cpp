// SPDX-License-Identifier: MIT
#include "scripting/interpreter/Applications.h"

#include "scripting/interpreter/Words.h"

#include <algorithm>

namespace songsweep::interpreter {
namespace {

bool isAmong(const std::vector<std::string>& names, std::string_view name) {
    return std::ranges::any_of(names, [&](const std::string& other) { return isSameWord(other, name); });
}

} // namespace

Applications::Applications(std::vector<NamedApplication> applications) {
    m_entries.reserve(applications.size());
    for (NamedApplication& named : applications) {
        Vocabulary vocabulary(named.application->terminology());
        m_entries.push_back(std::make_unique<Entry>(
            Entry{std::move(named.name), std::move(named.application), std::move(named.otherNames),
                  std::move(named.identifiers), std::move(vocabulary)}));
    }
}

const Applications::Entry* Applications::named(std::string_view name) const {
    for (const auto& entry : m_entries) {
        if (isSameWord(entry->name, name) || isAmong(entry->otherNames, name)) return entry.get();
    }
    return nullptr;
}

const Applications::Entry* Applications::identified(std::string_view identifier) const {
    for (const auto& entry : m_entries) {
        if (isAmong(entry->identifiers, identifier)) return entry.get();
    }
    return nullptr;
}

const Applications::Entry* Applications::owning(const HostObject& object) const {
    for (const auto& entry : m_entries) {
        if (&entry->application->terminology() == &object.terminology()) return entry.get();
    }
    return nullptr;
}

} // namespace songsweep::interpreter
