// SPDX-License-Identifier: MIT
#include "scripting/interpreter/Value.h"

namespace songsweep::interpreter {

Value makeList(std::vector<Value> items) {
    auto list = std::make_shared<ListStorage>();
    list->items = std::move(items);
    return list;
}

const std::vector<Value>* listItems(const Value& value) {
    const auto* const list = std::get_if<ListPointer>(&value);
    return list ? &(*list)->items : nullptr;
}

} // namespace songsweep::interpreter
