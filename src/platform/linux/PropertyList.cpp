// SPDX-License-Identifier: MIT
#include "platform/linux/PropertyList.h"

#include <QFile>

#include <plist/plist.h>

#include <memory>

namespace songsweep {

namespace {

constexpr qint64 largestFile = 16 << 20;

struct FreeList {
    void operator()(void* list) const { plist_free(list); }
};
using List = std::unique_ptr<void, FreeList>;

List parse(const QByteArray& contents) {
    plist_t list = nullptr;
    plist_from_memory(contents.constData(), static_cast<std::uint32_t>(contents.size()), &list);
    return List(list);
}

std::string textOf(plist_t node) {
    if (node == nullptr || plist_get_node_type(node) != PLIST_STRING) return {};
    std::uint64_t length = 0;
    const char* text = plist_get_string_ptr(node, &length);
    return text == nullptr ? std::string() : std::string(text, length);
}

std::vector<std::string> textsOf(plist_t array) {
    std::vector<std::string> texts;
    if (array == nullptr || plist_get_node_type(array) != PLIST_ARRAY) return texts;
    const std::uint32_t size = plist_array_get_size(array);
    for (std::uint32_t index = 0; index < size; ++index)
        texts.push_back(textOf(plist_array_get_item(array, index)));
    return texts;
}

} // namespace

std::optional<IAppsDomain> readIAppsPropertyList(const std::string& path) {
    QFile file(QString::fromStdString(path));
    if (!file.open(QIODevice::ReadOnly) || file.size() > largestFile) return std::nullopt;
    const List list = parse(file.readAll());
    if (!list || plist_get_node_type(list.get()) != PLIST_DICT) return std::nullopt;
    return IAppsDomain{textsOf(plist_dict_get_item(list.get(), "iTunesRecentDatabases"))};
}

} // namespace songsweep
