// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace songsweep::interpreter {

/// A number by which an application knows its own term, usually the value of an enum class of its own.
using TermCode = int;

/// A property of an object: `persistent ID`.
struct PropertyTerm {
    std::string name;
    TermCode code = 0;
};

/// A class of elements: `user playlist`, `user playlists`.
struct ClassTerm {
    std::string singular;
    std::string plural;
    TermCode code = 0;
};

/// A labelled argument of a command: the `output muted` of `set volume with output muted`. It is given as
/// `label value`, or as `with label` and `without label` for true and false.
struct ParameterTerm {
    std::string name;
    TermCode code = 0;
};

/// A command: `play`, `set volume`.
struct CommandTerm {
    std::string name;
    TermCode code = 0;
    std::vector<ParameterTerm> parameters;
};

/// The words of one application, by which a text that is told to it is read.
///
/// Terms may have several words, separated by one space; the longest one that fits is taken, and letter case
/// does not count. One name may be both a property and a class; a class wins where an index, a name or a
/// filter follows.
///
///     const Terminology words{{{"name", 1}, {"persistent ID", 2}}, {{"track", "tracks", 1}}, {{"play", 1,
///     {}}}};
struct Terminology {
    std::vector<PropertyTerm> properties;
    std::vector<ClassTerm> classes;
    std::vector<CommandTerm> commands;

    /// The property of that name, null where there is none. Linear in the number of terms.
    const PropertyTerm* property(std::string_view name) const;
    const ClassTerm* elementClass(std::string_view singularOrPlural) const;
};

} // namespace songsweep::interpreter
