// SPDX-License-Identifier: MIT
#include "Fakes.h"

#import <AppKit/AppKit.h>

#include <CoreFoundation/CoreFoundation.h>

#include <algorithm>
#include <cstring>

#include "MissingFromGNUstep.h"
#include <objc/runtime.h>

namespace songsweep::test {

FakeMac& fakeMac() {
    static FakeMac mac;
    return mac;
}

static void note(const char* call, NSString* argument) {
    fakeMac().calls.push_back(std::string(call) + " " + [argument UTF8String]);
}

} // namespace songsweep::test

using songsweep::test::fakeMac;
using songsweep::test::note;

@implementation NSFileManager (MissingFromGNUstep)
- (BOOL)trashItemAtURL:(NSURL*)url resultingItemURL:(NSURL**)result error:(NSError**)error {
    (void)result;
    note("trash", [url path]);
    if (fakeMac().succeeds)
        return YES;
    NSDictionary* info = [NSDictionary dictionaryWithObject:@"The volume has no Trash."
                                                     forKey:NSLocalizedDescriptionKey];
    *error = [NSError errorWithDomain:NSCocoaErrorDomain code:1 userInfo:info];
    return NO;
}
@end

@implementation NSAppleScript (MissingFromGNUstep)
- (id)initWithSource:(NSString*)source {
    note("script", source);
    return [self init];
}
- (NSAppleEventDescriptor*)executeAndReturnError:(NSDictionary**)errorInfo {
    (void)errorInfo;
    return fakeMac().succeeds ? (NSAppleEventDescriptor*)self : nil;
}
@end

@interface NSWorkspace (Fake)
@end

@implementation NSWorkspace (Fake)
// GNUstep's own wants a running desktop.
+ (NSWorkspace*)sharedWorkspace {
    static id workspace = class_createInstance(self, 0);
    return workspace;
}
- (BOOL)openURL:(NSURL*)url {
    note("open", [url absoluteString]);
    return fakeMac().succeeds;
}
- (BOOL)selectFile:(NSString*)path inFileViewerRootedAtPath:(NSString*)root {
    note("select", [NSString stringWithFormat:@"%@ below \"%@\"", path, root]);
    return fakeMac().succeeds;
}
@end

@interface NSUserDefaults (Fake)
@end

@implementation NSUserDefaults (Fake)
// GNUstep's own would read and write the user's files.
+ (NSUserDefaults*)standardUserDefaults {
    static id defaults = class_createInstance(self, 0);
    return defaults;
}
- (NSDictionary*)persistentDomainForName:(NSString*)name {
    note("domain", name);
    if (!fakeMac().hasDomain)
        return nil;
    NSMutableArray* entries = [NSMutableArray array];
    for (const std::string& entry : fakeMac().recentDatabases) {
        if (entry == "(number)")
            [entries addObject:[NSNumber numberWithInt:1]];
        else
            [entries addObject:[NSString stringWithUTF8String:entry.c_str()]];
    }
    return [NSDictionary dictionaryWithObject:entries forKey:@"iTunesRecentDatabases"];
}
@end

namespace {

NSString* const volume = @"Macintosh HD";

/// Between the two notations; the exchange is its own inverse.
NSString* exchangeSeparators(NSString* path) {
    std::string text = [path UTF8String];
    for (char& character : text) {
        if (character == '/')
            character = ':';
        else if (character == ':')
            character = '/';
    }
    return [NSString stringWithUTF8String:text.c_str()];
}

} // namespace

void CFRelease(CFTypeRef object) { [(id)object release]; }

CFURLRef CFURLCreateFromFileSystemRepresentation(CFAllocatorRef, const UInt8* path, CFIndex length, Boolean) {
    NSString* text = [[NSString alloc] initWithBytes:path
                                              length:static_cast<NSUInteger>(length)
                                            encoding:NSUTF8StringEncoding];
    if (text == nil)
        return nullptr;
    NSURL* url = [[NSURL alloc] initFileURLWithPath:[text autorelease]];
    return (CFURLRef)url;
}

CFURLRef CFURLCreateWithFileSystemPath(CFAllocatorRef, CFStringRef path, CFURLPathStyle, Boolean) {
    NSString* text = (NSString*)path;
    if (![text hasPrefix:[volume stringByAppendingString:@":"]])
        return nullptr;
    NSString* posix = exchangeSeparators([text substringFromIndex:[volume length]]);
    NSURL* url = [[NSURL alloc] initFileURLWithPath:posix];
    return (CFURLRef)url;
}

CFStringRef CFURLCopyFileSystemPath(CFURLRef url, CFURLPathStyle) {
    NSString* path = exchangeSeparators([(NSURL*)url path]);
    return (CFStringRef)[[volume stringByAppendingString:path] retain];
}

Boolean CFURLGetFileSystemRepresentation(CFURLRef url, Boolean, UInt8* path, CFIndex capacity) {
    const char* text = [[(NSURL*)url path] UTF8String];
    if (static_cast<CFIndex>(std::strlen(text)) >= capacity)
        return 0;
    std::strcpy(reinterpret_cast<char*>(path), text);
    return 1;
}
