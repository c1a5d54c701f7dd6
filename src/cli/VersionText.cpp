// SPDX-License-Identifier: MIT
#include "cli/VersionText.h"

#include <QtGlobal>

#include <expat.h>
#include <libxml/parser.h>
#include <taglib.h>
#include <unicode/uversion.h>

#ifndef __APPLE__
#include <glib.h>
#endif

#include <array>
#include <charconv>

namespace songsweep::cli {

namespace {

std::string dotted(int major, int minor, int patch) {
    return std::to_string(major) + "." + std::to_string(minor) + "." + std::to_string(patch);
}

/// libxml2 gives "20914", and a word behind it where it was not built of a release.
std::string xmlVersion() {
    constexpr int base = 100;
    const std::string digits = xmlParserVersion;
    int number = 0;
    std::from_chars(digits.data(), digits.data() + digits.size(), number);
    return dotted(number / (base * base), number / base % base, number % base);
}

std::string expatVersion() {
    const XML_Expat_Version version = XML_ExpatVersionInfo();
    return dotted(version.major, version.minor, version.micro);
}

std::string icuVersion() {
    UVersionInfo version;
    u_getVersion(version);
    std::array<char, U_MAX_VERSION_STRING_LENGTH> text{};
    u_versionToString(version, text.data());
    return text.data();
}

} // namespace

std::string versionText(const std::string& version) {
    std::string text = "Songsweep " + version + "\nQt " + qVersion() + ", libxml2 " + xmlVersion() +
                       ", expat " + expatVersion() + ", ICU " + icuVersion();
#ifndef __APPLE__
    text += ", GLib " + dotted(static_cast<int>(glib_major_version), static_cast<int>(glib_minor_version),
                               static_cast<int>(glib_micro_version));
#endif
    return text + ", TagLib " + dotted(TAGLIB_MAJOR_VERSION, TAGLIB_MINOR_VERSION, TAGLIB_PATCH_VERSION);
}

} // namespace songsweep::cli
