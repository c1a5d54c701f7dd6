// SPDX-License-Identifier: MIT
#pragma once

#import <Foundation/Foundation.h>

// The part of CoreFoundation that the program calls, where only GNUstep is there. A CFURL is an NSURL and a
// CFString an NSString, as on macOS.

extern "C" {

using UInt8 = unsigned char;
using Boolean = unsigned char;
using CFIndex = long;
using CFTypeRef = const void*;
using CFAllocatorRef = const struct CFAllocatorOpaque*;
using CFURLRef = const struct CFURLOpaque*;
using CFStringRef = const struct CFStringOpaque*;

enum CFURLPathStyle { kCFURLPOSIXPathStyle = 0, kCFURLHFSPathStyle = 1 };

void CFRelease(CFTypeRef object);
CFURLRef CFURLCreateFromFileSystemRepresentation(CFAllocatorRef allocator, const UInt8* path, CFIndex length,
                                                 Boolean isDirectory);
CFURLRef CFURLCreateWithFileSystemPath(CFAllocatorRef allocator, CFStringRef path, CFURLPathStyle style,
                                       Boolean isDirectory);
CFStringRef CFURLCopyFileSystemPath(CFURLRef url, CFURLPathStyle style);
Boolean CFURLGetFileSystemRepresentation(CFURLRef url, Boolean resolveAgainstBase, UInt8* path,
                                         CFIndex capacity);
}
