// SPDX-License-Identifier: MIT
#include "scripting/interpreter/Applications.h"

#include "scripting/interpreter/Words.h"

namespace songsweep::interpreter {

Applications::Applications(std::vector<NamedApplication> applications) {
    m_entries.reserve(applications.size());
    for (NamedApplication& named : applications) {
        Vocabulary vocabulary(named.application->terminology());
        m_entries.push_back(std::make_unique<Entry>(
            Entry{std::move(named.name), std::move(named.application), std::move(vocabulary)}));
    }
}

const Applications::Entry* Applications::named(std::string_view name) const {
    for (const auto& entry : m_entries) {
        if (isSameWord(entry->name, name)) return entry.get();
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
