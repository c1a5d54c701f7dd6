// SPDX-License-Identifier: MIT
#pragma once

#import <AppKit/AppKit.h>
#import <Foundation/Foundation.h>

// What macOS declares and GNUstep does not, as far as the program calls it.

using OSType = unsigned int;
using DescType = OSType;
using Boolean = unsigned char;

@interface NSFileManager (MissingFromGNUstep)
- (BOOL)trashItemAtURL:(NSURL*)url resultingItemURL:(NSURL**)result error:(NSError**)error;
@end

@interface NSWorkspace (MissingFromGNUstep)
- (NSURL*)URLForApplicationWithBundleIdentifier:(NSString*)identifier;
@end

@interface NSAppleScript (MissingFromGNUstep)
- (id)initWithSource:(NSString*)source;
- (NSAppleEventDescriptor*)executeAndReturnError:(NSDictionary**)errorInfo;
@end

@interface NSAppleEventDescriptor (MissingFromGNUstep)
- (DescType)descriptorType;
- (NSData*)data;
- (NSString*)stringValue;
- (int)int32Value;
- (Boolean)booleanValue;
- (OSType)typeCodeValue;
- (NSInteger)numberOfItems;
- (NSAppleEventDescriptor*)descriptorAtIndex:(NSInteger)index;
- (NSAppleEventDescriptor*)coerceToDescriptorType:(DescType)type;
@end
