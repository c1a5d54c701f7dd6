// SPDX-License-Identifier: MIT
#include "platform/mac/MacTrash.h"

#include "platform/mac/AutoreleasePool.h"
#include "platform/mac/CocoaTexts.h"

#include <unistd.h>

#include <algorithm>
#include <ranges>

namespace songsweep {

namespace {

NSFileManager* files() { return [NSFileManager defaultManager]; }

Error failure(NSError* error) { return {Error::Code::failed, utf8Text([error localizedDescription])}; }

/// A link counts by itself, wherever it leads.
bool isThere(NSString* path) {
    return path != nil && [files() attributesOfItemAtPath:path error:nullptr] != nil;
}

TrashedFile trashedFile(NSString* path) {
    return {utf8Text([path stringByDeletingLastPathComponent]), utf8Text([path lastPathComponent])};
}

/// Folders of the path that are not there, outermost first.
std::vector<std::string> missingFolders(NSString* path) {
    std::vector<std::string> missing;
    for (NSString* folder = [path stringByDeletingLastPathComponent];[folder length] > 1 && !isThere(folder);
         folder = [folder stringByDeletingLastPathComponent])
        missing.push_back(utf8Text(folder));
    std::reverse(missing.begin(), missing.end());
    return missing;
}

Result<void> makeFolders(const std::vector<std::string>& missing) {
    if (missing.empty())
        return {};
    NSError* error = nil;
    if ([files() createDirectoryAtPath:cocoaPath(missing.back())
            withIntermediateDirectories:YES
                             attributes:nil
                                  error:&error])
        return {};
    return failure(error);
}

class MacTrashCheck final : public TrashCheck {
  public:
    Result<void> add(const std::string& path) override {
        const AutoreleasePool pool;
        NSString* file = cocoaPath(path);
        if (!isThere(file))
            return Error{Error::Code::notFound, "There is no file " + path};
        if (![files() isDeletableFileAtPath:file])
            return Error{Error::Code::noPermission, "it may not be taken from its folder"};
        return {};
    }
};

} // namespace

Result<TrashedFile> MacTrash::moveToTrash(const std::string& path) {
    const AutoreleasePool pool;
    NSString* file = cocoaPath(path);
    if (file == nil || !path.starts_with('/'))
        return Error{Error::Code::invalid, "Not an absolute path"};
    NSError* error = nil;
    NSURL* result = nil;
    if (![files() trashItemAtURL:[NSURL fileURLWithPath:file] resultingItemURL:&result error:&error])
        return failure(error);
    if (result == nil)
        return Error{Error::Code::failed, path + " went to the Trash, which does not tell of it"};
    return trashedFile([result path]);
}

Result<RestoredFile> MacTrash::restoreFromTrash(const TrashedFile& file, const std::string& path) {
    const AutoreleasePool pool;
    NSString* from = cocoaPath(file.path());
    NSString* to = cocoaPath(path);
    if (to == nil || !path.starts_with('/'))
        return Error{Error::Code::invalid, "Not an absolute path"};
    if (!isThere(from))
        return Error{Error::Code::notFound, path + " is not in the Trash any more"};
    if (isThere(to))
        return Error{Error::Code::alreadyExists, path + " is there already"};
    const std::vector<std::string> missing = missingFolders(to);
    if (const Result<void> made = makeFolders(missing); !made)
        return made.error();
    // It refuses where something has the path by now.
    NSError* error = nil;
    if ([files() moveItemAtPath:from toPath:to error:&error])
        return RestoredFile{missing};
    for (const std::string& folder : missing | std::views::reverse)
        ::rmdir(folder.c_str());
    return failure(error);
}

std::optional<TrashedFile> MacTrash::findInTrash(const std::string&, std::chrono::system_clock::time_point) {
    return std::nullopt;
}

std::unique_ptr<TrashCheck> MacTrash::newCheck() { return std::make_unique<MacTrashCheck>(); }

} // namespace songsweep
