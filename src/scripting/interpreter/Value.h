// SPDX-License-Identifier: MIT
#pragma once

#include "scripting/Descriptor.h"

#include <cstdint>
#include <memory>
#include <string>
#include <variant>
#include <vector>

namespace songsweep::interpreter {

class HostObject;
using ObjectPointer = std::shared_ptr<HostObject>;

struct ListStorage;
using ListPointer = std::shared_ptr<ListStorage>;

using MissingValue = Descriptor::MissingValue;
using Date = Descriptor::Date;
using Alias = Descriptor::Alias;
using Constant = Descriptor::Constant;

/// What a variable of a script can hold: the values of a `Descriptor`, and objects of the applications.
///
/// Copying is cheap but for texts. Lists are shared, as the language has it: after `set b to a`, what is put
/// at the end of `b` is in `a` too. Never null inside: a list pointer and an object pointer always point.
using Value = std::variant<MissingValue, bool, std::int64_t, double, std::string, Date, Alias, ListPointer,
                           ObjectPointer, Constant>;

/// The items of a list.
struct ListStorage {
    std::vector<Value> items;
    int depth = 1;          ///< how deep its lists in lists go, as it was made
    bool isTracked = false; ///< held by the context, which empties it when the script ends
};

/// A new list.
Value makeList(std::vector<Value> items);

/// The items of a list value, null for any other value. Lives as long as the list.
const std::vector<Value>* listItems(const Value& value);

} // namespace songsweep::interpreter
