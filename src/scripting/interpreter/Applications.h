// SPDX-License-Identifier: MIT
#pragma once

#include "scripting/interpreter/HostObject.h"
#include "scripting/interpreter/Vocabulary.h"

#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace songsweep::interpreter {

/// An application and the names by which a text tells it: `tell application "iTunes"`, `tell application id
/// "com.apple.iTunes"`. Letter case does not count in them.
struct NamedApplication {
    std::string name; ///< in results, too
    std::shared_ptr<HostApplication> application;
    std::vector<std::string> otherNames = {};
    std::vector<std::string> identifiers = {};
};

/// The applications that a text can tell, with the words that each understands.
class Applications {
  public:
    struct Entry {
        std::string name;
        std::shared_ptr<HostApplication> application;
        std::vector<std::string> otherNames;
        std::vector<std::string> identifiers;
        Vocabulary vocabulary;
    };

    explicit Applications(std::vector<NamedApplication> applications);

    /// The application of a name, null where there is none. Lives as long as this.
    const Entry* named(std::string_view name) const;
    const Entry* identified(std::string_view identifier) const;

    /// The application that an object belongs to, null where it is none of these.
    const Entry* owning(const HostObject& object) const;

  private:
    std::vector<std::unique_ptr<Entry>> m_entries;
};

} // namespace songsweep::interpreter
