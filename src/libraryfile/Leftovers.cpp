// SPDX-License-Identifier: MIT
#include "libraryfile/Leftovers.h"

#include "libraryfile/DatedName.h"
#include "libraryfile/FileNames.h"
#include "libraryfile/TemporaryName.h"
#include "platform/SystemError.h"

#include <unistd.h>

#include <filesystem>
#include <system_error>
#include <vector>

namespace songsweep {

namespace {

/// All names first: what is renamed meanwhile may come twice or never.
std::vector<std::string> leftoversOf(const std::string& library) {
    std::vector<std::string> names;
    std::error_code ignored; // A folder that cannot be listed keeps what it has.
    const std::filesystem::directory_iterator folder(folderOf(library), ignored);
    for (auto entry = begin(folder); entry != end(folder); entry.increment(ignored)) {
        std::string name = entry->path().filename().string();
        if (TemporaryName::isOf(nameOf(library), name)) names.push_back(std::move(name));
        if (ignored) break;
    }
    return names;
}

Result<void> putBack(const std::string& path, const std::string& library) {
    if (const int errorNumber = exchangeFiles(path, library); errorNumber != 0)
        return systemError(errorNumber, "put back", library);
    ::unlink(path.c_str());
    return {};
}

Result<void> removeExchanged(const std::string& path, const std::string& library,
                             const TemporaryName::Exchange& exchange) {
    const auto stamp = LibraryFile::stampOf(path);
    if (!stamp || stamp.value() == exchange.own || stamp.value() == exchange.expected) {
        ::unlink(path.c_str());
        return {};
    }
    const auto present = LibraryFile::stampOf(library);
    if (present && present.value() == exchange.own) return putBack(path, library);
    const auto kept = keepUnderVisibleName(path, library);
    return kept ? Result<void>() : Result<void>(kept.error());
}

} // namespace

Result<void> removeLeftovers(const std::string& library) {
    for (const std::string& name : leftoversOf(library)) {
        const std::string path = folderOf(library) + "/" + name;
        if (const auto exchange = TemporaryName::exchangeOf(nameOf(library), name)) {
            if (auto removed = removeExchanged(path, library, *exchange); !removed) return removed;
        } else {
            ::unlink(path.c_str());
        }
    }
    return {};
}

Result<std::string> keepUnderVisibleName(const std::string& path, const std::string& library) {
    return giveDatedName(path, library, "another version, found");
}

} // namespace songsweep
