// SPDX-License-Identifier: MIT
#pragma once

#include "platform/Result.h"
#include "scripting/interpreter/Context.h"

#include <functional>
#include <string>

namespace songsweep::interpreter {

class Expression;

/// A class of elements as a text names it, with the words by which it was read.
struct ClassReference {
    const Terminology* origin = nullptr;
    const ClassTerm* term = nullptr;
};

/// Elements of one object that are not fetched yet: all of a class, or those that a filter holds for, or a
/// range of them. A description; the functions below ask the object.
struct ElementSet {
    ObjectPointer container;
    ClassReference elementClass;
    const Expression* filter = nullptr; ///< of the tree, which outlives every set
    std::int64_t first = 1;             ///< negative numbers count from the end
    std::int64_t last = -1;

    bool isWhole() const { return first == 1 && last == -1; }
};

/// Called for each element; false ends the walk.
using ElementVisitor = std::function<Result<bool>(const ObjectPointer&)>;

/// Visits the elements in order. A filter that has an index visits no other elements; else all are walked.
Result<void> forEachElement(Context& context, Position position, const ElementSet& set,
                            const ElementVisitor& visit);

/// The number of elements; without a filter no element is looked at.
Result<std::int64_t> countOf(Context& context, Position position, const ElementSet& set);

/// The element of an index from 1, or counted from the end by a negative one.
Result<ObjectPointer> elementAt(Context& context, Position position, const ElementSet& set,
                                std::int64_t index);

/// The first element whose property of that name (`name`, `id`) is the value.
Result<ObjectPointer> elementBy(Context& context, Position position, const ElementSet& set,
                                std::string_view propertyName, const Value& value);

/// All elements as a list of objects.
Result<Value> listOf(Context& context, Position position, const ElementSet& set);

/// An index counted from the end as one from the beginning; may lie outside 1 to `count`.
constexpr std::int64_t fromBeginning(std::int64_t index, std::int64_t count) {
    return index < 0 ? count + 1 + index : index;
}

} // namespace songsweep::interpreter
