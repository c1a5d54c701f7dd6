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

using songsweep::test::FakeDescriptor;
using songsweep::test::fakeMac;
using songsweep::test::note;

/// The descriptor that a script's fake result is read through.
@interface DescriptorOfFake : NSAppleEventDescriptor {
    const FakeDescriptor* m_fake;
}
- (id)initWithFake:(const FakeDescriptor*)fake;
@end

static NSAppleEventDescriptor* descriptorOf(const FakeDescriptor& fake) {
    return [[[DescriptorOfFake alloc] initWithFake:&fake] autorelease];
}

/// The number whose bytes the fake holds.
template <class Number> static Number numberOf(const FakeDescriptor& fake) {
    Number number{};
    std::memcpy(&number, fake.data.data(), std::min(sizeof number, fake.data.size()));
    return number;
}

static OSType codeOf(const std::string& letters) {
    OSType code = 0;
    for (const char letter : letters)
        code = (code << 8U) | static_cast<unsigned char>(letter);
    return code;
}

@implementation DescriptorOfFake
- (id)initWithFake:(const FakeDescriptor*)fake {
    self = [super init];
    m_fake = fake;
    return self;
}
- (DescType)descriptorType {
    return codeOf(m_fake->type);
}
- (NSData*)data {
    return [NSData dataWithBytes:m_fake->data.data() length:m_fake->data.size()];
}
- (NSString*)stringValue {
    return m_fake->type == "utxt" ? [NSString stringWithUTF8String:m_fake->data.c_str()] : nil;
}
- (int)int32Value {
    return numberOf<int>(*m_fake);
}
- (Boolean)booleanValue {
    return m_fake->type == "true" || (m_fake->type == "bool" && m_fake->data != std::string(1, '\0'));
}
- (OSType)typeCodeValue {
    return codeOf(m_fake->data);
}
- (NSInteger)numberOfItems {
    return static_cast<NSInteger>(m_fake->items.size());
}
- (NSAppleEventDescriptor*)descriptorAtIndex:(NSInteger)index {
    return descriptorOf(m_fake->items.at(static_cast<std::size_t>(index - 1)));
}
- (NSAppleEventDescriptor*)coerceToDescriptorType:(DescType)type {
    (void)type;
    return self;
}
@end

@implementation NSFileManager (MissingFromGNUstep)
- (BOOL)trashItemAtURL:(NSURL*)url resultingItemURL:(NSURL**)result error:(NSError**)error {
    note("trash", [url path]);
    if (fakeMac().succeeds) {
        NSString* place = [@"/Users/ann/.Trash" stringByAppendingPathComponent:[url lastPathComponent]];
        *result = fakeMac().tellsWhere ? [NSURL fileURLWithPath:place] : nil;
        return YES;
    }
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
    if (fakeMac().succeeds)
        return descriptorOf(fakeMac().scriptResult);
    if (errorInfo != nullptr && !fakeMac().scriptError.empty())
        *errorInfo =
            [NSDictionary dictionaryWithObject:[NSString stringWithUTF8String:fakeMac().scriptError.c_str()]
                                        forKey:@"NSAppleScriptErrorMessage"];
    return nil;
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
- (NSURL*)URLForApplicationWithBundleIdentifier:(NSString*)identifier {
    const auto& installed = fakeMac().applications;
    const bool isThere =
        std::find(installed.begin(), installed.end(), [identifier UTF8String]) != installed.end();
    return isThere ? [NSURL fileURLWithPath:@"/Applications/Player.app"] : nil;
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
