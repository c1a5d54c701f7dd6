// SPDX-License-Identifier: MIT
#include "platform/mac/MacPlayer.h"

#include "platform/mac/AutoreleasePool.h"

#import <AppKit/AppKit.h>

namespace songsweep {

namespace {

bool isInstalled(NSString* identifier) {
    return [[NSWorkspace sharedWorkspace] URLForApplicationWithBundleIdentifier:identifier] != nil;
}

} // namespace

std::string macPlayerName() {
    const AutoreleasePool pool;
    return !isInstalled(@"com.apple.iTunes") && isInstalled(@"com.apple.Music") ? "Music" : "iTunes";
}

} // namespace songsweep
