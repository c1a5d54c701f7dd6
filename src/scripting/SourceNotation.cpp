// SPDX-License-Identifier: MIT
#include "scripting/SourceNotation.h"

#include "scripting/TextLiteral.h"
#include "scripting/ValueTexts.h"

namespace songsweep {
namespace {

struct NotationOf {
    std::string operator()(const Descriptor::MissingValue&) const { return "missing value"; }
    std::string operator()(bool isTrue) const { return isTrue ? "true" : "false"; }
    std::string operator()(std::int64_t number) const { return std::to_string(number); }
    std::string operator()(double number) const { return realText(number); }
    std::string operator()(const std::string& text) const { return quotedNotation(text); }
    std::string operator()(const Descriptor::Date& date) const {
        return "date " + quotedNotation(dateText(date.longDateTime));
    }
    std::string operator()(const Descriptor::Alias& alias) const {
        const Descriptor::Value value(alias);
        return "alias " + quotedNotation(Descriptor(value).stringValue().value_or(alias.posixPath));
    }
    std::string operator()(const Descriptor::Object& object) const { return object.specifier; }
    std::string operator()(const Descriptor::Constant& constant) const { return std::string(constant.name); }
    std::string operator()(const Descriptor::List& items) const {
        std::string text = "{";
        for (const Descriptor& item : items) {
            if (text.size() > 1) text += ", ";
            text += sourceNotation(item);
        }
        return text + "}";
    }
};

} // namespace

std::string sourceNotation(const Descriptor& descriptor) {
    return std::visit(NotationOf(), descriptor.value());
}

std::string quotedNotation(const std::string& text) { return '"' + escapedWords(text) + '"'; }

} // namespace songsweep
