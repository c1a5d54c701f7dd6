// SPDX-License-Identifier: MIT
#include "delete/DeleteTexts.h"

#include "platform/HfsPath.h"
#include "scripting/TextLiteral.h"

namespace songsweep {

namespace deleteTexts {

std::string deleteTrack(std::string_view pid) {
    return "tell application \"iTunes\" to delete (tracks whose persistent ID is \"" + escapedWords(pid) +
           "\")";
}

std::string deleteFile(std::string_view hfsPath) {
    return "tell application \"Finder\" \nset file_to_delete to alias \"" + escapedWords(hfsPath) +
           "\" \nset locked of file_to_delete to false \ndelete file_to_delete \nend tell";
}

} // namespace deleteTexts

bool isPath(std::string_view location) { return location.starts_with('/'); }

std::optional<std::string> nameableHfsPath(std::string_view path) {
    std::optional<std::string> hfs = hfsPath(path);
    if (!hfs || !canStandInText(*hfs) || posixPath(*hfs) != path) return std::nullopt;
    return hfs;
}

bool canNameFile(std::string_view path) { return nameableHfsPath(path).has_value(); }

} // namespace songsweep
