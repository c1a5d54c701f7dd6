// SPDX-License-Identifier: MIT
#include "scripting/interpreter/DescriptorMaker.h"

#include "scripting/SourceNotation.h"
#include "scripting/interpreter/Limits.h"
#include "scripting/interpreter/Try.h"

namespace songsweep::interpreter {
namespace {

/// `track 1 of playlist 1 of application "iTunes"`.
std::string notationOf(const Context& context, const HostObject& object) {
    const Applications::Entry* const owner = context.services().applications.owning(object);
    if (!owner) return object.specifier();
    std::string application = "application " + quotedNotation(owner->name);
    if (&object == owner->application.get()) return application;
    return object.specifier() + " of " + application;
}

Result<Descriptor> made(Context& context, const Value& value, int depth);

struct Maker {
    Context& context;
    int depth;

    template <class Plain>
    Result<Descriptor> operator()(const Plain& plain) const {
        return Descriptor(Descriptor::Value(plain));
    }
    Result<Descriptor> operator()(const ObjectPointer& object) const {
        return Descriptor(Descriptor::Object{notationOf(context, *object)});
    }
    Result<Descriptor> operator()(const ListPointer& list) const {
        if (depth > maximumListNesting) {
            return context.fail(context.errorPosition(), ErrorNumber::general, "the result lies too deep");
        }
        Descriptor::List items;
        items.reserve(list->items.size());
        for (const Value& item : list->items) {
            TRY(Descriptor && descriptor, made(context, item, depth + 1));
            items.push_back(std::move(descriptor));
        }
        return Descriptor::list(std::move(items));
    }
};

// A list of its own costs as much as several items.
constexpr std::size_t stepsOfOneList = 8;

std::size_t costOf(const Value& value) {
    if (const auto* const text = std::get_if<std::string>(&value))
        return 1 + text->size() / textBytesOfOneStep;
    return listItems(value) ? stepsOfOneList : 1;
}

Result<Descriptor> made(Context& context, const Value& value, int depth) {
    if (!context.spend(costOf(value))) return context.exhausted({});
    return std::visit(Maker{context, depth}, value);
}

} // namespace

Result<Descriptor> descriptorOf(Context& context, const Value& value) { return made(context, value, 1); }

} // namespace songsweep::interpreter
