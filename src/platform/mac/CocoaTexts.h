// SPDX-License-Identifier: MIT
#pragma once

#import <Foundation/Foundation.h>

#include <string>

namespace songsweep {

/// UTF-8 to Cocoa's texts and back; what Cocoa gives lives until the autorelease pool drains.

inline NSString* cocoaText(const std::string& text) { return [NSString stringWithUTF8String:text.c_str()]; }

/// Empty for nil.
inline std::string utf8Text(NSString* text) {
    const char* bytes = [text UTF8String];
    return bytes == nullptr ? std::string() : std::string(bytes);
}

/// A path in the form in which Cocoa names files.
inline NSString* cocoaPath(const std::string& path) {
    return [[NSFileManager defaultManager] stringWithFileSystemRepresentation:path.data() length:path.size()];
}

} // namespace songsweep
