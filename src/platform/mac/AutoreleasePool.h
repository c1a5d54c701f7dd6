// SPDX-License-Identifier: MIT
#pragma once

#import <Foundation/Foundation.h>

namespace songsweep {

/// Releases what Cocoa's calls left behind at the end of a block, on threads that have no pool of their own.
/// A class, since not every Objective-C++ compiler knows the language's own block.
class AutoreleasePool {
  public:
    AutoreleasePool() = default;
    AutoreleasePool(const AutoreleasePool&) = delete;
    AutoreleasePool& operator=(const AutoreleasePool&) = delete;
    ~AutoreleasePool() { [m_pool drain]; }

  private:
    NSAutoreleasePool* m_pool = [[NSAutoreleasePool alloc] init];
};

} // namespace songsweep
