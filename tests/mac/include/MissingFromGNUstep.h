// SPDX-License-Identifier: MIT
#pragma once

#import <Foundation/Foundation.h>

// What macOS declares and GNUstep does not, as far as the program calls it.

@class NSAppleEventDescriptor;

@interface NSFileManager (MissingFromGNUstep)
- (BOOL)trashItemAtURL:(NSURL*)url resultingItemURL:(NSURL**)result error:(NSError**)error;
@end

@interface NSAppleScript (MissingFromGNUstep)
- (id)initWithSource:(NSString*)source;
- (NSAppleEventDescriptor*)executeAndReturnError:(NSDictionary**)errorInfo;
@end
