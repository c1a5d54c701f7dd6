// SPDX-License-Identifier: MIT
#include "libraryfile/DatedName.h"

#include "libraryfile/FileNames.h"
#include "platform/SystemError.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <ctime>

namespace songsweep {

namespace {

constexpr std::size_t longestName = 255;     // bytes
constexpr std::size_t longestExtension = 15; // with its point; longer ones are a part of the name
constexpr int mostNamesASecond = 1000;

std::string localTime() {
    const std::time_t now = std::time(nullptr);
    std::tm local{};
    ::localtime_r(&now, &local);
    std::array<char, 32> text{};
    const std::size_t length = std::strftime(text.data(), text.size(), "%Y-%m-%d %H.%M.%S", &local);
    return {text.data(), length};
}

/// Never cuts a character of several bytes.
void shorten(std::string& text, std::size_t room) {
    if (text.size() <= room) return;
    text.resize(room);
    while (!text.empty() && (static_cast<unsigned char>(text.back()) & 0xC0) == 0x80)
        text.pop_back();
    if (!text.empty() && static_cast<unsigned char>(text.back()) >= 0xC0) text.pop_back();
}

std::string datedName(const std::string& name, const std::string& words, const std::string& time,
                      int counter) {
    std::string stem = withoutExtension(name);
    const std::string extension = name.substr(stem.size());
    const std::string mark =
        " (" + words + " " + time + (counter > 1 ? ", " + std::to_string(counter) : "") + ")";
    shorten(stem, longestName - mark.size() - std::max(extension.size(), longestExtension));
    return stem + mark + extension;
}

} // namespace

std::string withoutExtension(const std::string& path) {
    const std::size_t point = path.rfind('.');
    const std::size_t begin = path.rfind('/') + 1;
    const bool hasExtension =
        point != std::string::npos && point > begin && path.size() - point <= longestExtension;
    return hasExtension ? path.substr(0, point) : path;
}

Result<std::string> giveDatedName(const std::string& from, const std::string& library,
                                  const std::string& words) {
    const std::string time = localTime();
    for (int counter = 1; counter <= mostNamesASecond; ++counter) {
        std::string path = folderOf(library) + "/" + datedName(nameOf(library), words, time, counter);
        const int errorNumber = renameToFreeName(from, path);
        if (errorNumber == 0) return path;
        if (errorNumber != EEXIST) return systemError(errorNumber, "create", path);
    }
    return Error{Error::Code::failed, "there is no free name beside " + library};
}

} // namespace songsweep
