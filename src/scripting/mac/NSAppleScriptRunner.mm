// SPDX-License-Identifier: MIT
#include "scripting/mac/NSAppleScriptRunner.h"

#include "scripting/PlayerName.h"

#import <Foundation/Foundation.h>

#include <cstring>

// The four-letter codes of Apple events that a result can have. They are spelled out, since the headers that
// name them are those of another framework.
namespace {

constexpr std::uint32_t fourLetters(const char (&code)[5]) {
    return (std::uint32_t(static_cast<unsigned char>(code[0])) << 24U) |
           (std::uint32_t(static_cast<unsigned char>(code[1])) << 16U) |
           (std::uint32_t(static_cast<unsigned char>(code[2])) << 8U) |
           std::uint32_t(static_cast<unsigned char>(code[3]));
}

constexpr std::uint32_t listType = fourLetters("list");
constexpr std::uint32_t trueType = fourLetters("true");
constexpr std::uint32_t falseType = fourLetters("fals");
constexpr std::uint32_t booleanType = fourLetters("bool");
constexpr std::uint32_t shortType = fourLetters("shor");
constexpr std::uint32_t integerType = fourLetters("long");
constexpr std::uint32_t largeType = fourLetters("comp");
constexpr std::uint32_t realType = fourLetters("doub");
constexpr std::uint32_t dateType = fourLetters("ldt ");
constexpr std::uint32_t aliasType = fourLetters("alis");
constexpr std::uint32_t fileUrlType = fourLetters("furl");
constexpr std::uint32_t typeType = fourLetters("type");
constexpr std::uint32_t objectType = fourLetters("obj ");
constexpr std::uint32_t nullType = fourLetters("null");
constexpr std::uint32_t missingValue = fourLetters("msng");

} // namespace

namespace songsweep {
namespace {

std::string utf8(NSString* text) {
    const char* const bytes = [text UTF8String];
    return bytes ? std::string(bytes) : std::string();
}

/// A number of eight bytes in the host's byte order; zero where the descriptor holds another size.
template <class Number> Number eightBytes(NSAppleEventDescriptor* descriptor) {
    Number number{};
    NSData* const data = [descriptor data];
    if ([data length] == sizeof number)
        std::memcpy(&number, [data bytes], sizeof number);
    return number;
}

Descriptor converted(NSAppleEventDescriptor* descriptor);

Descriptor convertedList(NSAppleEventDescriptor* descriptor) {
    Descriptor::List items;
    const NSInteger count = [descriptor numberOfItems];
    for (NSInteger index = 1; index <= count; ++index) {
        items.push_back(converted([descriptor descriptorAtIndex:index]));
    }
    return Descriptor::list(std::move(items));
}

/// The file of an alias or of a file URL.
Descriptor convertedFile(NSAppleEventDescriptor* descriptor) {
    NSAppleEventDescriptor* const url = [descriptor coerceToDescriptorType:fileUrlType];
    NSString* const text = [[[NSString alloc] initWithData:[url data]
                                                  encoding:NSUTF8StringEncoding] autorelease];
    NSString* const path = text ? [[NSURL URLWithString:text] path] : nil;
    return path ? Descriptor(Descriptor::Value(Descriptor::Alias{utf8(path)})) : Descriptor();
}

Descriptor convertedText(NSAppleEventDescriptor* descriptor) {
    NSString* const text = [descriptor stringValue];
    return text ? Descriptor::text(utf8(text)) : Descriptor();
}

Descriptor converted(NSAppleEventDescriptor* descriptor) {
    switch ([descriptor descriptorType]) {
    case listType:
        return convertedList(descriptor);
    case trueType:
    case falseType:
    case booleanType:
        return Descriptor(Descriptor::Value([descriptor booleanValue] ? true : false));
    case shortType:
    case integerType:
        return Descriptor::integer([descriptor int32Value]);
    case largeType:
        return Descriptor::integer(eightBytes<std::int64_t>(descriptor));
    case realType:
        return Descriptor(Descriptor::Value(eightBytes<double>(descriptor)));
    case dateType:
        return Descriptor(Descriptor::Value(Descriptor::Date{eightBytes<std::int64_t>(descriptor)}));
    case aliasType:
    case fileUrlType:
        return convertedFile(descriptor);
    case objectType:
        return Descriptor(Descriptor::Value(Descriptor::Object{"an object"}));
    case typeType:
        if ([descriptor typeCodeValue] == missingValue)
            return Descriptor();
        return convertedText(descriptor);
    case nullType:
        return Descriptor();
    default:
        return convertedText(descriptor);
    }
}

Error failureOf(NSDictionary* information) {
    NSString* const reason = [information objectForKey:@"NSAppleScriptErrorMessage"];
    return {Error::Code::failed, reason ? utf8(reason) : std::string("the script failed")};
}

Result<Descriptor> executed(NSString* text) {
    NSAppleScript* const script = [[NSAppleScript alloc] initWithSource:text];
    NSDictionary* information = nil;
    NSAppleEventDescriptor* const descriptor = [script executeAndReturnError:&information];
    Result<Descriptor> result =
        descriptor ? Result<Descriptor>(converted(descriptor)) : failureOf(information);
    [script release];
    return result;
}

} // namespace

Result<Descriptor> NSAppleScriptRunner::executeAndReturnError(std::string_view source) {
    const std::lock_guard lock(m_lock);
    NSAutoreleasePool* const pool = [[NSAutoreleasePool alloc] init];
    const std::string addressed = addressedTo(m_player, source);
    NSString* const text = [[[NSString alloc] initWithBytes:addressed.data()
                                                     length:addressed.size()
                                                   encoding:NSUTF8StringEncoding] autorelease];
    Result<Descriptor> result =
        text ? executed(text) : Error{Error::Code::invalid, "the script is not UTF-8"};
    [pool drain];
    return result;
}

} // namespace songsweep
