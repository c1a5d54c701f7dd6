// SPDX-License-Identifier: MIT
#pragma once

#include "platform/Result.h"
#include "scripting/interpreter/Terminology.h"
#include "scripting/interpreter/Value.h"

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

namespace songsweep::interpreter {

/// How two values are compared.
enum class Comparison {
    equal,
    notEqual,
    less,
    lessOrEqual,
    greater,
    greaterOrEqual,
    contains,
    beginsWith,
    endsWith,
    isIn
};

/// One test of a filter: `persistent ID is "00A1"` as property code, comparison and value.
struct PropertyTest {
    TermCode property = 0;
    Comparison comparison = Comparison::equal;
    Value operand;
};

/// Elements that an index found for a test, in their order.
struct Candidates {
    /// Whether the test holds for every one of them, or each has to be tested again.
    enum class Certainty { exact, tentative };

    std::vector<ObjectPointer> objects;
    Certainty certainty = Certainty::tentative;
};

/// An object of an application as a script sees it: an application, a playlist, a track.
///
/// A script gets properties, sets them, counts elements and takes them one by one; nothing is asked for that
/// the script does not use. Objects are small handles: the interpreter makes, copies and drops them freely,
/// one for every mention in the text. All calls come under the interpreter's lock, one at a time.
///
/// Expected failures are errors with a reason, which a `try` of the script can catch:
/// Error::Code::notFound for an object or a property that is not there.
class HostObject : public std::enable_shared_from_this<HostObject> {
  public:
    HostObject() = default;
    HostObject(const HostObject&) = delete;
    HostObject& operator=(const HostObject&) = delete;
    virtual ~HostObject() = default;

    /// The words of the application that the object belongs to: the same one for all its objects.
    virtual const Terminology& terminology() const = 0;

    /// The object in source notation, without its application: `track 3 of playlist 1`.
    virtual std::string specifier() const = 0;

    /// The value of a property.
    virtual Result<Value> property(TermCode property) = 0;

    /// Gives a property a value. Refused unless overridden.
    virtual Result<void> setProperty(TermCode property, const Value& value);

    /// The number of elements of a class; must not walk them. An error unless overridden.
    virtual Result<std::size_t> count(TermCode elementClass);

    /// Element `index` of a class, counted from 1 to `count`; the interpreter asks for no other.
    /// An error unless overridden.
    virtual Result<ObjectPointer> element(TermCode elementClass, std::size_t index);

    /// The elements of a class that a test may hold for, found without a walk: all for which it holds (texts
    /// compare without regard to case), and if they are tentative others, too. Nothing (the answer unless
    /// overridden) where there is no index for the test; the interpreter then walks all elements.
    virtual Result<std::optional<Candidates>> candidates(TermCode elementClass, const PropertyTest& test);

    /// Whether both are the same thing. Unless overridden, by the notation of both.
    virtual bool isSame(const HostObject& other) const;
};

/// A labelled argument of a command, as the terminology of the application names it.
struct CommandArgument {
    TermCode parameter = 0;
    Value value;
};

/// A command as it reaches an application. References are resolved: `delete (tracks whose …)` comes with a
/// list of objects, `delete track 1` with one object.
struct Command {
    TermCode code = 0;
    std::optional<Value> direct; ///< its direct parameter; else the object being told, if not the application
    std::vector<CommandArgument> arguments;

    /// The argument of a parameter, null where it was not given.
    const Value* argument(TermCode parameter) const;
};

/// An application: the object that a text tells. Its elements and properties are those of the application.
class HostApplication : public HostObject {
  public:
    /// Carries out a command. The value is the command's result, nothing where it has none.
    virtual Result<std::optional<Value>> perform(const Command& command) = 0;

    /// The object that a plain value stands for where a property of it is asked for: a file for an alias.
    /// An error (`notFound`) unless overridden.
    virtual Result<ObjectPointer> objectFor(const Value& value);
};

} // namespace songsweep::interpreter
