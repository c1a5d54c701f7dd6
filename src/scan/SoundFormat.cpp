// SPDX-License-Identifier: MIT
#include "scan/SoundFormat.h"

#include "platform/Ascii.h"

#include <algorithm>
#include <array>

namespace songsweep {

namespace {

template <class Format>
struct Ending {
    std::string_view text; // lower case
    Format format;
};

constexpr std::array soundEndings = {
    Ending<SoundFormat>{"mp3", SoundFormat::mpeg},     Ending<SoundFormat>{"flac", SoundFormat::flac},
    Ending<SoundFormat>{"m4a", SoundFormat::mp4},      Ending<SoundFormat>{"m4b", SoundFormat::mp4},
    Ending<SoundFormat>{"m4p", SoundFormat::mp4},      Ending<SoundFormat>{"mp4", SoundFormat::mp4},
    Ending<SoundFormat>{"ogg", SoundFormat::ogg},      Ending<SoundFormat>{"oga", SoundFormat::ogg},
    Ending<SoundFormat>{"opus", SoundFormat::ogg},     Ending<SoundFormat>{"spx", SoundFormat::ogg},
    Ending<SoundFormat>{"wav", SoundFormat::wav},      Ending<SoundFormat>{"aiff", SoundFormat::aiff},
    Ending<SoundFormat>{"aif", SoundFormat::aiff},     Ending<SoundFormat>{"aifc", SoundFormat::aiff},
    Ending<SoundFormat>{"wma", SoundFormat::wma},      Ending<SoundFormat>{"ape", SoundFormat::ape},
    Ending<SoundFormat>{"mpc", SoundFormat::musepack}, Ending<SoundFormat>{"wv", SoundFormat::wavPack},
};

constexpr std::array playlistEndings = {
    Ending<PlaylistFormat>{"m3u", PlaylistFormat::m3u},
    Ending<PlaylistFormat>{"m3u8", PlaylistFormat::m3u},
    Ending<PlaylistFormat>{"pls", PlaylistFormat::pls},
    Ending<PlaylistFormat>{"xspf", PlaylistFormat::xspf},
};

/// "MP3" of "/Music/a.MP3"; a name that begins with its only dot has no ending.
std::string_view endingOf(std::string_view name) {
    name.remove_prefix(name.rfind('/') + 1);
    const std::size_t dot = name.rfind('.');
    return dot == std::string_view::npos || dot == 0 ? std::string_view() : name.substr(dot + 1);
}

bool isEnding(std::string_view text, std::string_view ending) {
    return std::equal(text.begin(), text.end(), ending.begin(), ending.end(),
                      [](char a, char b) { return asciiLower(a) == b; });
}

template <class Endings>
auto formatOf(std::string_view name, const Endings& endings) {
    const std::string_view text = endingOf(name);
    const auto found = std::find_if(endings.begin(), endings.end(),
                                    [&](const auto& ending) { return isEnding(text, ending.text); });
    return found == endings.end() ? std::nullopt : std::optional(found->format);
}

} // namespace

std::optional<SoundFormat> soundFormatOf(std::string_view name) { return formatOf(name, soundEndings); }

std::optional<PlaylistFormat> playlistFormatOf(std::string_view name) {
    return formatOf(name, playlistEndings);
}

} // namespace songsweep
