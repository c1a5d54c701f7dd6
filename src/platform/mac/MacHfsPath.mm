// SPDX-License-Identifier: MIT
#include "platform/HfsPath.h"

#include "platform/mac/AutoreleasePool.h"
#include "platform/mac/CocoaTexts.h"

#include <CoreFoundation/CoreFoundation.h>

#include <array>
#include <climits>

namespace songsweep {

namespace {

/// Owns what a function of CoreFoundation with "Create" or "Copy" in its name gave.
template <class Reference> class Owned {
  public:
    explicit Owned(Reference reference) : m_reference(reference) {}
    Owned(const Owned&) = delete;
    Owned& operator=(const Owned&) = delete;
    ~Owned() {
        if (m_reference != nullptr)
            CFRelease(m_reference);
    }
    Reference get() const { return m_reference; }

  private:
    Reference m_reference;
};

} // namespace

std::optional<std::string> hfsPath(std::string_view posixPath) {
    const AutoreleasePool pool;
    if (!posixPath.starts_with('/'))
        return std::nullopt;
    const Owned<CFURLRef> url(
        CFURLCreateFromFileSystemRepresentation(nullptr, reinterpret_cast<const UInt8*>(posixPath.data()),
                                                static_cast<CFIndex>(posixPath.size()), false));
    if (url.get() == nullptr)
        return std::nullopt;
    const Owned<CFStringRef> path(CFURLCopyFileSystemPath(url.get(), kCFURLHFSPathStyle));
    if (path.get() == nullptr)
        return std::nullopt;
    return utf8Text((NSString*)path.get());
}

std::optional<std::string> posixPath(std::string_view hfsPath) {
    const AutoreleasePool pool;
    NSString* text = cocoaText(std::string(hfsPath));
    if (text == nil || [text length] == 0)
        return std::nullopt;
    const Owned<CFURLRef> url(
        CFURLCreateWithFileSystemPath(nullptr, (CFStringRef)text, kCFURLHFSPathStyle, false));
    if (url.get() == nullptr)
        return std::nullopt;
    std::array<UInt8, PATH_MAX> path{};
    if (!CFURLGetFileSystemRepresentation(url.get(), true, path.data(), path.size()))
        return std::nullopt;
    return std::string(reinterpret_cast<const char*>(path.data()));
}

} // namespace songsweep
