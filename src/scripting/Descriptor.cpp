// SPDX-License-Identifier: MIT
#include "scripting/Descriptor.h"

#include "platform/HfsPath.h"
#include "scripting/ValueTexts.h"

#include <algorithm>
#include <cstring>
#include <limits>

namespace songsweep {
namespace {

using Text = std::optional<std::string>;

struct TextOf {
    Text operator()(const Descriptor::MissingValue&) const { return "msng"; }
    Text operator()(bool isTrue) const { return isTrue ? "true" : "false"; }
    Text operator()(std::int64_t number) const { return std::to_string(number); }
    Text operator()(double number) const { return realText(number); }
    Text operator()(const std::string& text) const { return text; }
    Text operator()(const Descriptor::Date& date) const { return dateText(date.longDateTime); }
    Text operator()(const Descriptor::Alias& alias) const { return hfsPath(alias.posixPath); }
    Text operator()(const Descriptor::Object&) const { return {}; }
    Text operator()(const Descriptor::Constant& constant) const { return std::string(constant.name); }
    Text operator()(const Descriptor::List& items) const {
        return items.size() == 1 ? items.front().stringValue() : Text();
    }
};

constexpr std::int64_t lowest = std::numeric_limits<std::int32_t>::min();
constexpr std::int64_t highest = std::numeric_limits<std::int32_t>::max();

std::int32_t clamped(std::int64_t number) {
    return static_cast<std::int32_t>(std::clamp(number, lowest, highest));
}

struct IntegerOf {
    std::int32_t operator()(bool isTrue) const { return isTrue ? 1 : 0; }
    std::int32_t operator()(std::int64_t number) const { return clamped(number); }
    std::int32_t operator()(const std::string& text) const { return clamped(leadingInteger(text)); }
    std::int32_t operator()(double number) const {
        if (number != number) return 0;
        return static_cast<std::int32_t>(
            std::clamp(number, static_cast<double>(lowest), static_cast<double>(highest)));
    }
    std::int32_t operator()(const Descriptor::List& items) const {
        return items.size() == 1 ? items.front().int32Value() : 0;
    }
    template <class Other>
    std::int32_t operator()(const Other&) const {
        return 0;
    }
};

std::vector<std::byte> bytes(const void* start, std::size_t size) {
    std::vector<std::byte> copy(size);
    if (size > 0) std::memcpy(copy.data(), start, size);
    return copy;
}

} // namespace

std::optional<std::string> Descriptor::stringValue() const { return std::visit(TextOf(), m_value); }

std::int32_t Descriptor::int32Value() const { return std::visit(IntegerOf(), m_value); }

int Descriptor::numberOfItems() const {
    const auto* const items = std::get_if<List>(&m_value);
    return items ? static_cast<int>(items->size()) : 0;
}

const Descriptor* Descriptor::descriptorAtIndex(int index) const {
    const auto* const items = std::get_if<List>(&m_value);
    if (!items || index < 1 || static_cast<std::size_t>(index) > items->size()) return nullptr;
    return &(*items)[static_cast<std::size_t>(index) - 1];
}

std::vector<std::byte> Descriptor::data() const {
    if (const auto* const date = std::get_if<Date>(&m_value)) {
        return bytes(&date->longDateTime, sizeof date->longDateTime);
    }
    if (const auto* const text = std::get_if<std::string>(&m_value)) return bytes(text->data(), text->size());
    return {};
}

} // namespace songsweep
