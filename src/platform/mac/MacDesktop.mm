// SPDX-License-Identifier: MIT
#include "platform/mac/MacDesktop.h"

#include "platform/mac/AutoreleasePool.h"
#include "platform/mac/CocoaTexts.h"

#import <AppKit/AppKit.h>

namespace songsweep {

namespace {

/// Nil for a path that is no valid text, of which Cocoa makes no URL.
NSURL* urlOfFile(const std::string& path) {
    NSString* text = cocoaPath(path);
    return text == nil ? nil : [NSURL fileURLWithPath:text];
}

Result<void> open(NSURL* url, const std::string& name) {
    if (url == nil)
        return Error{Error::Code::invalid, "Not an address: " + name};
    if (![[NSWorkspace sharedWorkspace] openURL:url])
        return Error{Error::Code::failed, "No program opens " + name};
    return {};
}

} // namespace

Result<void> MacDesktop::openUrl(const std::string& url) {
    const AutoreleasePool pool;
    return open([NSURL URLWithString:cocoaText(url)], url);
}

Result<void> MacDesktop::showInFileManager(const std::string& path) {
    const AutoreleasePool pool;
    if (![[NSWorkspace sharedWorkspace] selectFile:cocoaPath(path) inFileViewerRootedAtPath:@""])
        return Error{Error::Code::notFound, "The Finder does not show " + path};
    return {};
}

Result<void> MacDesktop::play(const std::string& path) {
    const AutoreleasePool pool;
    return open(urlOfFile(path), path);
}

Result<void> MacDesktop::stopPlaying() { return {}; }

Result<void> MacDesktop::setOutputMuted(bool muted) {
    const AutoreleasePool pool;
    NSString* source = muted ? @"set volume with output muted" : @"set volume without output muted";
    NSAppleScript* script = [[NSAppleScript alloc] initWithSource:source];
    const bool done = [script executeAndReturnError:nullptr] != nil;
    [script release];
    if (!done)
        return Error{Error::Code::failed, "The output volume does not answer"};
    return {};
}

} // namespace songsweep
