// SPDX-License-Identifier: MIT
#include "platform/mac/MacPreferences.h"

#include "platform/HomeFolder.h"
#include "platform/mac/AutoreleasePool.h"
#include "platform/mac/CocoaTexts.h"

namespace songsweep {

namespace {

/// An entry that is no text counts as an empty one, so that the first stays the first.
std::string textOf(id entry) {
    return [entry isKindOfClass:[NSString class]] ? utf8Text(entry) : std::string();
}

std::optional<IAppsDomain> domainOf(id list) {
    if (![list isKindOfClass:[NSDictionary class]])
        return std::nullopt;
    IAppsDomain domain;
    NSArray* entries = [list objectForKey:@"iTunesRecentDatabases"];
    if (![entries isKindOfClass:[NSArray class]])
        return domain;
    for (NSUInteger index = 0; index < [entries count]; ++index)
        domain.iTunesRecentDatabases.push_back(textOf([entries objectAtIndex:index]));
    return domain;
}

/// Nil for what is no property list, which some versions tell by an exception of Objective-C's.
id parsed(NSData* contents) {
    try {
        return [NSPropertyListSerialization propertyListWithData:contents
                                                         options:NSPropertyListImmutable
                                                          format:nullptr
                                                           error:nullptr];
    } catch (...) {
        return nil;
    }
}

} // namespace

std::optional<IAppsDomain> MacPreferences::iAppsDomain() const {
    const AutoreleasePool pool;
    return domainOf([[NSUserDefaults standardUserDefaults] persistentDomainForName:@"com.apple.iApps"]);
}

std::optional<IAppsDomain> MacPreferences::iAppsPropertyList(const std::string& path) const {
    const AutoreleasePool pool;
    NSData* contents = [NSData dataWithContentsOfFile:cocoaPath(path)];
    if (contents == nil)
        return std::nullopt;
    return domainOf(parsed(contents));
}

std::string MacPreferences::homeFolder() const { return passwordHomeFolder(); }

} // namespace songsweep
