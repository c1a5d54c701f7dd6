// SPDX-License-Identifier: MIT
#include "package-texts/Changelog.h"

namespace songsweep {

namespace {

std::string escaped(char character) {
    switch (character) {
    case '&':
        return "&amp;";
    case '<':
        return "&lt;";
    case '>':
        return "&gt;";
    default:
        return {character};
    }
}

/// Markdown's `code` and *emphasis* as elements; inside code a star is a star.
std::string marked(const std::string& text) {
    std::string result;
    bool isCode = false;
    bool isEmphasis = false;
    for (const char character : text) {
        if (character == '`') {
            isCode = !isCode;
            result += isCode ? "<code>" : "</code>";
        } else if (character == '*' && !isCode) {
            isEmphasis = !isEmphasis;
            result += isEmphasis ? "<em>" : "</em>";
        } else {
            result += escaped(character);
        }
    }
    return result;
}

std::string description(const Release& release) {
    std::string text;
    for (const Release::Part& part : release.parts) {
        if (!part.title.empty()) text += "        <p>" + marked(part.title) + "</p>\n";
        text += "        <ul>\n";
        for (const std::string& item : part.items)
            text += "          <li>" + marked(item) + "</li>\n";
        text += "        </ul>\n";
    }
    return text;
}

} // namespace

std::string appStreamReleases(const std::vector<Release>& releases) {
    std::string text;
    for (const Release& release : releases) {
        if (release.date.empty()) continue;
        text += "    <release version=\"" + release.version + "\" date=\"" + release.date +
                "\">\n      <description>\n" + description(release) +
                "      </description>\n    </release>\n";
    }
    return text;
}

} // namespace songsweep
